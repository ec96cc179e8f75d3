// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuDialogAuditor.h"

/// Prints a line for each auditor call: operation, auditorID, label and value of the component, in quotes.
class EventPrinter : public LuDialogAuditor {
public:
    void dialogPushButton(LuDialogPushButton* button) override;
    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override;
    void dialogRealSlider(LuDialogRealSlider* slider) override;
};
