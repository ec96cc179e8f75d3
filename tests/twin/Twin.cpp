// SPDX-License-Identifier: MIT
#include "tests/twin/Twin.h"

#include "apps/play/ScenePlayer.h"
#include "apps/play/WindowPlayer.h"
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "tests/host/ToolkitTest.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// Pixels of the viewport; a scene unit is a pixel.
constexpr int VIEWPORT = 1000;

class Recorder : public LuDialogAuditor {
public:
    explicit Recorder(std::vector<std::string>& calls) : m_calls(calls) {}
    void dialogPushButton(LuDialogPushButton* button) override {
        record("dialogPushButton", *button, button->buttonLabel.getValue());
    }
    void dialogCheckBox(LuDialogCheckBox* checkBox) override {
        record("dialogCheckBox", *checkBox, checkBox->state.getText());
    }
    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override {
        record("dialogIntegerSlider", *slider, slider->value.getText());
    }
    void dialogRealSlider(LuDialogRealSlider* slider) override {
        record("dialogRealSlider", *slider, slider->value.getText());
    }

private:
    void record(const char* operation, const LuPanelix& component, const LvString& value) {
        m_calls.push_back(std::string(operation) + " " + component.auditorID.getValue().str() + " " +
                          value.str());
    }

    std::vector<std::string>& m_calls;
};

void collectFields(const LuPanelix& component, std::map<std::string, int>& numbers, TwinOutcome& outcome) {
    std::string name = component.auditorID.getValue().str();
    if (name.empty()) {
        const std::string type = component.getTypeId().getName().getString();
        name = type + std::to_string(++numbers[type]);
    }
    for (int i = 0; i < component.getNumFields(); ++i) {
        const LuField& field = *component.getField(i);
        // The parts are geometry: that they differ is the point.
        if (!field.holdsNodes())
            outcome.fields[name + "." + component.getFieldData()->getFieldName(i).getString()] =
                field.getText().str();
    }
    const LuChildList& children = *component.getChildren();
    for (int i = 0; i < children.getLength(); ++i) {
        if (children[i]->isOfType(LuPanelix::getClassTypeId()))
            collectFields(*static_cast<LuPanelix*>(children[i]), numbers, outcome);
    }
}

/// The dialog comes with a reference; null when the text doesn't begin with one.
LuTopLevelDialog* readDialog(const std::string& text) {
    LuInput in;
    in.setBuffer(text.data(), text.size());
    LuSeparator* const root = LuDB::readAll(&in);
    if (!root)
        return nullptr;
    const Held<LuSeparator> held(root);
    LuNode* const first = root->getChild(0);
    if (!first || !first->isOfType(LuTopLevelDialog::getClassTypeId()))
        return nullptr;
    first->ref();
    return static_cast<LuTopLevelDialog*>(first);
}

/// Puts a process-wide flag back.
class Headless {
public:
    explicit Headless(bool isHeadless) : m_before(LuDBImpl::m_isHeadless) {
        LuDBImpl::m_isHeadless = isHeadless;
    }
    ~Headless() { LuDBImpl::m_isHeadless = m_before; }
    Headless(const Headless&) = delete;
    Headless& operator=(const Headless&) = delete;

private:
    bool m_before;
};

bool playToWindows(LuTopLevelDialog* dialog, const std::vector<PlayStep>& steps) {
    const Headless headless(false);
    dialog->buildDialog(nullptr, 0);
    dialog->show();
    WindowPlayer player;
    return player.play(steps, {dialog});
}

bool playToScene(LuTopLevelDialog* dialog, const std::vector<PlayStep>& steps) {
    const Headless headless(true);
    const Held<LuSeparator> root;
    auto* camera = new LuOrthographicCamera;
    camera->height.setValue(VIEWPORT);
    // The panel hangs down from the origin.
    camera->position.setValue({VIEWPORT * 0.4F, VIEWPORT * -0.4F, 500});
    camera->nearDistance.setValue(1);
    camera->farDistance.setValue(1000);
    root->addChild(camera);
    root->addChild(dialog);
    ScenePlayer player(root.get(), camera, LvViewportRegion(VIEWPORT, VIEWPORT));
    return player.play(steps, {dialog});
}

bool isExpected(const std::string& field, const std::vector<TwinDifference>& differences,
                std::vector<bool>& isMet) {
    const std::string own = field.substr(field.rfind('.'));
    bool isFound = false;
    for (std::size_t i = 0; i < differences.size(); ++i) {
        if (differences[i].field == field || differences[i].field == own)
            isMet[i] = isFound = true;
    }
    return isFound;
}

} // namespace

TwinOutcome playTwin(Rendition rendition, const std::string& dialogText, const std::string& script) {
    TwinOutcome outcome;
    std::vector<PlayStep> steps;
    EXPECT_TRUE(readPlayScript(script, "script", steps));
    LuTopLevelDialog* const dialog = readDialog(dialogText);
    if (!dialog) {
        ADD_FAILURE() << "The text holds no dialog.";
        return outcome;
    }
    Recorder recorder(outcome.calls);
    dialog->addAuditor(&recorder);
    const bool isPlayed =
        rendition == Rendition::WINDOWS ? playToWindows(dialog, steps) : playToScene(dialog, steps);
    EXPECT_TRUE(isPlayed);
    dialog->removeAuditor(&recorder);
    std::map<std::string, int> numbers;
    collectFields(*dialog, numbers, outcome);
    dialog->unref();
    return outcome;
}

std::vector<std::string> expectTwins(const std::string& dialog, const std::string& script,
                                     const std::vector<TwinDifference>& differences) {
    const TwinOutcome windows = playTwin(Rendition::WINDOWS, dialog, script);
    const TwinOutcome scene = playTwin(Rendition::SCENE, dialog, script);
    EXPECT_EQ(windows.calls, scene.calls);
    EXPECT_EQ(windows.fields.size(), scene.fields.size());
    std::vector<bool> isMet(differences.size(), false);
    for (const auto& [field, value] : windows.fields) {
        const auto other = scene.fields.find(field);
        if (other == scene.fields.end())
            ADD_FAILURE() << field << " is there in the windows only.";
        else if (other->second != value && !isExpected(field, differences, isMet))
            ADD_FAILURE() << field << " is " << value << " with windows and " << other->second
                          << " in the scene.";
    }
    for (std::size_t i = 0; i < differences.size(); ++i)
        EXPECT_TRUE(isMet[i]) << differences[i].field
                              << " was said to differ, but doesn't: " << differences[i].reason;
    return windows.calls;
}
