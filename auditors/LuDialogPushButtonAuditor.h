// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogPushButton;

/// Listens to one component: a push button.
class LuDialogPushButtonAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogPushButtonAuditor)

    /// The user has pressed the button and let it go.
    virtual void dialogPushButton(LuDialogPushButton* button) = 0;

protected:
    ~LuDialogPushButtonAuditor() override = default;
};
