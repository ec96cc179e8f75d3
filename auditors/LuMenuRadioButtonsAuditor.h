// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuMenuRadioButtons;

/// Listens to one component: a group of radio buttons in a menu.
class LuMenuRadioButtonsAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuMenuRadioButtonsAuditor)

    /// The user has chosen one of the menu's items.
    virtual void menuRadioButtons(LuMenuRadioButtons* buttons) = 0;

protected:
    ~LuMenuRadioButtonsAuditor() override = default;
};
