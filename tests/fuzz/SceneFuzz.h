// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/lumora/io/SceneReading.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

inline void require(bool isTrue, const char* what) {
    if (isTrue)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

/// Reads a scene. Either there is exactly one message, or what was read can be written in both formats, read
/// again, and is equal then.
inline void checkScene(std::string_view content) {
    LuDB::init();
    const Reading first = readScene(content);
    require(first.errors.size() == (first.root ? 0u : 1u),
            "a fault without a message, or a message without a fault");
    for (const bool isBinary : {false, true}) {
        if (!first.root)
            break;
        const std::string written = writeScene(first.root.get(), isBinary);
        const Reading second = readScene(written);
        require(second.root != nullptr, "what was written can't be read");
        require(first.root->isEqual(*second.root), "what was read again differs");
        require(writeScene(second.root.get(), isBinary) == written, "what was written again differs");
    }
    LuDB::finish();
}
