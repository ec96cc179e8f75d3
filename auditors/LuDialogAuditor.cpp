// SPDX-License-Identifier: MIT
#include "auditors/LuDialogAuditor.h"

#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LuPreferences.h"

namespace {

/// Looked up at each call, so that it can be switched while the program runs.
bool isDiagnosing() { return LuPreferences::getValue("DEBUG_PANELIX_AUDITORS") != nullptr; }

LvString namedLine(const char* field, const LvString& value) {
    return LvString("\n\t\t -> ") + field + " \"" + value + "\"";
}

/// `operation` is one of LuDialogAuditor, `lines` say of which component it was to tell.
void postUndefined(const char* operation, const char* componentClass, const LvString& lines) {
    const LvString text = LvString("WARNING ! The DialogAuditor does not define the ") + componentClass +
                          " component :" + lines;
    LuDebugError::postInfo((LvString("LuDialogAuditor::") + operation).getString(), "%s", text.getString());
}

} // namespace

void LuDialogAuditor::dialogPushButton(LuDialogPushButton* button) {
    if (isDiagnosing())
        postUndefined("dialogPushButton", "LuDialogPushButton",
                      namedLine("label", button->label.getValue()) +
                          namedLine("buttonLabel", button->buttonLabel.getValue()));
}

void LuDialogAuditor::dialogCheckBox(LuDialogCheckBox* checkBox) {
    if (isDiagnosing())
        postUndefined("dialogCheckBox", "LuDialogCheckBox",
                      namedLine("label", checkBox->label.getValue()) +
                          namedLine("onString", checkBox->onString.getValue()) +
                          namedLine("offString", checkBox->offString.getValue()));
}

void LuDialogAuditor::dialogComboBox(LuDialogComboBox*) {}
void LuDialogAuditor::dialogEditText(LuDialogEditText*) {}

void LuDialogAuditor::dialogIntegerSlider(LuDialogIntegerSlider* slider) {
    // On purpose the number follows the label's quote at once.
    if (isDiagnosing())
        postUndefined("dialogIntegerSlider", "LuDialogIntegerSlider",
                      namedLine("label", slider->label.getValue()) + slider->value.getText());
}

void LuDialogAuditor::dialogRealSlider(LuDialogRealSlider* slider) {
    if (isDiagnosing())
        postUndefined("dialogRealSlider", "LuDialogRealSlider",
                      namedLine("label", slider->label.getValue()) +
                          namedLine("value", slider->getValueText()));
}

void LuDialogAuditor::dialogRadioButtons(LuDialogRadioButtons*) {}
void LuDialogAuditor::tabDialog(LuTabDialog*) {}
void LuDialogAuditor::menuPushButton(LuMenuPushButton*) {}
void LuDialogAuditor::menuCheckBox(LuMenuCheckBox*) {}
void LuDialogAuditor::menuFileSelection(LuMenuFileSelection*) {}
void LuDialogAuditor::menuRadioButtons(LuMenuRadioButtons*) {}
