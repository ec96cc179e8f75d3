// SPDX-License-Identifier: MIT
#include "tests/random/RandomPanel.h"

#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/host/TestHost.h"
#include "tests/random/RandomTexts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr std::size_t SHOWN_ACTIONS = 15;

} // namespace

class RandomPanel::Recorder : public LuDialogAuditor {
public:
    explicit Recorder(std::vector<std::string>& calls) : m_calls(calls) {}
    void dialogPushButton(LuDialogPushButton* button) override {
        m_calls.push_back("dialogPushButton " + button->auditorID.getValue().str() + " " +
                          button->buttonLabel.getValue().str());
    }
    void dialogCheckBox(LuDialogCheckBox* checkBox) override {
        m_calls.push_back("dialogCheckBox " + checkBox->auditorID.getValue().str() + " " +
                          checkBox->state.getText().str());
    }
    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override {
        m_calls.push_back("dialogIntegerSlider " + slider->auditorID.getValue().str() + " " +
                          printRandomNumber(slider->value.getValue()));
    }
    void dialogRealSlider(LuDialogRealSlider* slider) override {
        m_calls.push_back("dialogRealSlider " + slider->auditorID.getValue().str() + " " +
                          printRandomNumber(static_cast<double>(slider->value.getValue())));
    }

private:
    std::vector<std::string>& m_calls;
};

RandomPanel::RandomPanel(LuTopLevelDialog& dialog, std::uint32_t seed)
    : m_dialog(dialog), m_seed(seed), m_random(seed), m_recorder(std::make_unique<Recorder>(m_calls)) {
    m_dialog.addAuditor(m_recorder.get());
    for (int i = 0; i < m_dialog.getNumChildren(); ++i) {
        if (RandomComponent* const child = add(*static_cast<LuDialogComponent*>(m_dialog.getChild(i))))
            m_children.push_back(child);
    }
    for (const auto& component : m_components)
        component->addActions(m_actions);
    addDialogActions();
    addUserActions();
    for (const RandomAction& action : m_actions)
        m_weights += action.weight;
}

RandomPanel::~RandomPanel() { m_dialog.removeAuditor(m_recorder.get()); }

RandomComponent* RandomPanel::add(LuDialogComponent& component) {
    std::unique_ptr<RandomComponent> expected = makeRandomComponent(*this, component);
    RandomComponent* const result = expected.get();
    if (expected)
        m_components.push_back(std::move(expected));
    return result;
}

RandomComponent* RandomPanel::find(const LuNode* node) const {
    for (const auto& component : m_components) {
        if (&component->getComponent() == node)
            return component.get();
    }
    return nullptr;
}

void RandomPanel::buildWindows() {
    m_dialog.buildDialog(nullptr, 0);
    m_dialog.show();
    m_hasWindows = true;
    for (RandomComponent* child : m_children)
        child->windowsBuilt();
    check();
}

void RandomPanel::buildScene() {
    m_scene.show(&m_dialog);
    m_hasScene = true;
    for (RandomComponent* child : m_children)
        child->sceneBuilt();
    showChildren(m_isShownInScene && !m_isMinimized);
    m_title3D = LuPanelix::convertToCString(m_dialog.label.getValue(), nullptr).str();
    check();
}

bool RandomPanel::run(int count) {
    for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) {
        int place = m_random.below(m_weights);
        const auto isMet = [&place](const RandomAction& action) { return (place -= action.weight) < 0; };
        const RandomAction& action = *std::find_if(m_actions.begin(), m_actions.end(), isMet);
        m_lastActions.push_back(action.name);
        if (m_lastActions.size() > SHOWN_ACTIONS)
            m_lastActions.pop_front();
        // What the desktop has done meanwhile.
        LuWin::processMessages();
        action.run();
        followFocus();
        followCapture();
        check();
        if (testing::Test::HasFailure())
            fail(i, count);
    }
    return !testing::Test::HasFailure();
}

void RandomPanel::fail(int number, int count) {
    std::string actions;
    for (const std::string& action : m_lastActions)
        actions += "\n    " + action;
    ADD_FAILURE() << "Action " << number + 1 << " of " << count << " with PANELIX_RANDOM_SEED=" << m_seed
                  << "; the last actions were:" << actions;
}

void RandomPanel::check() {
    EXPECT_EQ(m_calls, m_expectedCalls);
    m_callCount += static_cast<int>(m_calls.size());
    m_calls.clear();
    m_expectedCalls.clear();
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_active);
    for (const auto& component : m_components) {
        if (component->isInDialog())
            component->check();
    }
    checkDialog();
    for (const LuDebugMessage& message : getPostedMessages())
        EXPECT_TRUE(message.isInfo) << message.where << ": " << message.text;
}

