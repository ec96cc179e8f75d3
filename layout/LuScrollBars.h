// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"
#include "platform/win32/WindowSystem.h"

/// The two scroll bars of a window that holds a container's children.
struct LuScrollBars {
    enum Visibility { NEVER = 0, ALWAYS = 1, AUTO = 2 };

    int vShown = 0;
    int hShown = 0;

    /// Which bars are on, without a look at the room: those that always are.
    void setAlways(int vVisibility, int hVisibility);

    /// Switches AUTO bars on where the content needs more than the window has.
    void addNeeded(int vVisibility, int hVisibility, const LvVec2i32& needed, const LvVec2i32& room);

    /// Gives each bar that is on its range and page and shows or hides both. `thickness` is what the other
    /// bar, where it is on, takes. `startsAtZero` moves the bars back to their start.
    void show(HWND window, const LvVec2i32& needed, const LvVec2i32& room, int thickness,
              bool startsAtZero) const;

    /// Moves freshly placed children to where the bars stand.
    void scrollToPosition(HWND window, bool updates) const;

    /// The size of a window on the screen; (0, 0) for none.
    static LvVec2i32 getWindowSize(HWND window);

    /// What WM_HSCROLL (`bar` SB_HORZ) and WM_VSCROLL (SB_VERT) do to a window.
    static void scroll(HWND window, int bar, WPARAM wParam);
};
