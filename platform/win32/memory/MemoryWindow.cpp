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

LuMemoryWindow* findMemoryWindow(HWND handle) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const auto value = reinterpret_cast<std::uint64_t>(handle);
    const auto index = static_cast<std::uint32_t>(value) - LuMemoryDesktop::firstHandle;
    if (index >= desktop.numSlots)
        return nullptr;
    LuMemoryWindow* window =
        &desktop.chunks[index >> LuMemoryDesktop::chunkBits][index & (LuMemoryDesktop::chunkSize - 1)];
    const auto generation = static_cast<std::uint32_t>(value >> 32);
    return window->generation == generation && (generation & 1) ? window : nullptr;
}

LuMemoryWindow* findMemoryWindowOrFail(HWND handle) {
    LuMemoryWindow* window = findMemoryWindow(handle);
    if (!window)
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return window;
}

LuMemoryWindow* allocateMemoryWindow() {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    std::uint32_t index;
    if (!desktop.freeSlots.empty()) {
        index = desktop.freeSlots.back();
        desktop.freeSlots.pop_back();
    } else {
        index = desktop.numSlots;
        const std::uint32_t chunk = index >> LuMemoryDesktop::chunkBits;
        if (chunk >= LuMemoryDesktop::maxChunks)
            return nullptr;
        if (!desktop.chunks[chunk])
            desktop.chunks[chunk] = new LuMemoryWindow[LuMemoryDesktop::chunkSize];
        ++desktop.numSlots;
    }
    LuMemoryWindow* window =
        &desktop.chunks[index >> LuMemoryDesktop::chunkBits][index & (LuMemoryDesktop::chunkSize - 1)];
    window->index = index;
    ++window->generation;
    ++desktop.numWindows;
    return window;
}

void freeMemoryWindow(LuMemoryWindow& window) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const std::uint32_t index = window.index;
    const std::uint32_t generation = window.generation + 1;
    window = LuMemoryWindow{};
    window.index = index;
    window.generation = generation;
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
