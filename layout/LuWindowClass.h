// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/WindowSystem.h"

#include <string>

/// A window class of the library, registered on first use.
struct LuWindowClass {
    const char* name;
    UINT style; ///< CS_...
    WNDPROC procedure;
    HCURSOR cursor;      ///< Null for none.
    HICON (*getIcon)();  ///< Asked when the class is registered; null for no icon.
    const char* title;   ///< Of the error dialog when it can't be registered.
    const char* failure; ///< And its text.

    /// The name to give to CreateWindowExA. When the class can't be registered that is reported, and the name
    /// is the plain one.
    std::string getRealName() const;
};