void RandomPanel::checkDialog() {
    EXPECT_EQ(m_dialog.minimized.getValue(), m_isMinimized);
    if (m_hasWindows) {
        EXPECT_EQ(LuWin::getWindowText(m_dialog.getBaseWidget()).str(), m_dialog.label.getValue().str());
        EXPECT_EQ(IsWindowEnabled(m_dialog.getBaseWidget()) != 0, m_isEnabledInWindows);
    }
    if (!m_hasScene)
        return;
    const auto* const geometry = static_cast<LuSwitch*>(m_dialog.getPart("geomSwitch", false));
    EXPECT_EQ(geometry->whichChild.getValue(), m_isShownInScene ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE);
    const auto* const button = static_cast<LuSwitch*>(m_dialog.getPart("minSwtch", false));
    EXPECT_EQ(button->whichChild.getValue(), m_drag == Drag::BUTTON ? 1 : 0);
    const auto* const title = static_cast<LuGroup*>(m_dialog.getPart("labelSep", false));
    const auto* const text = static_cast<LuText3*>(title->getChild(title->getNumChildren() - 1));
    EXPECT_EQ(text->string[0].str(), m_title3D);
    EXPECT_EQ(m_dialog.getTopLevelSize().x, static_cast<float>(m_dialog.width.getValue()));
}

void RandomPanel::showChildren(bool isShown) {
    for (RandomComponent* child : m_children)
        child->shownInScene(isShown);
}

void RandomPanel::setActive(LuPanelix* component) {
    RandomComponent* const before = m_active == component ? nullptr : find(m_active);
    m_active = component;
    if (before)
        before->madeInactive();
}

void RandomPanel::rebuilt() {
    for (const auto& component : m_components) {
        if (component->isInDialog())
            component->laidOut();
    }
    if (m_hasScene && m_isMinimized)
        showChildren(false);
}

LvVec3f RandomPanel::getCorner() const {
    return m_isMinimized ? m_dialog.minimized3DPosition.getValue() : m_dialog.position3D.getValue();
}

void RandomPanel::addDialogActions() {
    constexpr int STEPS = 20;
    addAction("enable the dialog", 1, [this] {
        const bool isEnabled = m_random.mostly();
        m_dialog.enable.setValue(isEnabled);
        m_isEnabledInWindows = !m_hasWindows || isEnabled;
    });
    addAction("label the dialog", 1, [this] {
        m_dialog.label.setValue(m_random.from(RANDOM_TEXTS));
        m_title3D = LuPanelix::convertToCString(m_dialog.label.getValue(), nullptr).str();
    });
    addAction("margin", 1, [this] { m_dialog.margin.setValue(m_random.below(STEPS)); });
    addAction("rowSpacing", 1, [this] { m_dialog.rowSpacing.setValue(m_random.below(STEPS)); });
    addAction("hideChildren", 1,
              [this] { m_dialog.hideChildren.setValue(!m_dialog.hideChildren.getValue()); });
    addAction("independentMinimizedPosition", 1, [this] {
        m_dialog.independentMinimizedPosition.setValue(!m_dialog.independentMinimizedPosition.getValue());
    });
    addAction("minimized", 2, [this] {
        const bool isMinimized = !m_random.mostly();
        if (isMinimized == m_isMinimized)
            return;
        m_isMinimized = isMinimized;
        m_dialog.minimized.setValue(isMinimized);
        if (m_hasScene)
            showChildren(!isMinimized);
    });
    addAction("position3D", 2, [this] {
        m_dialog.position3D.setValue({static_cast<float>(m_random.between(-300, 0)),
                                      static_cast<float>(m_random.between(-300, 0)), 0});
    });
    addAction("minimized3DPosition", 1, [this] {
        m_dialog.minimized3DPosition.setValue({static_cast<float>(m_random.between(-300, 0)),
                                               static_cast<float>(m_random.between(-300, 0)), 0});
    });
    addAction("show3D the dialog", 2, [this] {
        m_isShownInScene = m_random.mostly();
        m_dialog.show3D(m_isShownInScene);
        if (m_hasScene)
            showChildren(m_isShownInScene);
    });
    addAction("rebuild", 4, [this] {
        m_dialog.width.setValue(m_random.between(200, 500));
        m_dialog.height.setValue(m_random.between(150, 400));
        m_dialog.updateAfterSceneGraphChange();
        rebuilt();
    });
    addAction("show or hide the window", 1, [this] {
        if (m_random.mostly())
            m_dialog.show();
        else
            m_dialog.hide();
    });
}
