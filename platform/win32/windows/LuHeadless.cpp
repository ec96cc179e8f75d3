// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuDB.h"

bool LuDBImpl::m_isHeadless = false;
