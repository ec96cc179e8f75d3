// SPDX-License-Identifier: MIT
#pragma once

/// The classes of the library, in the order in which they start. The list itself stands in LuClassList.cpp,
/// the one place that knows all of them: a new class adds its line there.

/// Registers all component classes, then all auditor classes.
void luInitComponentClasses();

/// Removes them in reverse order.
void luExitComponentClasses();

/// Lets each class that has a skin of its own read it again.
void luChangeSkinOfComponentClasses();
