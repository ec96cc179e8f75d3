// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuNodeKitDetail.h"

LuType LuNodeKitDetail::getClassTypeId() {
    static const LuType s_type = LuType::createType(LuDetail::getClassTypeId(), "NodeKitDetail", nullptr, 0);
    return s_type;
}
