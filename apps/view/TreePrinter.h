// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class LuPanelix;

/// The tree of a dialog as lines: type, auditorID, position and size of each component, indented by depth.
std::string printTree(LuPanelix& component);

/// The same tree as JSON, with every field, whether it is marked default, and the windows of each component.
std::string printTreeAsJson(LuPanelix& component);
