// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>

namespace {

bool hasCaption(DWORD style) { return (style & WS_CAPTION) == WS_CAPTION; }

int getCaptionHeight(DWORD exStyle) {
    return GetSystemMetrics(exStyle & WS_EX_TOOLWINDOW ? SM_CYSMCAPTION : SM_CYCAPTION);
}

/// Width of the frame alone, without caption, client edge and scroll bars.
int getBorder(DWORD style, DWORD exStyle) {
    int border = 0;
    if ((exStyle & (WS_EX_STATICEDGE | WS_EX_DLGMODALFRAME)) == WS_EX_STATICEDGE)
        border = 1;
    else if ((exStyle & WS_EX_DLGMODALFRAME) || (style & (WS_THICKFRAME | WS_DLGFRAME)))
        border = 2;
    if (style & WS_THICKFRAME)
        border += GetSystemMetrics(SM_CXFRAME) - GetSystemMetrics(SM_CXDLGFRAME);
    if ((style & (WS_BORDER | WS_DLGFRAME)) || (exStyle & WS_EX_DLGMODALFRAME))
        ++border;
    return border;
}

int getClientEdge(DWORD exStyle) { return exStyle & WS_EX_CLIENTEDGE ? GetSystemMetrics(SM_CXEDGE) : 0; }

} // namespace

DWORD fixExStyle(DWORD style, DWORD exStyle) {
    const bool isOverlapped = !(style & (WS_CHILD | WS_POPUP));
    const bool hasEdge = (exStyle & WS_EX_DLGMODALFRAME) || isOverlapped ||
                         (!(exStyle & WS_EX_STATICEDGE) && (style & (WS_DLGFRAME | WS_THICKFRAME)));
    return hasEdge ? exStyle | WS_EX_WINDOWEDGE : exStyle & ~WS_EX_WINDOWEDGE;
}

void subtractFrame(const LuMemoryWindow& window, RECT& rect) {
    if (window.style & WS_MINIMIZE) {
        rect.right = rect.left;
        rect.bottom = rect.top;
        return;
    }
    constexpr DWORD frames = WS_BORDER | WS_DLGFRAME | WS_THICKFRAME | WS_HSCROLL | WS_VSCROLL;
    constexpr DWORD edges = WS_EX_STATICEDGE | WS_EX_DLGMODALFRAME | WS_EX_CLIENTEDGE;
    const bool isPlain = !(window.style & frames) && !(window.exStyle & edges);
    if (isPlain && rect.left <= rect.right && rect.top <= rect.bottom)
        return;
    const int border = getBorder(window.style, window.exStyle) + getClientEdge(window.exStyle);
    rect.left += border;
    rect.right -= border;
    rect.top += border + (hasCaption(window.style) ? getCaptionHeight(window.exStyle) : 0);
    rect.bottom -= border;
    if ((window.style & WS_HSCROLL) && rect.bottom - rect.top > GetSystemMetrics(SM_CYHSCROLL))
        rect.bottom -= GetSystemMetrics(SM_CYHSCROLL);
    if ((window.style & WS_VSCROLL) && rect.right - rect.left >= GetSystemMetrics(SM_CXVSCROLL))
        rect.right -= GetSystemMetrics(SM_CXVSCROLL);
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
}

BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL hasMenu, DWORD exStyle) {
    if (!rect)
        return FALSE;
    const int border = getBorder(style, exStyle) + getClientEdge(exStyle);
    rect->left -= border;
    rect->right += border;
    rect->top -= border + (hasCaption(style) ? getCaptionHeight(exStyle) : 0);
    rect->bottom += border;
    if (hasMenu)
        rect->top -= GetSystemMetrics(SM_CYMENU);
    return TRUE;
}

bool hasSizeLimits(const LuMemoryWindow& window) {
    return (window.style & WS_THICKFRAME) || !(window.style & (WS_POPUP | WS_CHILD));
}

