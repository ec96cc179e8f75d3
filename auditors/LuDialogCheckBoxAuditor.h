// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogCheckBox;

/// Listens to one component: a check box.
class LuDialogCheckBoxAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogCheckBoxAuditor)

    /// The user has clicked the check box; its `state` is the new one.
    virtual void dialogCheckBox(LuDialogCheckBox* checkBox) = 0;

protected:
    ~LuDialogCheckBoxAuditor() override = default;
};
