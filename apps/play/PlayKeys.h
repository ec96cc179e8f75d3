// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/events/LuKeyboardEvent.h"

#include <string_view>

/// The key of a name, "Tab", "Left" or "a"; ANY when there is none.
LuKeyboardEvent::Key findPlayKey(std::string_view name);

/// The virtual-key code (VK_...) of a key; 0 when it has none here.
int getVirtualKey(LuKeyboardEvent::Key key);
