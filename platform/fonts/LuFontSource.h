// SPDX-License-Identifier: MIT
#pragma once

#include "platform/fonts/LuFontFace.h"

#include <string>
#include <string_view>
#include <vector>

/// One font as the font library of the target gives it, without caches and without a replacement for
/// characters that it lacks: those give its own sign for a missing character.
class LuFontSource {
public:
    virtual ~LuFontSource() = default;

    /// The family's own name, UTF-8.
    virtual const std::string& getFamily() const = 0;

    virtual bool hasGlyph(char32_t character) = 0;

    /// Appends the unhinted outline to `outline`; the result is the unhinted advance. All in em units, y up.
    virtual float loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) = 0;

    /// Heights above and below the base line, in em units, both positive.
    virtual float getAscent() const = 0;
    virtual float getDescent() const = 0;

    /// Hinted advance in pixels at an em size of `pixels`, which is above 0.
    virtual int loadPixelAdvance(char32_t character, int pixels) = 0;

    /// Height of a line in pixels at an em size of `pixels`, which is above 0.
    virtual int loadLineHeight(int pixels) = 0;
};

/// The fonts of the system. Each target has its own implementation. A source is made once for each font and
/// stays to the end of the process.
struct LuFontLibrary {
    /// The font of a family, or the nearest; null when no font can be had. `isExact` tells whether the
    /// family is there.
    static LuFontSource* findFamily(std::string_view family, bool& isExact);

    /// A font that has `character`, near in style to the family of `source`; null when none has it.
    static LuFontSource* findCharacter(char32_t character, const LuFontSource& source);
};
