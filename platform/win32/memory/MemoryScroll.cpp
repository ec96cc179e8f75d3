// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>

namespace {

LuMemoryScrollBar* findBar(HWND handle, int bar) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || (bar != SB_HORZ && bar != SB_VERT))
        return nullptr;
    return &window->scrollBars[static_cast<std::size_t>(bar)];
}

DWORD getBarStyle(int bar) { return bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL; }

/// Page and position within the range.
void clamp(LuMemoryScrollBar& bar) {
    const std::int64_t range = std::int64_t{bar.maximum} - bar.minimum + 1;
    if (bar.minimum > bar.maximum || range > 0x80000000LL)
        bar.minimum = bar.maximum = 0;
    const auto count = static_cast<UINT>(std::int64_t{bar.maximum} - bar.minimum + 1);
    bar.page = std::min(bar.page, count);
    const int last = static_cast<int>(bar.maximum - std::max<std::int64_t>(std::int64_t{bar.page} - 1, 0));
    bar.position = std::clamp(bar.position, bar.minimum, std::max(last, bar.minimum));
}

bool isNeeded(const LuMemoryScrollBar& bar) {
    return bar.minimum < bar.maximum - std::max<std::int64_t>(std::int64_t{bar.page} - 1, 0);
}

} // namespace

void drawScrollBars(LuMemoryWindow& window, DWORD style) {
    if (window.style == style)
        return;
    window.style = style;
    const UINT flags = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED;
    WINDOWPOS position{getHandle(&window), nullptr, 0, 0, 0, 0, flags};
    placeWindow(window, position);
}

int SetScrollInfo(HWND handle, int which, const SCROLLINFO* info, BOOL) {
    LuMemoryScrollBar* bar = findBar(handle, which);
    if (!bar || !info || (info->cbSize != sizeof(SCROLLINFO) && info->cbSize != sizeof(SCROLLINFO) - 4))
        return 0;
    bar->isKnown = true;
    if (info->fMask & SIF_RANGE) {
        bar->minimum = info->nMin;
        bar->maximum = info->nMax;
    }
    if (info->fMask & SIF_PAGE)
        bar->page = info->nPage;
    if (info->fMask & SIF_POS)
        bar->position = info->nPos;
    clamp(*bar);
    const int position = bar->position;
    if (info->fMask & (SIF_RANGE | SIF_PAGE)) {
        LuMemoryWindow& window = *findMemoryWindow(handle);
        const bool shown = isNeeded(*bar) || (info->fMask & SIF_DISABLENOSCROLL);
        drawScrollBars(window,
                       shown ? window.style | getBarStyle(which) : window.style & ~getBarStyle(which));
    }
    return position;
}

BOOL GetScrollInfo(HWND handle, int which, SCROLLINFO* info) {
    const LuMemoryScrollBar* bar = findBar(handle, which);
    if (!bar || !info || (info->cbSize != sizeof(SCROLLINFO) && info->cbSize != sizeof(SCROLLINFO) - 4))
        return FALSE;
    if (!bar->isKnown || (info->fMask & ~UINT{SIF_ALL | SIF_DISABLENOSCROLL}))
        return FALSE;
    if (info->fMask & SIF_RANGE) {
        info->nMin = bar->minimum;
        info->nMax = bar->maximum;
    }
    if (info->fMask & SIF_PAGE)
        info->nPage = bar->page;
    if (info->fMask & SIF_POS)
        info->nPos = bar->position;
    // There is no thumb that a user could hold: it stands where the position is.
    if ((info->fMask & SIF_TRACKPOS) && info->cbSize == sizeof(SCROLLINFO))
        info->nTrackPos = bar->position;
    return TRUE;
}

int SetScrollPos(HWND window, int bar, int position, BOOL redraw) {
    const int previous = GetScrollPos(window, bar);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = position;
    SetScrollInfo(window, bar, &info, redraw);
    return previous;
}

int GetScrollPos(HWND window, int bar) {
    const LuMemoryScrollBar* found = findBar(window, bar);
    return found ? found->position : 0;
}

BOOL SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw) {
    if (!findBar(window, bar))
        return FALSE;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE;
    info.nMin = minimum;
    info.nMax = maximum;
    SetScrollInfo(window, bar, &info, redraw);
    return TRUE;
}

BOOL GetScrollRange(HWND window, int bar, int* minimum, int* maximum) {
    const LuMemoryScrollBar* found = findBar(window, bar);
    if (minimum)
        *minimum = found && found->isKnown ? found->minimum : 0;
    if (maximum)
        *maximum = found && found->isKnown ? found->maximum : 0;
    return found != nullptr;
}

BOOL ShowScrollBar(HWND handle, int bar, BOOL show) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return FALSE;
    DWORD bars = 0;
    if (bar == SB_HORZ || bar == SB_BOTH)
        bars |= WS_HSCROLL;
    if (bar == SB_VERT || bar == SB_BOTH)
        bars |= WS_VSCROLL;
    drawScrollBars(*window, show ? window->style | bars : window->style & ~bars);
    return TRUE;
}

BOOL ScrollWindow(HWND handle, int dx, int dy, const RECT* rect, const RECT*) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window || !isShown(*window))
        return FALSE;
    // A rectangle limits the scrolling to pixels, and there are none.
    if (rect || (dx == 0 && dy == 0))
        return TRUE;
    const UINT flags = SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_DEFERERASE;
    LuMemoryWindow* child = window->firstChild;
    while (child) {
        const HWND childHandle = getHandle(child);
        const int x = addPixels(child->rect.left, dx), y = addPixels(child->rect.top, dy);
        WINDOWPOS position{childHandle, nullptr, x, y, 0, 0, flags};
        placeWindow(*child, position);
        if (!findMemoryWindow(handle))
            return TRUE;
        child = findMemoryWindow(childHandle) ? child->below : nullptr;
    }
    return TRUE;
}
