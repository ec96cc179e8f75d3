// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuMenuFileSelection;

/// Listens to one component: a file selection in a menu.
class LuMenuFileSelectionAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuMenuFileSelectionAuditor)

    /// The user has chosen a file.
    virtual void menuFileSelection(LuMenuFileSelection* selection) = 0;

protected:
    ~LuMenuFileSelectionAuditor() override = default;
};
