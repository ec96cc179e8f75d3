// SPDX-License-Identifier: MIT
#include "controls/LuNumericFilter.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/random/RandomPanel.h"
#include "tests/random/RandomSlider.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int THUMB_WIDTH = 10;
constexpr float KEY_STEP = 0.01F;

} // namespace

// In the windows

bool RandomSlider::isOperated(HWND window) const {
    return window && (window == m_slider.getSliderWidget() || window == m_slider.getToggleWidget() ||
                      window == m_slider.getEditWidget());
}

void RandomSlider::windowMessage(const RandomMessage& sent) {
    const bool isHeld = sent.window == m_slider.getToggleWidget() && GetCapture() == sent.window &&
                        (SendMessageA(sent.window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
    const bool isKey = sent.message == WM_KEYUP && sent.wParam == VK_SPACE;
    m_isToggling = isHeld && (isKey || (sent.message == WM_LBUTTONUP && sent.isInside));
}

void RandomSlider::windowMessageDone(const RandomMessage& sent) {
    if (m_isToggling) {
        m_isToggling = false;
        turnCheck(!m_isChecked);
    } else if (sent.window == m_slider.getSliderWidget()) {
        sentToThumb(sent);
    } else if (sent.window == m_slider.getEditWidget()) {
        sentToBox(sent);
    }
}

void RandomSlider::sentToThumb(const RandomMessage& sent) {
    const bool isArrow = sent.wParam == VK_LEFT || sent.wParam == VK_RIGHT;
    if (sent.message == WM_LBUTTONDOWN) {
        RECT room{};
        GetClientRect(sent.window, &room);
        const float travel = static_cast<float>(std::max<int>(room.right - THUMB_WIDTH, 0));
        const int start = static_cast<int>(std::lround(m_thumb * travel));
        const int end = std::min<int>(start + THUMB_WIDTH, room.right);
        const bool isOnThumb = sent.x >= start && sent.x < end;
        m_grip = isOnThumb ? sent.x - start : THUMB_WIDTH / 2;
    }
    if (sent.message == WM_KEYDOWN && isArrow) {
        m_position = (sent.wParam == VK_LEFT ? -KEY_STEP : KEY_STEP) + m_thumb;
        moveThumb();
        moveCursor();
    } else if (sent.message == WM_KEYUP && isArrow) {
        m_position = m_thumb;
        takeNumber();
        showText(true);
    } else if (m_slider.getValue() != m_thumb) {
        dragThumb(sent.x);
    }
}

void RandomSlider::sentToBox(const RandomMessage& sent) {
    if (sent.message == WM_CHAR && sent.wParam == VK_RETURN) {
        enter(m_boxText);
    } else if (sent.message == WM_CHAR || (sent.message == WM_KEYDOWN && sent.wParam == VK_DELETE)) {
        // Where the caret is, is the box's own business.
        const std::string typed = LuWin::getWindowText(sent.window).str();
        EXPECT_TRUE(typed.empty() || typed == m_boxText || luIsNumber(typed)) << typed;
        m_boxText = typed;
    }
}

void RandomSlider::dragThumb(int x) {
    RECT room{};
    GetClientRect(m_slider.getSliderWidget(), &room);
    const float travel = static_cast<float>(room.right - THUMB_WIDTH);
    const float expected = std::clamp(static_cast<float>(x - m_grip) / travel, 0.0F, 1.0F);
    m_thumb = m_slider.getValue();
    EXPECT_FLOAT_EQ(m_thumb, expected) << getName();
    m_position = m_thumb;
    if (m_slider.continuousTrigger.getValue())
        takeNumber();
    showText(true);
    moveCursor();
}

void RandomSlider::finishDrag() {
    for (int i = 0; i < m_finishCalls; ++i) {
        m_position = m_thumb;
        takeNumber();
        showText(true);
    }
}

void RandomSlider::captureLeft(HWND window) {
    if (window == m_sliderWindow && IsWindow(window))
        finishDrag();
}

void RandomSlider::focusLeft(HWND window) {
    if (window == m_editWindow)
        enter(m_boxText);
}

void RandomSlider::enter(const LvString& text) {
    const bool isWrittenAnew = takeEntry(text);
    showText(isWrittenAnew);
    moveThumb();
    moveCursor();
    takeNumber();
}

// In the scene

void RandomSlider::scenePressed(const LuPath& path) {
    const auto holds = [&](const char* part) { return path.containsNode(m_slider.getPart(part, false)); };
    m_panel.setActive(&m_slider);
    m_hold = holds("checkSep") ? Hold::CHECK : holds("cursorSep") ? Hold::CURSOR : Hold::NOTHING;
    m_pressPlace = m_panel.getPointer();
    m_pressCursor = m_cursor;
    m_pressBox = m_panel.getSceneBox(m_slider.getPart("frameSep", false));
    if (holds("edtSwtch"))
        m_isEditing = true;
    else if (holds("frameSep"))
        jumpTo(m_pressPlace);
}

/// The cursor jumps to where the frame was pressed.
void RandomSlider::jumpTo(const LvVec3f& place) {
    m_position = getActualPosition();
    const float travel = m_pressBox.max.x - m_pressBox.min.x - CURSOR_SIZE;
    if (getFrameLength() > CURSOR_SIZE) {
        const float expected = std::clamp(place.x - m_pressBox.min.x - CURSOR_SIZE / 2, 0.0F, travel);
        EXPECT_NEAR(m_position * travel, expected, 1.01) << getName();
    }
    moveCursor();
    takeNumber();
    moveThumb();
    showText(hasWindows());
}

void RandomSlider::sceneMoved() {
    if (m_hold != Hold::CURSOR)
        return;
    m_panel.setActive(&m_slider);
    m_panel.setActive(nullptr);
    m_position = getActualPosition();
    const LvBox3f box = m_panel.getSceneBox(m_slider.getPart("frameSep", false));
    const float travel = box.max.x - box.min.x - CURSOR_SIZE;
    if (getFrameLength() > CURSOR_SIZE && box.min == m_pressBox.min && box.max == m_pressBox.max) {
        const float way = m_panel.getPointer().x - m_pressPlace.x;
        EXPECT_NEAR(m_position * travel, std::clamp(m_pressCursor + way, 0.0F, travel), 1.01) << getName();
    }
    moveCursor();
    if (m_slider.continuousTrigger.getValue())
        takeNumber();
    moveThumb();
    showText(hasWindows());
}

void RandomSlider::sceneReleased() {
    const Hold held = std::exchange(m_hold, Hold::NOTHING);
    if (held == Hold::CHECK) {
        turnCheck(!m_slider.continuousTrigger.getValue());
    } else if (held == Hold::CURSOR) {
        takeNumber();
        showText(hasWindows());
    }
}

void RandomSlider::sceneKey(LuKeyboardEvent::Key key) {
    // A container that is hidden hides what is in it one by one.
    const bool isReached = m_isEditing && m_slider.valueVisible.getValue() && m_isShownInScene;
    if (!isReached)
        return;
    if (key == LuKeyboardEvent::RETURN)
        enterInScene();
    else if (key == LuKeyboardEvent::BACKSPACE)
        m_sceneText.resize(m_sceneText.size() - (m_sceneText.empty() ? 0 : 1));
    else
        typeKey(key, m_sceneText);
}
