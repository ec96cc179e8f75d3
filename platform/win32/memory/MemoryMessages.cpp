// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>
#include <cctype>
#include <memory>

namespace {

/// A W sender and a procedure of the application, which takes A texts.
LRESULT sendNarrowed(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) {
        const auto* wide = reinterpret_cast<const wchar_t*>(lParam);
        const std::string text = wide ? narrowToAnsi(wide) : std::string();
        return sendMessage(window, message, wParam, reinterpret_cast<LPARAM>(text.c_str()));
    }
    if (message == WM_GETTEXTLENGTH)
        return sendMessage(window, message, wParam, lParam);
    std::string text(wParam, '\0');
    sendMessage(window, message, wParam, reinterpret_cast<LPARAM>(text.data()));
    const std::wstring wide = widenAnsi(text.c_str());
    auto* buffer = reinterpret_cast<wchar_t*>(lParam);
    if (wParam == 0 || !buffer)
        return 0;
    const std::size_t length = std::min<std::size_t>(wide.size(), wParam - 1);
    std::copy_n(wide.begin(), length, buffer);
    buffer[length] = L'\0';
    return static_cast<LRESULT>(length);
}

bool matches(const MSG& message, HWND window, UINT first, UINT last) {
    if (window && message.hwnd != window && !IsChild(window, message.hwnd))
        return false;
    return (first == 0 && last == 0) || (message.message >= first && message.message <= last);
}

bool takePosted(MSG& message, HWND window, UINT first, UINT last, bool remove) {
    std::deque<MSG>& posted = getMemoryDesktop().posted;
    for (auto entry = posted.begin(); entry != posted.end(); ++entry) {
        if (!matches(*entry, window, first, last))
            continue;
        message = *entry;
        if (remove)
            posted.erase(entry);
        return true;
    }
    return false;
}

MSG makeQuit(int exitCode) {
    MSG message{};
    message.message = WM_QUIT;
    message.wParam = static_cast<WPARAM>(exitCode);
    return message;
}

} // namespace

LRESULT SendMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    return window ? window->procedure(handle, message, wParam, lParam) : 0;
}

LRESULT SendMessageW(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return 0;
    if (!isTextMessage(message))
        return window->procedure(handle, message, wParam, lParam);
    const LuMemoryWindowClass& type = *window->windowClass;
    if (type.isBuiltIn && window->procedure == type.description.lpfnWndProc)
        return window->procedure(handle, message | wideTextFlag, wParam, lParam);
    return sendNarrowed(*window, message, wParam, lParam);
}

LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure ? procedure(window, message, wParam, lParam) : 0;
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (window && !findMemoryWindowOrFail(window))
        return FALSE;
    getMemoryDesktop().posted.push_back({window, message, wParam, lParam, 0, {0, 0}});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    desktop.isQuitPosted = true;
    desktop.quitCode = exitCode;
}

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    if (!message)
        return FALSE;
    if (takePosted(*message, window, first, last, (remove & PM_REMOVE) != 0))
        return TRUE;
    // WM_QUIT comes after all other messages, whatever is asked for.
    if (!desktop.isQuitPosted)
        return FALSE;
    *message = makeQuit(desktop.quitCode);
    if (remove & PM_REMOVE)
        desktop.isQuitPosted = false;
    return TRUE;
}

BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last) {
    if (!message || (window && !findMemoryWindowOrFail(window)))
        return -1;
    if (!PeekMessageA(message, window, first, last, PM_REMOVE))
        *message = makeQuit(0);
    return message->message != WM_QUIT;
}

LRESULT DispatchMessageA(const MSG* message) {
    if (!message)
        return 0;
    LuMemoryWindow* window = findMemoryWindow(message->hwnd);
    return window ? window->procedure(message->hwnd, message->message, message->wParam, message->lParam) : 0;
}

BOOL TranslateMessage(const MSG* message) {
    if (!message || (message->message != WM_KEYDOWN && message->message != WM_SYSKEYDOWN))
        return FALSE;
    const auto key = static_cast<int>(message->wParam);
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    int character = 0;
    if (key >= 'A' && key <= 'Z')
        character = shift ? key : std::tolower(key);
    else if ((key >= '0' && key <= '9' && !shift) || key == VK_SPACE || key == VK_RETURN || key == VK_TAB ||
             key == VK_BACK || key == VK_ESCAPE)
        character = key;
    if (character)
        PostMessageA(message->hwnd, WM_CHAR, static_cast<WPARAM>(character), message->lParam);
    return TRUE;
}

SHORT GetKeyState(int key) {
    const LuMemoryDesktop& desktop = getMemoryDesktop();
    return key >= 0 && key < 256 && desktop.keys[static_cast<std::size_t>(key)] ? static_cast<SHORT>(-128)
                                                                                : 0;
}

UINT RegisterWindowMessageA(LPCSTR name) {
    constexpr UINT firstRegistered = 0xc000;
    static auto& s_names = *new std::vector<std::string>;
    if (!name || !*name)
        return 0;
    const auto found = std::find(s_names.begin(), s_names.end(), name);
    const auto index = static_cast<UINT>(found - s_names.begin());
    if (found == s_names.end())
        s_names.push_back(name);
    return firstRegistered + index;
}

// Accelerators.

struct HACCEL__ {
    std::vector<ACCEL> entries;
};

namespace {

std::vector<std::unique_ptr<HACCEL__>>& getTables() {
    static auto& s_tables = *new std::vector<std::unique_ptr<HACCEL__>>;
    return s_tables;
}

bool isKeyDown(int key) { return GetKeyState(key) < 0; }

bool isHit(const ACCEL& entry, const MSG& message) {
    if (message.wParam != entry.key)
        return false;
    if (!(entry.fVirt & FVIRTKEY))
        return message.message == WM_CHAR;
    return (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) &&
           isKeyDown(VK_SHIFT) == ((entry.fVirt & FSHIFT) != 0) &&
           isKeyDown(VK_CONTROL) == ((entry.fVirt & FCONTROL) != 0) &&
           isKeyDown(VK_MENU) == ((entry.fVirt & FALT) != 0);
}

} // namespace

HACCEL CreateAcceleratorTableA(ACCEL* accelerators, int count) {
    if (!accelerators || count <= 0)
        return nullptr;
    auto table = std::make_unique<HACCEL__>();
    table->entries.assign(accelerators, accelerators + count);
    getTables().push_back(std::move(table));
    return getTables().back().get();
}

BOOL DestroyAcceleratorTable(HACCEL table) {
    return std::erase_if(getTables(), [table](const auto& other) { return other.get() == table; }) > 0;
}

int TranslateAcceleratorA(HWND window, HACCEL handle, MSG* message) {
    const auto& tables = getTables();
    const bool isValid = std::any_of(tables.begin(), tables.end(),
                                     [handle](const auto& other) { return other.get() == handle; });
    if (!isValid || !message || !findMemoryWindow(window))
        return 0;
    for (const ACCEL& entry : handle->entries) {
        if (!isHit(entry, *message))
            continue;
        SendMessageA(window, WM_COMMAND, MAKEWPARAM(entry.cmd, 1), 0);
        return 1;
    }
    return 0;
}
