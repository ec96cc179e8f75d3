// SPDX-License-Identifier: MIT
#include "platform/fonts/LuBoxFontSource.h"

#include "platform/fonts/LuOutlineBuilder.h"

namespace {

constexpr double SIDE = 0.5;
constexpr double STROKE = 0.03;

} // namespace

float LuBoxFontSource::loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) {
    if (character == U' ')
        return static_cast<float>(SIDE);
    constexpr double low = STROKE, high = SIDE - STROKE;
    LuOutlineBuilder builder(outline, 1);
    builder.moveTo({0, 0});
    builder.lineTo({0, SIDE});
    builder.lineTo({SIDE, SIDE});
    builder.lineTo({SIDE, 0});
    // The other way round: a hole.
    builder.moveTo({low, low});
    builder.lineTo({high, low});
    builder.lineTo({high, high});
    builder.lineTo({low, high});
    builder.close();
    return static_cast<float>(SIDE);
}

int LuBoxFontSource::loadPixelAdvance(char32_t, int pixels) { return pixels / 2 + pixels % 2; }
