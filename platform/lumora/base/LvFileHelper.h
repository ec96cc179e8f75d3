// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"

#include <cstdio>
#include <string>

/// Files and paths. Paths are UTF-8 on every system.
class LvFileHelper {
public:
    /// What isAccessible asks for; the numbers may be added.
    enum Access { EXISTS = 0, WRITABLE = 2, READABLE = 4 };

    /// True when the file or directory is there and may be used so.
    static bool isAccessible(const LvString& path, int access);

    static bool isDirectory(const LvString& path);

    /// The path with slashes in place of backslashes.
    static LvString toUnixPath(const LvString& path);

    /// Puts the values of settings and of the environment in place of $NAME and ${NAME}. What is not set
    /// stays as it is written; values are not expanded again.
    static LvString expandString(const LvString& text);

    /// As std::fopen. Null on failure, with the cause in errno. The caller closes it.
    static std::FILE* openFile(const LvString& path, const char* mode);

    /// Reads all bytes of a file. False when that fails: then `content` is empty and `reason` says why in
    /// plain words that complete a sentence: "it does not exist", "it is a directory".
    static bool readWholeFile(const LvString& path, std::string& content, std::string& reason);
};
