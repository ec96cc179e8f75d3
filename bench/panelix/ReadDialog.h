// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuTopLevelDialog.h"

#include <string>

namespace bench {

/// Reads the first top-level dialog of a dialog file's text, without the cache of files that an application's
/// reads go through. The dialog comes with one reference, which is the caller's. A text that gives none ends
/// the program.
LuTopLevelDialog* readDialog(const std::string& text);

/// The first push button of the dialog in the order of the tree, which has the id "button" and its number.
LuDialogPushButton* findButton(LuTopLevelDialog& dialog, int number);

} // namespace bench
