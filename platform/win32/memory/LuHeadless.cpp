// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuDB.h"

// Here nobody sees a window.
bool LuDBImpl::m_isHeadless = true;
