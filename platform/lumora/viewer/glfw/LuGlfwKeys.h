// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/events/LuKeyboardEvent.h"

/// The key that GLFW's numbers name, on the user's keyboard layout; ANY for one that we don't know.
/// `isNumLockOn` decides what the keypad gives.
LuKeyboardEvent::Key luGetGlfwKey(int key, int scancode, bool isNumLockOn);
