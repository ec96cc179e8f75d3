// SPDX-License-Identifier: MIT
#include "tests/random/RandomSlider.h"

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/random/RandomPanel.h"
#include "tests/random/RandomTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

struct OpenPosition : LuDialogSlider {
    static float get(const LuDialogSlider& slider) { return slider.*(&OpenPosition::m_normalizedValue); }
};

} // namespace

float RandomSlider::getActualPosition() const { return OpenPosition::get(m_slider); }

// What becomes of a position

void RandomSlider::showValue() {
    showText(hasWindows());
    moveThumb();
    moveCursor();
}

void RandomSlider::showText(bool isInWindows) {
    if (isInWindows)
        m_boxText = printInBox();
    if (m_isSceneBuilt)
        m_sceneText = printInScene();
}

void RandomSlider::moveThumb() { m_thumb = m_position > 0 ? std::min(m_position, 1.0F) : 0.0F; }

/// How far that is depends on the size that the frame has after the action.
void RandomSlider::moveCursor() {
    m_cursorPosition = m_position;
    m_isCursorMoved = true;
}

/// By the user, in one of the renditions.
void RandomSlider::turnCheck(bool isOn) {
    m_isChecked = isOn;
    m_checkSwitch = isOn ? 1 : 0;
    m_finishCalls = isOn ? std::max(m_finishCalls - 1, 0) : m_finishCalls + 1;
}

// Builds

void RandomSlider::laidOut() {
    m_isLengthOld = false;
    moveThumb();
    moveCursor();
}

void RandomSlider::windowsBuilt() {
    RandomComponent::windowsBuilt();
    laidOut();
    m_boxText = printInBox();
    m_windowLabel = convertRandomText(m_slider.label.getValue());
    m_isChecked = m_slider.continuousTrigger.getValue();
    m_finishCalls = m_isChecked ? 0 : 1;
    m_isToggleShown = true; // Whatever the field says until it changes.
}

void RandomSlider::sceneBuilt() {
    RandomComponent::sceneBuilt();
    laidOut();
    m_sceneText = printInScene();
    m_sceneLabel = convertRandomText(m_slider.label.getValue());
    m_checkSwitch = LuSwitch::SHOW_NONE;
    if (m_slider.toggleVisible.getValue())
        m_checkSwitch = m_slider.continuousTrigger.getValue() ? 1 : 0;
    m_isEditing = false;
}

void RandomSlider::enableChanged() {
    RandomComponent::enableChanged();
    // After what the windows do, which may end a drag there.
    m_isCursorMovedLast = true;
}

void RandomSlider::labelChanged() {
    m_windowLabel = convertRandomText(m_slider.label.getValue());
    m_sceneLabel = m_windowLabel;
}

// What shows

/// Less than nothing in a slider that is too narrow for its parts.
float RandomSlider::getFrameLength() const {
    auto* const group = static_cast<LuGroup*>(m_slider.getPart("frameSep", false));
    return static_cast<LuScale*>(group->getChild(0))->scaleFactor.getValue().x;
}

void RandomSlider::check() {
    RandomComponent::check();
    const float position = getActualPosition();
    EXPECT_TRUE(position == m_position || (std::isnan(position) && std::isnan(m_position)))
        << getName() << " at " << position << " and not " << m_position;
    if (m_panel.hasWindows())
        checkWindows();
    m_sliderWindow = m_slider.getSliderWidget();
    m_editWindow = m_slider.getEditWidget();
    if (m_panel.hasScene())
        checkScene();
}

void RandomSlider::checkWindows() {
    const HWND edit = m_slider.getEditWidget(), toggle = m_slider.getToggleWidget();
    for (const HWND window : {edit, toggle, m_slider.getSliderWidget(), m_slider.getLabelWidget()})
        checkWindowEnabled(window);
    const auto isShown = [](HWND window) { return (GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) != 0; };
    EXPECT_EQ(LuWin::getWindowText(m_slider.getLabelWidget()).str(), m_windowLabel) << getName();
    EXPECT_EQ(LuWin::getWindowText(edit).str(), m_boxText) << getName();
    EXPECT_EQ(isShown(edit), m_slider.valueVisible.getValue()) << getName();
    EXPECT_EQ(isShown(toggle), m_isToggleShown) << getName();
    EXPECT_EQ(SendMessageA(toggle, BM_GETCHECK, 0, 0), m_isChecked ? BST_CHECKED : BST_UNCHECKED)
        << getName();
    EXPECT_EQ(m_slider.getValue(), m_thumb) << getName();
}

void RandomSlider::checkScene() {
    const auto getChild = [&](const char* part) {
        return static_cast<LuGroup*>(m_slider.getPart(part, false))->getChild(0);
    };
    const auto getShown = [&](const char* part) {
        return static_cast<LuSwitch*>(m_slider.getPart(part, false))->whichChild.getValue();
    };
    const float length = getFrameLength();
    if (m_isCursorMovedLast)
        moveCursor();
    if (m_isCursorMoved) {
        const float way = ((m_isLengthOld ? m_length : length) - CURSOR_SIZE) * m_cursorPosition;
        m_cursor = std::isfinite(way) ? way : 0;
    }
    m_isCursorMoved = m_isCursorMovedLast = m_isLengthOld = false;
    m_length = length;
    const LvVec3f place = static_cast<LuTranslation*>(getChild("cursorSep"))->translation.getValue();
    EXPECT_EQ(place, LvVec3f(m_cursor, 0, 0)) << getName();
    EXPECT_EQ(getShown("checkSwtch"), m_checkSwitch) << getName();
    EXPECT_EQ(getShown("edtSwtch"),
              m_slider.valueVisible.getValue() ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE)
        << getName();
    EXPECT_EQ(getShown("edtFrmSwtch"), m_isEditing ? 1 : 0) << getName();
    EXPECT_EQ(getShownLines(m_slider, "editTextSep"), Lines{m_sceneText}) << getName();
    EXPECT_EQ(getShownLines(m_slider, "labelSwitch"), Lines{m_sceneLabel}) << getName();
}
