// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuTabDialog;

/// Listens to one component: a tab dialog.
/// Its type is not registered with the others: call initClass before you ask for it.
class LuTabDialogAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuTabDialogAuditor)

    /// The user has turned to another page.
    virtual void tabDialog(LuTabDialog* dialog) = 0;

protected:
    ~LuTabDialogAuditor() override = default;
};