MINMAXINFO getMinMaxInfo(LuMemoryWindow& window) {
    const int frame =
        getBorder(window.style & ~WS_BORDER, window.exStyle) + (hasCaption(window.style) ? 1 : 0);
    const int border = hasCaption(window.style) ? getBorder(window.style, window.exStyle) : frame;
    const LONG width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
    MINMAXINFO info{};
    info.ptMaxSize = {width + 2 * border, height + 2 * border};
    info.ptMaxPosition = {-border, -border};
    info.ptMinTrackSize = {GetSystemMetrics(SM_CXMINTRACK), GetSystemMetrics(SM_CYMINTRACK)};
    info.ptMaxTrackSize = {GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)};
    if (!hasCaption(window.style))
        info.ptMinTrackSize = {2 * border, 2 * border};
    sendMessage(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    info.ptMaxTrackSize.x = std::max(info.ptMaxTrackSize.x, info.ptMinTrackSize.x);
    info.ptMaxTrackSize.y = std::max(info.ptMaxTrackSize.y, info.ptMinTrackSize.y);
    return info;
}

LRESULT hitTest(const LuMemoryWindow& window, LPARAM lParam) {
    const POINT origin = window.parent ? getClientOrigin(*window.parent) : POINT{0, 0};
    const LONG x = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lParam))) - origin.x;
    const LONG y = static_cast<SHORT>(HIWORD(static_cast<DWORD_PTR>(lParam))) - origin.y;
    auto contains = [x, y](const RECT& rect) {
        return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
    };
    if (!contains(window.rect))
        return HTNOWHERE;
    if (contains(window.client))
        return HTCLIENT;
    if ((window.style & WS_VSCROLL) && x >= window.client.right && y >= window.client.top &&
        y < window.client.bottom)
        return HTVSCROLL;
    if ((window.style & WS_HSCROLL) && y >= window.client.bottom && x >= window.client.left &&
        x < window.client.right)
        return HTHSCROLL;
    const int border = getBorder(window.style, window.exStyle);
    if (hasCaption(window.style) && y >= window.rect.top + border && y < window.client.top &&
        x >= window.rect.left + border && x < window.rect.right - border)
        return HTCAPTION;
    return HTBORDER;
}

BOOL GetTitleBarInfo(HWND handle, TITLEBARINFO* info) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return FALSE;
    if (!info || info->cbSize != sizeof(TITLEBARINFO)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const int border = getBorder(window->style, window->exStyle);
    RECT bar = window->rect;
    MapWindowPoints(getHandle(window->parent), nullptr, reinterpret_cast<POINT*>(&bar), 2);
    bar.left += border;
    bar.right -= border;
    bar.top += border;
    bar.bottom = bar.top + (hasCaption(window->style) ? getCaptionHeight(window->exStyle) : 0);
    const DWORD buttons = window->style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
    const bool hasMenu = (window->style & WS_SYSMENU) != 0;
    // The frame draws the program's icon there.
    if (hasCaption(window->style) && !(window->exStyle & (WS_EX_TOOLWINDOW | WS_EX_DLGMODALFRAME)))
        bar.left += GetSystemMetrics(SM_CXSIZE);
    info->rcTitleBar = bar;
    for (DWORD& state : info->rgstate)
        state = 0;
    info->rgstate[0] = STATE_SYSTEM_FOCUSABLE;
    if (!hasCaption(window->style)) {
        info->rgstate[0] |= STATE_SYSTEM_INVISIBLE;
        return TRUE;
    }
    info->rgstate[1] = STATE_SYSTEM_INVISIBLE;
    if (!hasMenu) {
        for (int i = 2; i <= CCHILDREN_TITLEBAR; ++i)
            info->rgstate[i] = STATE_SYSTEM_INVISIBLE;
        return TRUE;
    }
    const DWORD missing = buttons ? STATE_SYSTEM_UNAVAILABLE : STATE_SYSTEM_INVISIBLE;
    info->rgstate[2] = buttons & WS_MINIMIZEBOX ? 0 : missing;
    info->rgstate[3] = buttons & WS_MAXIMIZEBOX ? 0 : missing;
    info->rgstate[4] = STATE_SYSTEM_INVISIBLE;
    return TRUE;
}
