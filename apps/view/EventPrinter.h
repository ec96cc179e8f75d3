// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuDialogAuditor.h"

/// Prints a line for each auditor call: operation, auditorID, label and value of the component, in quotes.
/// The value is written as in a file, without quotes of its own.
class EventPrinter : public LuDialogAuditor {
public:
    void dialogPushButton(LuDialogPushButton* button) override;
    void dialogCheckBox(LuDialogCheckBox* checkBox) override;
    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override;
    void dialogRealSlider(LuDialogRealSlider* slider) override;
};
