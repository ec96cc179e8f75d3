// SPDX-License-Identifier: MIT
// A control of the program's own in a dialog from a file: as a window, or as a panel in a scene.
//
// example-custom-control window, or example-custom-control [tilted] [--play FILE]
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogLabel.h"
#include "examples/custom-control/Stepper.h"
#include "examples/custom-control/StepperAuditor.h"
#include "examples/stage/Stage.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/win/LuWin.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {

/// Listens to the steppers one by one, and to the rest through the dialog.
class Crew : public StepperAuditor, public LuDialogAuditor {
public:
    explicit Crew(LuTopLevelDialog* panel)
        : m_panel(panel), m_sailors(find<Stepper>("sailors")), m_cats(find<Stepper>("cats")),
          m_captain(find<LuDialogCheckBox>("captain")), m_status(find<LuDialogLabel>("status")) {
        m_sailors->addAuditor(this);
        m_cats->addAuditor(this);
        panel->addAuditor(this);
    }
    ~Crew() override {
        m_sailors->removeAuditor(this);
        m_cats->removeAuditor(this);
        m_panel->removeAuditor(this);
    }
    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;

    void stepper(Stepper*) override { tell(); }
    void dialogCheckBox(LuDialogCheckBox*) override { tell(); }

private:
    template <class Component>
    Component* find(const char* id) {
        return static_cast<Component*>(m_panel->searchForAuditorId(id));
    }

    void tell() {
        std::string text = "Sailors: " + std::to_string(m_sailors->value.getValue());
        text += ", cats: " + std::to_string(m_cats->value.getValue());
        text += m_captain->state.getValue() ? ", captain on board" : ", no captain";
        std::printf("%s\n", text.c_str());
        std::fflush(stdout);
        m_status->label.setValue(text);
    }

    LuTopLevelDialog* m_panel;
    Stepper* m_sailors;
    Stepper* m_cats;
    LuDialogCheckBox* m_captain;
    LuDialogLabel* m_status;
};

void showAsWindow(LuTopLevelDialog* panel) {
    panel->buildDialog(nullptr, 0);
    panel->show();
    while (IsWindowVisible(panel->getBaseWidget()) && LuWin::waitForMessages()) {
    }
}

bool run(LuTopLevelDialog* panel, int argumentCount, char** arguments) {
    const Crew crew(panel);
    if (argumentCount > 1 && std::strcmp(arguments[1], "window") == 0) {
        showAsWindow(panel);
        return true;
    }
    Stage stage("Custom control", argumentCount, arguments);
    stage.add(panel, {-130, 100, 0});
    return stage.run(panel);
}

} // namespace

int main(int argumentCount, char** arguments) {
    LuPanelix::init();
    LuPanelix::setSkin(PANELIX_SKINS "/default");
    // From now on files may hold steppers.
    Stepper::initClass();
    LuPanelix* const component =
        LuPanelix::loadFromFile("examples/custom-control/custom-control.lum", "panel");
    bool isGood = component && component->isOfType(LuTopLevelDialog::getClassTypeId());
    if (isGood)
        isGood = run(static_cast<LuTopLevelDialog*>(component), argumentCount, arguments);
    if (component)
        component->unref();
    LuPanelix::finish();
    Stepper::exitClass();
    return isGood ? 0 : 1;
}
