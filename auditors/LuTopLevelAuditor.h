// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuDialogAuditor.h"

/// What a top-level dialog calls when nobody listens, so that the defaults of LuDialogAuditor speak. For
/// LuTopLevelDialog alone, which owns it.
class LuTopLevelAuditor final : public LuDialogAuditor {};
