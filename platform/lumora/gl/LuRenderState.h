// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvName.h"
#include "platform/lumora/base/LvVec.h"

#include <cstdint>

/// How a surface looks. The colours at the start are those of a LuMaterial without any field set.
struct LuSurface {
    LvColor diffuse{0.8F, 0.8F, 0.8F};
    LvColor ambient{0.2F, 0.2F, 0.2F};
    LvColor specular{0, 0, 0};
    LvColor emissive{0, 0, 0};
    float shininess = 0.2F;
    float transparency = 0;

    friend bool operator==(const LuSurface&, const LuSurface&) = default;
};

/// What drawing inherits besides the place. A part of the scene that is entered with the same state as last
/// time, and has not changed, looks the same.
struct LuRenderState {
    LuSurface surface;
    LvName fontName;
    float fontSize = 0;
    std::uint64_t coordinates = 0; ///< The stamp of the current LuCoordinate3, 0 without one.
    std::uint32_t clipSet = 0;     ///< Entries of the draw list's tables.
    std::uint32_t lightSet = 0;

    friend bool operator==(const LuRenderState&, const LuRenderState&) = default;
};
