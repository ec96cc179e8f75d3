// SPDX-License-Identifier: MIT
// Loads a dialog from a file, shows it as windows and reacts to its buttons.
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/win/LuWin.h"

#include <cstdio>

class Auditor : public LuDialogAuditor {
public:
    explicit Auditor(LuTopLevelDialog* dialog)
        : m_dialog(dialog), m_status(static_cast<LuDialogLabel*>(dialog->searchForAuditorId("status"))) {}

    void dialogPushButton(LuDialogPushButton* button) override {
        const LvString id = button->auditorID.getValue();
        std::printf("%s\n", id.getString());
        std::fflush(stdout);
        if (m_status)
            m_status->label.setValue("You pressed " + button->buttonLabel.getValue() + ".");
        if (id == "close")
            m_dialog->hide();
    }

private:
    LuTopLevelDialog* m_dialog;
    LuDialogLabel* m_status;
};

int main(int argumentCount, char** arguments) {
    LuPanelix::init();
    const char* file = argumentCount > 1 ? arguments[1] : "examples/first-dialog/first-dialog.lum";
    LuPanelix* component = LuPanelix::loadFromFile(file, "dialog");
    if (!component || !component->isOfType(LuTopLevelDialog::getClassTypeId())) {
        std::fprintf(stderr, "first-dialog: no dialog in %s\n", file);
        if (component)
            component->unref();
        LuPanelix::finish();
        return 1;
    }
    auto* dialog = static_cast<LuTopLevelDialog*>(component);
    Auditor auditor(dialog);
    dialog->addAuditor(&auditor);
    dialog->buildDialog(nullptr, 0);
    dialog->show();
    while (IsWindowVisible(dialog->getBaseWidget()) && LuWin::waitForMessages()) {
    }
    dialog->removeAuditor(&auditor);
    dialog->unref();
    LuPanelix::finish();
    return 0;
}
