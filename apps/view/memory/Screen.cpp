// SPDX-License-Identifier: MIT
#include "apps/view/Screen.h"

#include "platform/lumora/base/LuDebugError.h"

bool isScreenThere() {
    LuDebugError::post("panelix-view",
                       "There is nothing to be seen: this program keeps its windows in memory. It prints "
                       "them with --tree; the program built for Windows shows them.");
    return false;
}
