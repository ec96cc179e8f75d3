// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuMenuCheckBox;

/// Listens to one component: a check box in a menu.
class LuMenuCheckBoxAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuMenuCheckBoxAuditor)

    /// The user has switched the menu entry.
    virtual void menuCheckBox(LuMenuCheckBox* checkBox) = 0;

protected:
    ~LuMenuCheckBoxAuditor() override = default;
};
