// SPDX-License-Identifier: MIT
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogSeparator.h"
#include "layout/LuColumnDialog.h"
#include "layout/LuRowDialog.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/random/RandomCheckBox.h"
#include "tests/random/RandomNumberSlider.h"
#include "tests/random/RandomPanel.h"
#include "tests/random/RandomTexts.h"

#include <gtest/gtest.h>

namespace {

class RandomGroup : public RandomComponent {
public:
    RandomGroup(RandomPanel& panel, LuDialogGroup& group) : RandomComponent(panel, group), m_group(group) {
        for (int i = 0; i < group.getNumChildren(); ++i) {
            if (RandomComponent* const child = panel.add(*group.getChild(i))) {
                child->setContainer(this);
                m_children.push_back(child);
            }
        }
    }
    void addActions(std::vector<RandomAction>& actions) override {
        RandomComponent::addActions(actions);
        for (RandomComponent* child : m_children) {
            actions.push_back(
                {"take out or put back " + child->getName(), 2, [this, child] { takeOutOrPutBack(*child); }});
        }
    }
    void windowsBuilt() override {
        RandomComponent::windowsBuilt();
        forEachInside([](RandomComponent& child) { child.windowsBuilt(); });
        allowInWindows(true);
    }
    void sceneBuilt() override {
        RandomComponent::sceneBuilt();
        forEachInside([](RandomComponent& child) { child.sceneBuilt(); });
        allowInScene(true);
    }
    // What a container says of a group is meant for what is in the group.
    void allowInWindows(bool isAllowed) override {
        forEachInside([&](RandomComponent& child) { child.allowInWindows(isAllowed && isEnableSet()); });
    }
    void allowInScene(bool isAllowed) override {
        forEachInside([&](RandomComponent& child) { child.allowInScene(isAllowed && isEnableSet()); });
    }
    void shownInScene(bool isShown) override {
        RandomComponent::shownInScene(isShown);
        forEachInside([&](RandomComponent& child) { child.shownInScene(isShown); });
    }

protected:
    void enableChanged() override {
        RandomComponent::enableChanged();
        allowInWindows(true);
        allowInScene(true);
    }

private:
    template <class Call>
    void forEachInside(Call call) {
        for (RandomComponent* child : m_children) {
            if (!child->isTakenOut())
                call(*child);
        }
    }
    void takeOutOrPutBack(RandomComponent& child) {
        // More is in the dialog than out of it.
        if (!isInDialog() || (!child.isTakenOut() && m_panel.getRandom().mostly()))
            return;
        if (child.isTakenOut()) {
            child.setTakenOut(false);
            m_group.insertChild(&child.getComponent(),
                                m_panel.getRandom().below(m_group.getNumChildren() + 1));
            if (m_panel.hasWindows())
                child.windowsBuilt();
            if (m_panel.hasScene() && !child.isSceneBuilt())
                child.sceneBuilt();
        } else {
            child.setTakenOut(true);
            m_group.removeChild(&child.getComponent());
        }
        m_panel.rebuilt();
    }

    LuDialogGroup& m_group;
    std::vector<RandomComponent*> m_children;
};

class RandomSeparator : public RandomComponent {
public:
    RandomSeparator(RandomPanel& panel, LuDialogSeparator& separator) : RandomComponent(panel, separator) {}
};

class RandomLabel : public RandomComponent {
public:
    RandomLabel(RandomPanel& panel, LuDialogLabel& label) : RandomComponent(panel, label), m_label(label) {}
    void windowsBuilt() override {
        RandomComponent::windowsBuilt();
        m_isTextEnabled = m_isEnabledInWindows;
        m_windowText = convertRandomText(m_label.label.getValue());
    }
    void sceneBuilt() override {
        RandomComponent::sceneBuilt();
        takeSceneText();
    }
    void allowInWindows(bool isAllowed) override {
        RandomComponent::allowInWindows(isAllowed);
        m_isTextEnabled = m_isEnabledInWindows;
    }
    void check() override {
        RandomComponent::check();
        if (m_panel.hasWindows()) {
            const HWND window = GetWindow(m_label.getWidget(), GW_CHILD);
            EXPECT_EQ(IsWindowEnabled(window) != 0, m_isTextEnabled) << getName();
            EXPECT_EQ(LuWin::getWindowText(window).str(), m_windowText) << getName();
        }
        if (m_panel.hasScene())
            checkSceneText();
    }

protected:
    void enableChanged() override {
        RandomComponent::enableChanged();
        m_isTextEnabled = m_isEnabledInWindows;
    }
    void labelChanged() override {
        m_windowText = convertRandomText(m_label.label.getValue());
        takeSceneText();
    }

