// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/win/LuWinGDIWidget.h"

#include <vector>

/// A corner-to-corner rectangle in pixels of the slider's window, y down; both ends belong to it.
struct LuWinSliderRectangle {
    short x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

/// Draws the thumb, in relief, over the pixels from (x1, y1) to (x2, y2), into the current drawing of a
/// slider; it looks as that slider's state asks for: enabled or not, with the focus or not.
void LuDrawThumbUIRegion(short x1, short y1, short x2, short y2);

/// A slider window: a bar with a thumb, whose value goes from 0 at the left end to 1 at the right end.
///
/// The user drags the thumb, which holds the mouse until the release, or presses on the bar, which brings the
/// thumb there and goes on as a drag. A drag also ends when the mouse is taken away. The window takes the
/// focus at a press, and shows the focus and whether it is enabled. Arrow keys are the business of who uses
/// the slider.
///
/// A callback may end the slider, its window, or both.
class LuWinSlider : public LuWinGDIWidget {
public:
    using Callback = void (*)(void* data, float value);

    /// `buildNow` makes the window at once, and makes it the base widget; `notifies` is 0 for a slider that
    /// never calls back.
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

protected:
    /// The drawing, between the begin and the end of the canvas: the bar with the thumb, which ends with a
    /// flush; and then the marks that the slider has beside its bar.
    virtual void drawSlider();
    virtual void drawMarks();

    const char* getDefaultWidgetName() const override { return "LuWinSlider"; }
    void onExpose() override;
    void exposePlain(HDC dc) override;
    LRESULT processEvent(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    struct Listener {
        Callback function;
        void* data;
        friend bool operator==(const Listener&, const Listener&) = default;
    };
    using Listeners = std::vector<Listener>;

    void press(int x);
    bool dragTo(int x);
    void release(int x);
    void finishDrag();
    bool call(const Listeners& listeners);
    void getClientSize(int& width, int& height) const;

    bool m_notifies;
    float m_value = 0;
    bool m_isDragging = false;
    int m_grip = 0;     ///< Pixels from the thumb's left edge to the mouse that holds it.
    int m_pointerX = 0; ///< Where the mouse was last.
    Listeners m_valueChanged;
    Listeners m_finish;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true); ///< Gone with the slider.
};
