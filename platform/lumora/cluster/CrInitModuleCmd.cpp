// SPDX-License-Identifier: MIT
#include "platform/lumora/cluster/CrInitModuleCmd.h"

CrInitModuleCmd* CrInitModuleCmd::Instance() {
    static CrInitModuleCmd s_instance;
    return &s_instance;
}
