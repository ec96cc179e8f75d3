// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuDialogAuditor.h"

/// What a group that has no parent calls when nobody listens, so that the defaults of LuDialogAuditor speak.
/// For LuDialogGroup alone, which owns it.
class LuDialogGroupAuditor final : public LuDialogAuditor {};
