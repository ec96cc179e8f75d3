// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/win/LuWinGDIWidget.h"

/// A corner-to-corner rectangle in pixels of the slider's window, y down; both ends belong to it.
struct LuWinSliderRectangle {
    short x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

/// Draws the thumb, in relief, over the pixels from (x1, y1) to (x2, y2), into the current drawing of a
/// slider.
void LuDrawThumbUIRegion(short x1, short y1, short x2, short y2);

/// A slider window: a bar with a thumb, whose value goes from 0 at the left end to 1 at the right end.
///
/// The user drags the thumb, which holds the mouse until the release, or presses on the bar, which brings the
/// thumb there and goes on as a drag. The window takes the focus at a press, and shows the focus and whether
/// it is enabled. Arrow keys are the business of who uses the slider.
class LuWinSlider : public LuWinGDIWidget {
public:
    using Callback = void (*)(void* data, float value);

    /// `buildNow` makes the window at once; `notifies` is 0 for a slider that never calls back.
    LuWinSlider(HWND parent, const char* name, int notifies, int buildNow);
    ~LuWinSlider() override;

    /// Makes the window, at (0, 0) and without a size; null, with a message, when that fails.
    HWND buildWidget(HWND parent);

    /// The position of the thumb, from 0 to 1.
    float getValue() const { return m_value; }

    /// Moves the thumb; a value beyond an end, or none at all, gives the end or 0. `redraws` 0 leaves the
    /// window as it looks until it is drawn anew. No callback is called.
    void setValue(float value, int redraws);

    /// Called at each motion of the thumb by the user, and at the end of it. `data` stays the caller's. What
    /// has been added twice is called twice; removeFinishCallback takes away the first that is equal.
    void addValueChangedCallback(Callback function, void* data);
    void addFinishCallback(Callback function, void* data);
    void removeFinishCallback(Callback function, void* data);

    LuWinSliderRectangle getBarRectangle() const;
    LuWinSliderRectangle getThumbRectangle() const;
};
