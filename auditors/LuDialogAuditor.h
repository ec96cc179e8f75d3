// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogCheckBox;
class LuDialogComboBox;
class LuDialogEditText;
class LuDialogIntegerSlider;
class LuDialogPushButton;
class LuDialogRadioButtons;
class LuDialogRealSlider;
class LuMenuCheckBox;
class LuMenuFileSelection;
class LuMenuPushButton;
class LuMenuRadioButtons;
class LuTabDialog;

/// Listens to every control below a container: one operation for each kind of control, called with the
/// control that the user has operated. Override those that matter; the others do nothing, but post what they
/// were called for when the setting DEBUG_PANELIX_AUDITORS is there.
///
/// A control with auditors of its own is not heard here, nor is one below a nearer container that has
/// auditors.
class LuDialogAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogAuditor)

    ~LuDialogAuditor() override = default;

    virtual void dialogPushButton(LuDialogPushButton* button);
    virtual void dialogCheckBox(LuDialogCheckBox* checkBox);
    virtual void dialogComboBox(LuDialogComboBox* comboBox);
    virtual void dialogEditText(LuDialogEditText* editText);
    virtual void dialogIntegerSlider(LuDialogIntegerSlider* slider);
    virtual void dialogRadioButtons(LuDialogRadioButtons* buttons);
    virtual void dialogRealSlider(LuDialogRealSlider* slider);

    /// Never called by the library: a tab dialog is heard by its LuTabDialogAuditor only.
    virtual void tabDialog(LuTabDialog* dialog);

    virtual void menuPushButton(LuMenuPushButton* button);
    virtual void menuCheckBox(LuMenuCheckBox* checkBox);
    virtual void menuFileSelection(LuMenuFileSelection* selection);
    virtual void menuRadioButtons(LuMenuRadioButtons* buttons);

protected:
    LuDialogAuditor() = default;
};
