// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuMenuPushButton;

/// Listens to one component: a push button in a menu.
class LuMenuPushButtonAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuMenuPushButtonAuditor)

    /// The user has chosen the menu entry.
    virtual void menuPushButton(LuMenuPushButton* button) = 0;

protected:
    ~LuMenuPushButtonAuditor() override = default;
};
