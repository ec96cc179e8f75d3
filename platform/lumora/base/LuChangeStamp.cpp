// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuChangeStamp.h"

std::uint64_t LuChangeStamp::takeNext() {
    static std::uint64_t s_last = 0;
    return ++s_last;
}
