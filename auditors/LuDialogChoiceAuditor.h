// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogChoice;

/// Listens to one component: a choice: a combo box or radio buttons.
class LuDialogChoiceAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogChoiceAuditor)

    /// The user has chosen an item of a combo box or of radio buttons.
    virtual void dialogChoice(LuDialogChoice* choice) = 0;

protected:
    ~LuDialogChoiceAuditor() override = default;
};
