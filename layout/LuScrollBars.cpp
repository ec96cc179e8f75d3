// SPDX-License-Identifier: MIT
#include "layout/LuScrollBars.h"

#include "layout/LuSizes.h"

#include <algorithm>

namespace {

constexpr UINT SIF_EVERYTHING = SIF_ALL | SIF_DISABLENOSCROLL; // 31

SCROLLINFO getInfo(HWND window, int bar, UINT mask) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = mask;
    GetScrollInfo(window, bar, &info);
    return info;
}

void setRange(HWND window, int bar, int needed, int room, bool startsAtZero) {
    SCROLLINFO info = getInfo(window, bar, SIF_EVERYTHING);
    info.nMin = 0;
    info.nMax = needed;
    info.nPage = static_cast<UINT>(std::max(room, 0));
    info.nTrackPos = 0;
    if (startsAtZero)
        info.nPos = 0;
    SetScrollInfo(window, bar, &info, TRUE);
}

int getMove(const SCROLLINFO& info, WORD code) {
    const std::int64_t page = std::max<std::int64_t>(static_cast<std::int64_t>(info.nPage) - 1, 0);
    switch (code) {
    case SB_LINEUP:
        return luAddSize(info.nPos, -1);
    case SB_LINEDOWN:
        return luAddSize(info.nPos, 1);
    case SB_PAGEUP:
        return luAddSize(info.nPos, -page);
    case SB_PAGEDOWN:
        return luAddSize(info.nPos, page);
    case SB_THUMBTRACK:
        return info.nTrackPos;
    default:
        return info.nPos;
    }
}

} // namespace

void LuScrollBars::setAlways(int vVisibility, int hVisibility) {
    vShown = vVisibility == ALWAYS ? 1 : 0;
    hShown = hVisibility == ALWAYS ? 1 : 0;
}

void LuScrollBars::addNeeded(int vVisibility, int hVisibility, const LvVec2i32& needed,
                             const LvVec2i32& room) {
    if (vVisibility == AUTO && needed.y > room.y)
        vShown = 1;
    if (hVisibility == AUTO && needed.x > room.x)
        hShown = 1;
}

void LuScrollBars::show(HWND window, const LvVec2i32& needed, const LvVec2i32& room, int thickness,
                        bool startsAtZero) const {
    if (!IsWindow(window))
        return;
    if (vShown)
        setRange(window, SB_VERT, luAddSize(needed.y, hShown ? thickness : 0), room.y, startsAtZero);
    if (hShown)
        setRange(window, SB_HORZ, luAddSize(needed.x, vShown ? thickness : 0), room.x, startsAtZero);
    ShowScrollBar(window, SB_VERT, vShown);
    ShowScrollBar(window, SB_HORZ, hShown);
}

void LuScrollBars::scrollToPosition(HWND window, bool updates) const {
    for (const int bar : {SB_VERT, SB_HORZ}) {
        if (!(bar == SB_VERT ? vShown : hShown) || !IsWindow(window))
            continue;
        const int move = luClampSize(-std::int64_t{getInfo(window, bar, SIF_POS).nPos});
        ScrollWindow(window, bar == SB_HORZ ? move : 0, bar == SB_VERT ? move : 0, nullptr, nullptr);
        if (updates)
            UpdateWindow(window);
    }
}

LvVec2i32 LuScrollBars::getWindowSize(HWND window) {
    RECT rect{};
    if (!GetWindowRect(window, &rect))
        return {};
    return {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

void LuScrollBars::scroll(HWND window, int bar, WPARAM wParam) {
    SCROLLINFO info = getInfo(window, bar, SIF_ALL);
    const int before = info.nPos;
    info.nPos = getMove(info, LOWORD(wParam));
    SetScrollInfo(window, bar, &info, TRUE);
    info = getInfo(window, bar, SIF_ALL);
    if (info.nPos == before)
        return;
    const int move = luClampSize(std::int64_t{before} - info.nPos);
    ScrollWindow(window, bar == SB_HORZ ? move : 0, bar == SB_VERT ? move : 0, nullptr, nullptr);
}
