// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuType.h"

/// What a node of a pick path has to say about the point, more than where it is.
class LuDetail : public LuTypedObject {
public:
    static LuType getClassTypeId();
    ~LuDetail() override = default;
};