    /// The whole style of the native text is set anew, whether that is disabled or not.
    void alignmentChanged() override { m_isTextEnabled = true; }

private:
    void takeSceneText() {
        m_sceneText = convertRandomText(m_label.label.getValue());
        // A text of ours is never wider.
        constexpr int ROOMY = 150;
        m_isWrapped = m_label.width.getValue() < ROOMY;
    }
    void checkSceneText() {
        const Lines shown = getShownLines(m_label, "labelSep");
        if (m_isWrapped) {
            for (const std::string& line : shown)
                EXPECT_NE(m_sceneText.find(line), std::string::npos) << getName() << " shows " << line;
        } else {
            EXPECT_EQ(shown, splitLines(m_sceneText)) << getName();
        }
    }

    LuDialogLabel& m_label;
    bool m_isTextEnabled = true;
    std::string m_windowText;
    std::string m_sceneText;
    bool m_isWrapped = false; ///< What the width was when the text was set leaves too little room.
};

class RandomPushButton : public RandomComponent {
public:
    RandomPushButton(RandomPanel& panel, LuDialogPushButton& button)
        : RandomComponent(panel, button), m_button(button) {}

    void addActions(std::vector<RandomAction>& actions) override {
        RandomComponent::addActions(actions);
        actions.push_back({"buttonLabel " + getName(), 3, [this] {
                               m_button.buttonLabel.setValue(m_panel.getRandom().from(RANDOM_TEXTS));
                               m_windowText = convertRandomText(m_button.buttonLabel.getValue());
                               takeSceneText();
                           }});
        actions.push_back({"press the frame of " + getName(), 10,
                           [this] { m_panel.pressInScene(m_button.getPart("frameSep", false)); }});
        actions.push_back({"press the text of " + getName(), 3,
                           [this] { m_panel.pressInScene(m_button.getPart("buttonLabelSep", false)); }});
        actions.push_back({"press the native " + getName(), 10,
                           [this] { m_panel.pressWindow(m_button.getButtonWidget()); }});
    }

    void windowsBuilt() override {
        RandomComponent::windowsBuilt();
        m_windowText = convertRandomText(m_button.buttonLabel.getValue());
        m_windowLabel = convertRandomText(m_button.label.getValue());
    }
    void sceneBuilt() override {
        RandomComponent::sceneBuilt();
        m_sceneText.clear();
        takeSceneText();
        m_sceneLabel = m_button.label.getValue().str();
    }

    bool takesScenePress() const override { return true; }
    void scenePressed(const LuPath& path) override {
        m_isOperated = path.containsNode(m_button.getPart("frameSep", false)) ||
                       path.containsNode(m_button.getPart("buttonLabelSep", false));
        if (!m_isOperated)
            return;
        m_panel.setActive(&m_button);
        m_isPressedInScene = true;
        m_native = Native::PRESSED;
    }
    void sceneReleased() override {
        if (!m_isOperated)
            return;
        m_isOperated = false;
        if (m_panel.getActive() == &m_button)
            m_panel.setActive(nullptr);
        m_isPressedInScene = false;
        m_native = Native::RELEASED;
        expectCall();
    }
    void sceneGrabLost() override { m_isOperated = false; }

    HWND getOperatedWindow() const override { return m_button.getButtonWidget(); }
    void windowMessage(const RandomMessage& sent) override {
        const LRESULT state = SendMessageA(getOperatedWindow(), BM_GETSTATE, 0, 0);
        const bool isHeld = GetCapture() == getOperatedWindow() && (state & BST_PUSHED);
        if (sent.message == WM_LBUTTONDOWN && (state & ~LRESULT{BST_FOCUS}) == 0)
            m_isPressedInScene = m_isSceneBuilt;
        const bool isKey = sent.message == WM_KEYUP && sent.wParam == VK_SPACE;
        if (isHeld && (isKey || (sent.message == WM_LBUTTONUP && sent.isInside))) {
            m_isPressedInScene = false;
            m_native = Native::RELEASED;
            expectCall();
        }
    }

