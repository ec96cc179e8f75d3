// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"

/// Settings by name. They are read from the environment, at each call, unless the program has set them. All
/// texts are UTF-8. For the application's thread only.
class LuPreferences {
public:
    /// The setting's value, or null when it is not set. The text is the toolkit's; it is valid until the
    /// setting changes.
    static const char* getValue(const char* name);

    /// The value, or `defaultValue` when it is not set.
    static LvString getString(const char* name, const LvString& defaultValue);

    /// The value, or the empty text when it is not set.
    static LvString getStringValue(const char* name);

    /// Sets a value for this process; the environment no longer counts for this name.
    static void setString(const char* name, const LvString& value);

    /// Forgets what the program has set; the environment counts again.
    static void reset(const char* name);
};
