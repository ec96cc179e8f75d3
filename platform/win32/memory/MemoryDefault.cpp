// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>
#include <cstring>

namespace {

void limitToTrackSize(LuMemoryWindow& window, WINDOWPOS& position) {
    if ((position.flags & SWP_NOSIZE) || !hasSizeLimits(window))
        return;
    const MINMAXINFO limits = getMinMaxInfo(window);
    position.cx = std::min<int>(position.cx, limits.ptMaxTrackSize.x);
    position.cy = std::min<int>(position.cy, limits.ptMaxTrackSize.y);
    if (window.style & WS_MINIMIZE)
        return;
    position.cx = std::max<int>(position.cx, limits.ptMinTrackSize.x);
    position.cy = std::max<int>(position.cy, limits.ptMinTrackSize.y);
}

void announceChange(LuMemoryWindow& window, const WINDOWPOS& position) {
    constexpr UINT noClientSize = 0x0800, noClientMove = 0x1000;
    const HWND handle = getHandle(&window);
    if (!(position.flags & noClientMove))
        sendMove(window);
    if (!(position.flags & noClientSize) && getHandle(&window) == handle)
        sendSize(window);
}

/// Makes the window a small bar at the lower left corner of the screen, or a window again.
void changeMinimized(LuMemoryWindow& window, bool isMinimized) {
    constexpr int barWidth = 160, barHeight = 24;
    if (isMinimized == ((window.style & WS_MINIMIZE) != 0))
        return;
    RECT place = window.normalRect;
    if (isMinimized) {
        const int bottom = GetSystemMetrics(SM_CYSCREEN);
        window.normalRect = window.rect;
        window.style |= WS_MINIMIZE;
        place = {0, bottom - barHeight, barWidth, bottom};
    } else {
        window.style &= ~WS_MINIMIZE;
    }
    const HWND handle = getHandle(&window);
    WINDOWPOS position{handle,
                       nullptr,
                       static_cast<int>(place.left),
                       static_cast<int>(place.top),
                       static_cast<int>(place.right - place.left),
                       static_cast<int>(place.bottom - place.top),
                       SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED};
    if (placeWindow(window, position) && !isMinimized)
        SetFocus(handle);
}

LRESULT handleSysCommand(LuMemoryWindow& window, WPARAM wParam) {
    constexpr WPARAM commandMask = 0xfff0;
    switch (wParam & commandMask) {
    case SC_CLOSE:
        sendMessage(window, WM_CLOSE, 0, 0);
        break;
    case SC_MINIMIZE:
        changeMinimized(window, true);
        break;
    case SC_RESTORE:
        changeMinimized(window, false);
        break;
    default:
        break;
    }
    return 0;
}

LRESULT handleCreation(LuMemoryWindow& window, LPARAM lParam) {
    const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    if (create && create->lpszName)
        window.text = widenAnsi(create->lpszName);
    return TRUE;
}

/// Apart from the frequent ones, which then need no room on the stack.
[[gnu::noinline]] LRESULT handleRareMessage(LuMemoryWindow& window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    const HWND handle = getHandle(&window);
    switch (message) {
    case WM_NCCREATE:
        return handleCreation(window, lParam);
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE)
            SetFocus(handle);
        return 0;
    case WM_NCACTIVATE:
    case WM_ERASEBKGND:
        return TRUE;
    case WM_CLOSE:
        DestroyWindow(handle);
        return 0;
    case WM_CANCELMODE:
        if (getMemoryDesktop().capture == &window)
            ReleaseCapture();
        return 0;
    case WM_SYSCOMMAND:
        return handleSysCommand(window, wParam);
    case WM_NCHITTEST:
        return hitTest(window, lParam);
    case WM_PARENTNOTIFY:
    case WM_MOUSEWHEEL:
    case WM_SETCURSOR:
        if (isChildStyle(window.style) && window.parent)
            return sendMessage(*window.parent, message, wParam, lParam);
        return 0;
    case WM_MOUSEACTIVATE:
        if (isChildStyle(window.style) && window.parent)
            if (const LRESULT answer = sendMessage(*window.parent, message, wParam, lParam))
                return answer;
        return MA_ACTIVATE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    default:
        return isTextMessage(message & ~wideTextFlag) ? handleText(window, message, wParam, lParam) : 0;
    }
}

} // namespace

LRESULT handleByDefault(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    // A layout sends these by the thousand, so they come first.
    switch (message) {
    case WM_MOVE:
    case WM_SIZE:
    case WM_CHILDACTIVATE:
        return 0;
    case WM_NCCALCSIZE:
        subtractFrame(window, *reinterpret_cast<RECT*>(lParam));
        return 0;
    case WM_WINDOWPOSCHANGING:
        limitToTrackSize(window, *reinterpret_cast<WINDOWPOS*>(lParam));
        return 0;
    case WM_WINDOWPOSCHANGED:
        announceChange(window, *reinterpret_cast<const WINDOWPOS*>(lParam));
        return 0;
    default:
        return handleRareMessage(window, message, wParam, lParam);
    }
}

LRESULT DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    LuMemoryWindow* window = findMemoryWindow(handle);
    return window ? handleByDefault(*window, message, wParam, lParam) : 0;
}
