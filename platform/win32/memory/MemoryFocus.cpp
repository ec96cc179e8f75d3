// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

namespace {

void changeFocus(LuMemoryWindow* window) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    LuMemoryWindow* previous = desktop.focus;
    if (previous == window)
        return;
    desktop.focus = window;
    const HWND handle = getHandle(window), previousHandle = getHandle(previous);
    if (previous)
        sendMessage(*previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(handle), 0);
    // The handler may have moved the focus itself, or destroyed the window.
    if (window && desktop.focus == window && findMemoryWindow(handle) == window)
        sendMessage(*window, WM_SETFOCUS,
                    reinterpret_cast<WPARAM>(findMemoryWindow(previousHandle) ? previousHandle : nullptr), 0);
}

bool canHaveFocus(const LuMemoryWindow& window) {
    const LuMemoryWindow* root = getMemoryDesktop().root;
    for (const LuMemoryWindow* w = &window; w && w != root; w = w->parent)
        if (w->style & (WS_DISABLED | WS_MINIMIZE))
            return false;
    return true;
}

LuMemoryWindow* findNextActive(LuMemoryWindow& leaving) {
    auto isGood = [&leaving](const LuMemoryWindow* window) {
        return window && window != &leaving && (window->style & WS_VISIBLE) &&
               !(window->style & WS_DISABLED) && !window->isDying;
    };
    if (isGood(leaving.owner))
        return leaving.owner;
    for (LuMemoryWindow* top = getMemoryDesktop().root->firstChild; top; top = top->below)
        if (isGood(top))
            return top;
    return nullptr;
}

} // namespace

void activateWindow(LuMemoryWindow* window) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    LuMemoryWindow* previous = desktop.active;
    if (previous == window || (window && (window->style & WS_DISABLED)))
        return;
    const HWND handle = getHandle(window), previousHandle = getHandle(previous);
    if (previous) {
        sendMessage(*previous, WM_NCACTIVATE, FALSE, 0);
        if (findMemoryWindow(previousHandle))
            sendMessage(*previous, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(handle));
    }
    if (window && findMemoryWindow(handle) != window)
        window = nullptr;
    desktop.active = window;
    if (window) {
        sendMessage(*window, WM_NCACTIVATE, TRUE, 0);
        if (findMemoryWindow(handle))
            sendMessage(*window, WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(previousHandle));
    }
    if (desktop.active == window && desktop.focus && getRootWindow(desktop.focus) != window)
        changeFocus(window);
}

void passActivationOn(LuMemoryWindow& window) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const HWND handle = getHandle(&window);
    if (desktop.capture && isInside(desktop.capture, &window))
        ReleaseCapture();
    if (!findMemoryWindow(handle))
        return;
    if (desktop.active == &window)
        activateWindow(findNextActive(window));
}

HWND SetFocus(HWND handle) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const HWND previous = getHandle(desktop.focus);
    if (!handle) {
        changeFocus(nullptr);
        return previous;
    }
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return nullptr;
    if (window == desktop.focus)
        return previous;
    if (!canHaveFocus(*window)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    LuMemoryWindow* top = getRootWindow(window);
    if (top != desktop.active) {
        activateWindow(top);
        if (!findMemoryWindow(handle) || desktop.active != top)
            return nullptr;
    }
    changeFocus(window);
    return previous;
}

HWND GetFocus() { return getHandle(getMemoryDesktop().focus); }

HWND SetActiveWindow(HWND handle) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const HWND previous = getHandle(desktop.active);
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || isChildStyle(window->style))
        return nullptr;
    activateWindow(window);
    return previous;
}

HWND GetActiveWindow() { return getHandle(getMemoryDesktop().active); }

BOOL SetForegroundWindow(HWND handle) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || isChildStyle(window->style))
        return FALSE;
    activateWindow(window);
    return TRUE;
}

HWND GetForegroundWindow() { return GetActiveWindow(); }

