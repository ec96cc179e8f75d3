// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include "platform/win32/memory/MemoryWindowSystem.h"

namespace {

constinit LuMemoryDesktop* s_desktop = nullptr;

void makeRoot(LuMemoryDesktop& desktop) {
    static LuMemoryWindowClass rootClass;
    rootClass.name = "#32769";
    rootClass.isBuiltIn = true;
    LuMemoryWindow* root = allocateMemoryWindow();
    root->style = WS_POPUP | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    root->rect = root->client = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    root->procedure = DefWindowProcA;
    root->windowClass = &rootClass;
    desktop.root = root;
    desktop.numWindows = 0;
}

} // namespace

LuMemoryDesktop& getMemoryDesktop() {
    if (!s_desktop) {
        // Kept to the end of the process: static objects elsewhere may still destroy their windows.
        s_desktop = new LuMemoryDesktop;
        makeRoot(*s_desktop);
    }
    return *s_desktop;
}

LuMemoryWindow* allocateMemoryWindow() {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    LuMemorySlots& slots = s_memorySlots;
    std::uint32_t index;
    if (!desktop.freeSlots.empty()) {
        index = desktop.freeSlots.back();
        desktop.freeSlots.pop_back();
    } else {
        index = slots.numSlots;
        const std::uint32_t chunk = index >> LuMemorySlots::chunkBits;
        if (chunk >= LuMemorySlots::maxChunks)
            return nullptr;
        if (!slots.chunks[chunk])
            slots.chunks[chunk] = new LuMemoryWindow[LuMemorySlots::chunkSize];
        desktop.generations.push_back(0);
        slots.generations = desktop.generations.data();
        ++slots.numSlots;
    }
    const std::uint64_t generation = ++slots.generations[index];
    const std::uint64_t place = std::uint64_t{index} + LuMemorySlots::firstHandle;
    LuMemoryWindow* window =
        slots.chunks[index >> LuMemorySlots::chunkBits] + (index & (LuMemorySlots::chunkSize - 1));
    window->handle = reinterpret_cast<HWND>(generation << 32 | place);
    ++desktop.numWindows;
    return window;
}

void freeMemoryWindow(LuMemoryWindow& window) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const auto value = reinterpret_cast<std::uint64_t>(window.handle);
    const auto index = static_cast<std::uint32_t>(value) - LuMemorySlots::firstHandle;
    if (s_memorySlots.last == &window) {
        s_memorySlots.last = nullptr;
        s_memorySlots.lastHandle = nullptr;
    }
    window = LuMemoryWindow{};
    ++s_memorySlots.generations[index];
    desktop.freeSlots.push_back(index);
    --desktop.numWindows;
}

void unlinkMemoryWindow(LuMemoryWindow& window) {
    LuMemoryWindow* parent = window.parent;
    if (!parent)
        return;
    (window.above ? window.above->below : parent->firstChild) = window.below;
    (window.below ? window.below->above : parent->lastChild) = window.above;
    window.above = window.below = nullptr;
}

void linkMemoryWindow(LuMemoryWindow& window, LuMemoryWindow* after) {
    LuMemoryWindow* parent = window.parent;
    window.above = after;
    window.below = after ? after->below : parent->firstChild;
    (window.above ? window.above->below : parent->firstChild) = &window;
    (window.below ? window.below->above : parent->lastChild) = &window;
}

bool isInside(const LuMemoryWindow* window, const LuMemoryWindow* ancestor) {
    while (window && window != ancestor)
        window = window->parent;
    return window != nullptr;
}

bool isShown(const LuMemoryWindow& window) {
    for (const LuMemoryWindow* w = &window; w; w = w->parent)
        if (!(w->style & WS_VISIBLE))
            return false;
    return true;
}

POINT getClientOrigin(const LuMemoryWindow& window) {
    POINT origin{0, 0};
    for (const LuMemoryWindow* w = &window; w; w = w->parent) {
        origin.x += w->client.left;
        origin.y += w->client.top;
    }
    return origin;
}

LuMemoryWindow* getRootWindow(LuMemoryWindow* window) {
    LuMemoryWindow* root = getMemoryDesktop().root;
    if (window == root)
        return window;
    while (window && window->parent != root)
        window = window->parent;
    return window;
}

BOOL IsWindow(HWND window) { return findMemoryWindow(window) != nullptr; }

HWND GetDesktopWindow() { return getHandle(getMemoryDesktop().root); }

DWORD GetLastError() { return getMemoryDesktop().lastError; }

void SetLastError(DWORD error) { getMemoryDesktop().lastError = error; }

void LuMemoryWindowSystem::reset() {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    while (desktop.root->firstChild)
        DestroyWindow(getHandle(desktop.root->firstChild));
    desktop.posted.clear();
    desktop.isQuitPosted = false;
    desktop.keys.fill(false);
    desktop.failingRegistrations = desktop.failingCreations = 0;
    desktop.lastError = ERROR_SUCCESS;
}

int LuMemoryWindowSystem::getNumWindows() { return getMemoryDesktop().numWindows; }

void LuMemoryWindowSystem::failRegistrations(int count) { getMemoryDesktop().failingRegistrations = count; }

void LuMemoryWindowSystem::failCreations(int count) { getMemoryDesktop().failingCreations = count; }

void LuMemoryWindowSystem::setKeyDown(int key, bool down) {
    if (key >= 0 && key < 256)
        getMemoryDesktop().keys[static_cast<std::size_t>(key)] = down;
}
