// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"

class LuGroup;
class LuPanelix;

/// The dialog files that have been loaded: each stays, with all it holds, until the library ends.
class LuLoadedFiles {
public:
    /// The group of a file's top-level nodes, read if it has not been yet; null, with the reader's message,
    /// when it can't be.
    static LuGroup* load(const LvString& fileName);

    /// Forgets the file that holds the component at its top, if there is one.
    static void forget(const LuPanelix* component);

    /// Forgets all.
    static void clear();
};
