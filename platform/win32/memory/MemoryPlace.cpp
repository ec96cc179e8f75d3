// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>

namespace {

// Two flags of WM_WINDOWPOSCHANGED that the public names leave out: WM_MOVE and WM_SIZE follow from them.
constexpr UINT noClientSize = 0x0800, noClientMove = 0x1000;

constexpr UINT noChange = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER;
constexpr UINT changeMask = noChange | SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW;

constexpr int largestSize = 32767;
constexpr int firstPlace = -32768, lastPlace = 32767;

LPARAM packPoint(LONG x, LONG y) { return MAKELPARAM(x, y); }

/// The window that `window` is to stand below; null for the top. False if nothing is to change.
bool findPlaceInOrder(LuMemoryWindow& window, HWND insertAfter, LuMemoryWindow*& after) {
    after = nullptr;
    if (insertAfter == HWND_BOTTOM) {
        after = window.parent->lastChild == &window ? window.above : window.parent->lastChild;
        return window.below != nullptr;
    }
    if (insertAfter == HWND_TOP || insertAfter == HWND_TOPMOST || insertAfter == HWND_NOTOPMOST)
        return window.above != nullptr;
    after = findMemoryWindow(insertAfter);
    if (!after || after == &window || after->parent != window.parent) {
        after = nullptr;
        return false;
    }
    return window.above != after;
}

/// Leaves in `position` only what is really to change.
void reduce(LuMemoryWindow& window, WINDOWPOS& position) {
    const RECT& rect = window.rect;
    position.cx = std::clamp(position.cx, 0, largestSize);
    position.cy = std::clamp(position.cy, 0, largestSize);
    position.x = std::clamp(position.x, firstPlace, lastPlace);
    position.y = std::clamp(position.y, firstPlace, lastPlace);
    if (position.flags & SWP_NOSIZE) {
        position.cx = rect.right - rect.left;
        position.cy = rect.bottom - rect.top;
    }
    if (position.flags & SWP_NOMOVE) {
        position.x = rect.left;
        position.y = rect.top;
    }
    if (position.cx == rect.right - rect.left && position.cy == rect.bottom - rect.top)
        position.flags |= SWP_NOSIZE;
    if (position.x == rect.left && position.y == rect.top)
        position.flags |= SWP_NOMOVE;
    if (window.style & WS_VISIBLE) {
        position.flags &= ~SWP_SHOWWINDOW;
    } else {
        position.flags &= ~SWP_HIDEWINDOW;
        if (!(position.flags & SWP_SHOWWINDOW))
            position.flags |= SWP_NOREDRAW;
    }
}

void applyOrder(LuMemoryWindow& window, WINDOWPOS& position) {
    if (position.flags & SWP_NOZORDER)
        return;
    if (!isChildStyle(window.style)) {
        if (position.hwndInsertAfter == HWND_TOPMOST)
            window.exStyle |= WS_EX_TOPMOST;
        else if (position.hwndInsertAfter == HWND_NOTOPMOST)
            window.exStyle &= ~WS_EX_TOPMOST;
    }
    LuMemoryWindow* after;
    if (findPlaceInOrder(window, position.hwndInsertAfter, after)) {
        unlinkMemoryWindow(window);
        linkMemoryWindow(window, after);
    } else {
        position.flags |= SWP_NOZORDER;
    }
}

/// True for a window with a procedure of ours, not subclassed, which does nothing of its own with the
/// messages of a placement. Nobody could see them, and a layout would send thousands.
bool isPlacedSilently(const LuMemoryWindow& window) {
    return window.windowClass->isBuiltIn && window.procedure == window.windowClass->description.lpfnWndProc &&
           isChildStyle(window.style);
}

RECT getClientFor(const LuMemoryWindow& window, RECT rect) {
    subtractFrame(window, rect);
    return rect;
}

} // namespace

bool calculateClient(LuMemoryWindow& window, const RECT& rect, WINDOWPOS* position, RECT& client) {
    if (!position) {
        // At the creation the rectangle is in screen coordinates.
        const POINT origin = getClientOrigin(*window.parent);
        RECT asked = {rect.left + origin.x, rect.top + origin.y, rect.right + origin.x,
                      rect.bottom + origin.y};
        if (!sendAndCheck(window, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&asked)))
            return false;
        client = {asked.left - origin.x, asked.top - origin.y, asked.right - origin.x,
                  asked.bottom - origin.y};
        return true;
    }
    NCCALCSIZE_PARAMS parameters{};
    parameters.rgrc[0] = rect;
    parameters.rgrc[1] = window.rect;
    parameters.rgrc[2] = window.client;
    parameters.lppos = position;
    if (!sendAndCheck(window, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&parameters)))
        return false;
    client = parameters.rgrc[0];
    return true;
}

