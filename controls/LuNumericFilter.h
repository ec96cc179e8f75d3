// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/WindowSystem.h"

#include <string_view>

/// Whether a text is a number and nothing behind it, as `sscanf` with "%f%s" tells it in the "C" locale,
/// whatever the process's own is. White space on both sides does not count.
bool luIsNumber(std::string_view text);

/// Hands a key or a character that may change the text of an "EDIT" on to the window's own procedure, and
/// keeps the text a number: one that is none any more goes back to what it was. An empty text may stand, and
/// what a number may begin with is filled up, with the filling selected: "-" becomes "-0", "1e" becomes
/// "1e0".
void luFilterNumericEdit(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