HWND SetCapture(HWND handle) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    LuMemoryWindow* previous = desktop.capture;
    const HWND previousHandle = getHandle(previous);
    LuMemoryWindow* window = handle ? findMemoryWindowOrFail(handle) : nullptr;
    if (handle && !window)
        return nullptr;
    desktop.capture = window;
    if (previous && previous != window)
        sendMessage(*previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(handle));
    return previousHandle;
}

BOOL ReleaseCapture() {
    SetCapture(nullptr);
    return TRUE;
}

HWND GetCapture() { return getHandle(getMemoryDesktop().capture); }

BOOL EnableWindow(HWND handle, BOOL enable) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return FALSE;
    const bool wasDisabled = (window->style & WS_DISABLED) != 0;
    if (wasDisabled != static_cast<bool>(enable))
        return wasDisabled;
    if (enable) {
        window->style &= ~WS_DISABLED;
        sendMessage(*window, WM_ENABLE, TRUE, 0);
        return wasDisabled;
    }
    LuMemoryDesktop& desktop = getMemoryDesktop();
    if (!sendAndCheck(*window, WM_CANCELMODE, 0, 0))
        return wasDisabled;
    window->style |= WS_DISABLED;
    if (desktop.focus == window)
        changeFocus(nullptr);
    if (findMemoryWindow(handle) && desktop.capture && isInside(desktop.capture, window))
        ReleaseCapture();
    if (findMemoryWindow(handle))
        sendMessage(*window, WM_ENABLE, FALSE, 0);
    return wasDisabled;
}

BOOL IsWindowEnabled(HWND handle) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    return window && !(window->style & WS_DISABLED);
}

BOOL IsWindowVisible(HWND handle) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    return window && isShown(*window);
}

bool showWindow(LuMemoryWindow& window, bool show, UINT flags) {
    const HWND handle = getHandle(&window);
    sendMessage(window, WM_SHOWWINDOW, show, 0);
    if (!findMemoryWindow(handle))
        return false;
    if (isChildStyle(window.style) && !isShown(*window.parent)) {
        window.style = show ? window.style | WS_VISIBLE : window.style & ~WS_VISIBLE;
        return true;
    }
    flags |= SWP_NOSIZE | SWP_NOMOVE | (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    WINDOWPOS position{handle, nullptr, 0, 0, 0, 0, flags};
    return placeWindow(window, position) && findMemoryWindow(handle);
}

BOOL ShowWindow(HWND handle, int command) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || isDesktopWindow(*window))
        return FALSE;
    const bool wasVisible = (window->style & WS_VISIBLE) != 0;
    const bool show = command != SW_HIDE;
    if (show == wasVisible)
        return wasVisible;
    // Here only the system menu minimises, and nothing maximises: to show is all that those commands do.
    const bool activates = command == SW_SHOW || command == SW_SHOWNORMAL || command == SW_RESTORE ||
                           command == SW_SHOWMAXIMIZED;
    const bool isChild = isChildStyle(window->style);
    UINT flags = 0;
    if (isChild || (show && !activates) || (!show && getMemoryDesktop().active != window))
        flags = SWP_NOACTIVATE | SWP_NOZORDER;
    if (!showWindow(*window, show, flags))
        return wasVisible;
    if (!show && !isChild && getMemoryDesktop().active == window)
        activateWindow(findNextActive(*window));
    else if (!show && getMemoryDesktop().focus == window)
        changeFocus(isChild && canHaveFocus(*window->parent) ? window->parent : nullptr);
    if (show && findMemoryWindow(handle) && window->needsSize) {
        window->needsSize = false;
        sendSize(*window);
        if (findMemoryWindow(handle))
            sendMove(*window);
    }
    return wasVisible;
}

BOOL UpdateWindow(HWND window) { return findMemoryWindowOrFail(window) != nullptr; }

BOOL InvalidateRect(HWND window, const RECT*, BOOL) { return !window || findMemoryWindowOrFail(window); }

BOOL RedrawWindow(HWND window, const RECT*, HRGN, UINT) { return !window || findMemoryWindowOrFail(window); }
