// SPDX-License-Identifier: MIT
#include "apps/view/Snapshot.h"

#include "platform/lumora/base/LuDebugError.h"

bool writeSnapshot(const std::vector<HWND>&, const std::string& path) {
    LuDebugError::post(
        "panelix-view",
        "\"%s\" is not written: this program keeps its windows in memory and draws nothing. The "
        "program built for Windows makes pictures.",
        path.c_str());
    return false;
}
