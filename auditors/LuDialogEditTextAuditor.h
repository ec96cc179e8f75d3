// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogEditText;

/// Listens to one component: an edit text.
class LuDialogEditTextAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogEditTextAuditor)

    /// The user has edited the text.
    virtual void dialogEditText(LuDialogEditText* editText) = 0;

protected:
    ~LuDialogEditTextAuditor() override = default;
};
