// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuDialogComponent.h"

#include <string>
#include <vector>

// Texts as components are expected to show them.

using Lines = std::vector<std::string>;

/// What a window shows of a field's text.
std::string convertRandomText(const LvString& text);

Lines splitLines(const std::string& text);

/// A number in the account of a call.
std::string printRandomNumber(double number);

/// The lines of the text that comes last in a part.
Lines getShownLines(LuDialogComponent& component, const char* part);

/// Lines that are written over those that are there: what was longer keeps its last ones.
void overwriteLines(Lines& shown, const Lines& lines);
