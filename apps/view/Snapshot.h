// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/WindowSystem.h"

#include <string>
#include <vector>

/// Writes a picture (PNG) of the part of the screen that the windows take. False, with a message, when there
/// is nothing to be seen or the file can't be written.
bool writeSnapshot(const std::vector<HWND>& windows, const std::string& path);
