// SPDX-License-Identifier: MIT
#pragma once

/// The window system, with the vocabulary of Win32.
///
/// This is the one header through which a component sees windows. The build puts either `windows/` (the
/// operating system's own) or `memory/` (a window system in memory that draws nothing) on the include path,
/// so that no source file asks which one it is. Text of the functions ending in A is Windows-1252, text of
/// those ending in W is in wide characters. Coordinates are pixels, y downwards. All of it belongs to the one
/// thread of the user interface.
#include "WindowSystemNames.h"
