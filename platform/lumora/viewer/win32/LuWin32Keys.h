// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/events/LuKeyboardEvent.h"

#include <windows.h>

/// The key that a WM_KEYDOWN or WM_KEYUP tells of, by its parameters, on the user's keyboard layout; ANY for
/// one that we don't know.
LuKeyboardEvent::Key luGetWin32Key(WPARAM virtualKey, LPARAM state);