    void check() override {
        RandomComponent::check();
        if (m_panel.hasWindows()) {
            const HWND window = m_button.getButtonWidget();
            checkWindowEnabled(window);
            checkWindowEnabled(m_button.getLabelWidget());
            EXPECT_EQ(LuWin::getWindowText(window).str(), m_windowText) << getName();
            EXPECT_EQ(LuWin::getWindowText(m_button.getLabelWidget()).str(), m_windowLabel) << getName();
            if (m_native != Native::FREE) {
                const bool isPushed = (SendMessageA(window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
                EXPECT_EQ(isPushed, m_native == Native::PRESSED) << getName();
            }
        }
        // From now on it does what the mouse does.
        m_native = Native::FREE;
        if (!m_panel.hasScene())
            return;
        const auto* const look = static_cast<LuSwitch*>(m_button.getPart("frameSwitch", false));
        EXPECT_EQ(look->whichChild.getValue(), m_isPressedInScene ? 1 : 0) << getName();
        EXPECT_EQ(getShownLines(m_button, "buttonLabelSep"), m_sceneText) << getName();
        EXPECT_EQ(getShownLines(m_button, "labelSwitch"), Lines{m_sceneLabel}) << getName();
    }

protected:
    /// With geometry in the scene a button takes notice of the text on it, and of no other field.
    bool seesCommonFields() const override { return !m_isSceneBuilt; }
    void labelChanged() override { m_windowLabel = convertRandomText(m_button.label.getValue()); }

    /// The native label is made anew in its style, with the enabling of the field.
    void alignmentChanged() override { m_isEnabledInWindows = isEnableSet(); }

private:
    /// What the native button is known to look like, until the mouse or a key does something with it.
    enum class Native { FREE, PRESSED, RELEASED };

    void expectCall() {
        m_panel.expectCall("dialogPushButton " + getName() + " " + m_button.buttonLabel.getValue().str());
    }

    void takeSceneText() {
        overwriteLines(m_sceneText, splitLines(convertRandomText(m_button.buttonLabel.getValue())));
    }

    LuDialogPushButton& m_button;
    std::string m_windowText;
    std::string m_windowLabel;
    Lines m_sceneText;
    std::string m_sceneLabel;
    bool m_isPressedInScene = false;
    bool m_isOperated = false; ///< By a press in the scene that is under way.
    Native m_native = Native::FREE;
};

using Make = std::unique_ptr<RandomComponent> (*)(RandomPanel& panel, LuDialogComponent& component);

template <class Expected, class Component>
std::unique_ptr<RandomComponent> make(RandomPanel& panel, LuDialogComponent& component) {
    return std::make_unique<Expected>(panel, static_cast<Component&>(component));
}

} // namespace

std::unique_ptr<RandomComponent> makeRandomComponent(RandomPanel& panel, LuDialogComponent& component) {
    const std::pair<LuType, Make> table[] = {
        {LuColumnDialog::getClassTypeId(), make<RandomGroup, LuDialogGroup>},
        {LuRowDialog::getClassTypeId(), make<RandomGroup, LuDialogGroup>},
        {LuDialogCheckBox::getClassTypeId(), make<RandomCheckBox, LuDialogCheckBox>},
        {LuDialogIntegerSlider::getClassTypeId(),
         make<RandomNumberSlider<LuDialogIntegerSlider>, LuDialogIntegerSlider>},
        {LuDialogRealSlider::getClassTypeId(),
         make<RandomNumberSlider<LuDialogRealSlider>, LuDialogRealSlider>},
        {LuDialogLabel::getClassTypeId(), make<RandomLabel, LuDialogLabel>},
        {LuDialogPushButton::getClassTypeId(), make<RandomPushButton, LuDialogPushButton>},
        {LuDialogSeparator::getClassTypeId(), make<RandomSeparator, LuDialogSeparator>},
    };
    for (const auto& [type, makeExpected] : table) {
        if (component.getTypeId() == type)
            return makeExpected(panel, component);
    }
    ADD_FAILURE() << "No expectations are written for a " << component.getTypeId().getName().getString();
    return nullptr;
}