namespace {

/// The messages after a placement. False when the window has ended meanwhile.
bool tellPlaced(LuMemoryWindow& window, WINDOWPOS& position) {
    const HWND handle = getHandle(&window);
    if (!(position.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))) {
        if (isChildStyle(window.style))
            sendMessage(window, WM_CHILDACTIVATE, 0, 0);
        else
            activateWindow(&window);
        if (getHandle(&window) != handle)
            return false;
    }
    if ((position.flags & changeMask) == noChange)
        return true;
    return sendAndCheck(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
}

} // namespace

void sendSize(LuMemoryWindow& window) {
    sendMessage(
        window, WM_SIZE, window.style & WS_MINIMIZE ? SIZE_MINIMIZED : SIZE_RESTORED,
        packPoint(window.client.right - window.client.left, window.client.bottom - window.client.top));
}

void sendMove(LuMemoryWindow& window) {
    sendMessage(window, WM_MOVE, 0, packPoint(window.client.left, window.client.top));
}

bool placeWindow(LuMemoryWindow& window, WINDOWPOS& position) {
    const auto lParam = reinterpret_cast<LPARAM>(&position);
    const bool isSilent = isPlacedSilently(window);
    if (!isSilent && !(position.flags & SWP_NOSENDCHANGING) &&
        !sendAndCheck(window, WM_WINDOWPOSCHANGING, 0, lParam))
        return false;
    reduce(window, position);
    const RECT rect{position.x, position.y, position.x + position.cx, position.y + position.cy};
    RECT client = window.client;
    if ((position.flags & (SWP_NOSIZE | SWP_FRAMECHANGED)) != SWP_NOSIZE) {
        if (isSilent)
            client = getClientFor(window, rect);
        else if (!calculateClient(window, rect, &position, client))
            return false;
    } else {
        const LONG dx = rect.left - window.rect.left, dy = rect.top - window.rect.top;
        client = {client.left + dx, client.top + dy, client.right + dx, client.bottom + dy};
    }
    if (client.left == window.client.left && client.top == window.client.top)
        position.flags |= noClientMove;
    if (client.right - client.left == window.client.right - window.client.left &&
        client.bottom - client.top == window.client.bottom - window.client.top)
        position.flags |= noClientSize;
    window.rect = rect;
    window.client = client;
    applyOrder(window, position);
    if (position.flags & SWP_SHOWWINDOW)
        window.style |= WS_VISIBLE;
    else if (position.flags & SWP_HIDEWINDOW)
        window.style &= ~WS_VISIBLE;
    return isSilent || tellPlaced(window, position);
}

BOOL SetWindowPos(HWND handle, HWND insertAfter, int x, int y, int width, int height, UINT flags) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || isDesktopWindow(*window))
        return FALSE;
    if (!(flags & SWP_NOZORDER) && insertAfter != HWND_TOP && insertAfter != HWND_BOTTOM &&
        insertAfter != HWND_TOPMOST && insertAfter != HWND_NOTOPMOST && !findMemoryWindowOrFail(insertAfter))
        return FALSE;
    WINDOWPOS position{handle, insertAfter, x, y, width, height, flags};
    placeWindow(*window, position);
    return TRUE;
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
    const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW);
    return SetWindowPos(window, nullptr, x, y, width, height, flags);
}

BOOL GetWindowRect(HWND handle, RECT* rect) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || !rect)
        return FALSE;
    const POINT origin = window->parent ? getClientOrigin(*window->parent) : POINT{0, 0};
    *rect = {window->rect.left + origin.x, window->rect.top + origin.y, window->rect.right + origin.x,
             window->rect.bottom + origin.y};
    return TRUE;
}

BOOL GetClientRect(HWND handle, RECT* rect) {
    const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || !rect)
        return FALSE;
    *rect = {0, 0, window->client.right - window->client.left, window->client.bottom - window->client.top};
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count) {
    LuMemoryDesktop& desktop = getMemoryDesktop();
    const LuMemoryWindow* source = from ? findMemoryWindowOrFail(from) : desktop.root;
    const LuMemoryWindow* target = to ? findMemoryWindowOrFail(to) : desktop.root;
    if (!source || !target)
        return 0;
    const POINT a = getClientOrigin(*source), b = getClientOrigin(*target);
    const LONG dx = a.x - b.x, dy = a.y - b.y;
    for (UINT i = 0; i < count; ++i) {
        points[i].x += dx;
        points[i].y += dy;
    }
    return MAKELONG(dx, dy);
}

BOOL ClientToScreen(HWND window, POINT* point) {
    if (!findMemoryWindowOrFail(window) || !point)
        return FALSE;
    MapWindowPoints(window, nullptr, point, 1);
    return TRUE;
}

BOOL ScreenToClient(HWND window, POINT* point) {
    if (!findMemoryWindowOrFail(window) || !point)
        return FALSE;
    MapWindowPoints(nullptr, window, point, 1);
    return TRUE;
}
