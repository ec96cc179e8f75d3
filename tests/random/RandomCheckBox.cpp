// SPDX-License-Identifier: MIT
#include "tests/random/RandomCheckBox.h"

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/random/RandomPanel.h"

#include <gtest/gtest.h>

void RandomCheckBox::addActions(std::vector<RandomAction>& actions) {
    RandomComponent::addActions(actions);
    const auto add = [&](const char* name, int weight, std::function<void()> run) {
        actions.push_back({std::string(name) + " " + getName(), weight, std::move(run)});
    };
    add("state", 3, [this] {
        m_state = m_panel.getRandom().flip();
        m_box.state.setValue(m_state);
        takeSceneText();
    });
    add("onString", 2, [this] {
        m_box.onString.setValue(m_panel.getRandom().from(RANDOM_TEXTS));
        takeSceneText();
    });
    add("offString", 2, [this] {
        m_box.offString.setValue(m_panel.getRandom().from(RANDOM_TEXTS));
        takeSceneText();
    });
    for (const char* part : {"frameSep", "stateSep", "onOffStringSep"})
        add("press a part of", 4, [this, part] { m_panel.pressInScene(m_box.getPart(part, false)); });
    add("press the native", 10, [this] { m_panel.pressWindow(getOperatedWindow()); });
}

void RandomCheckBox::windowsBuilt() {
    RandomComponent::windowsBuilt();
    m_windowLabel = convertRandomText(m_box.label.getValue());
}

void RandomCheckBox::sceneBuilt() {
    RandomComponent::sceneBuilt();
    m_sceneLabel = m_box.label.getValue().str();
    m_sceneText.clear();
    takeSceneText();
}

void RandomCheckBox::labelChanged() {
    m_windowLabel = convertRandomText(m_box.label.getValue());
    m_sceneLabel = m_box.label.getValue().str();
}

LvString RandomCheckBox::getTextInForce() const {
    const LvString off = m_box.offString.getValue();
    return m_state || off.isEmpty() ? m_box.onString.getValue() : off;
}

/// In the scene the text is shown as it is in the field.
void RandomCheckBox::takeSceneText() { overwriteLines(m_sceneText, splitLines(getTextInForce().str())); }

void RandomCheckBox::turn() {
    m_state = !m_state;
    takeSceneText();
    m_panel.expectCall("dialogCheckBox " + getName() + (m_state ? " TRUE" : " FALSE"));
}

void RandomCheckBox::scenePressed(const LuPath& path) {
    for (const char* part : {"frameSep", "stateSep", "onOffStringSep"})
        m_isOperated = m_isOperated || path.containsNode(m_box.getPart(part, false));
}

void RandomCheckBox::sceneReleased() {
    if (!m_isOperated)
        return;
    m_isOperated = false;
    m_panel.setActive(nullptr);
    turn();
}

void RandomCheckBox::windowMessage(const RandomMessage& sent) {
    const LRESULT state = SendMessageA(getOperatedWindow(), BM_GETSTATE, 0, 0);
    const bool isHeld = GetCapture() == getOperatedWindow() && (state & BST_PUSHED);
    const bool isKey = sent.message == WM_KEYUP && sent.wParam == VK_SPACE;
    if (isHeld && (isKey || (sent.message == WM_LBUTTONUP && sent.isInside)))
        turn();
}

void RandomCheckBox::check() {
    RandomComponent::check();
    EXPECT_EQ(m_box.state.getValue(), m_state) << getName();
    if (m_panel.hasWindows()) {
        const HWND window = m_box.getCheckBoxWidget();
        checkWindowEnabled(window);
        checkWindowEnabled(m_box.getLabelWidget());
        EXPECT_EQ(SendMessageA(window, BM_GETCHECK, 0, 0), m_state ? BST_CHECKED : BST_UNCHECKED)
            << getName();
        EXPECT_EQ(LuWin::getWindowText(window).str(), convertRandomText(getTextInForce())) << getName();
        EXPECT_EQ(LuWin::getWindowText(m_box.getLabelWidget()).str(), m_windowLabel) << getName();
    }
    if (!m_panel.hasScene())
        return;
    const auto* const mark = static_cast<LuSwitch*>(m_box.getPart("stateSwitch", false));
    EXPECT_EQ(mark->whichChild.getValue(), m_state ? 1 : 0) << getName();
    EXPECT_EQ(getShownLines(m_box, "onOffStringSep"), m_sceneText) << getName();
    EXPECT_EQ(getShownLines(m_box, "labelSwitch"), Lines{m_sceneLabel}) << getName();
}
