// SPDX-License-Identifier: MIT
#pragma once

#include "platform/fonts/LuFontSource.h"

#include <ft2build.h>
#include FT_FREETYPE_H

/// A scalable font through FreeType.
class LuFreeTypeSource : public LuFontSource {
public:
    /// Takes over `face`, which must be scalable.
    LuFreeTypeSource(FT_Face face, std::string family);
    ~LuFreeTypeSource() override;
    LuFreeTypeSource(const LuFreeTypeSource&) = delete;
    LuFreeTypeSource& operator=(const LuFreeTypeSource&) = delete;

    const std::string& getFamily() const override { return m_family; }
    bool hasGlyph(char32_t character) override;
    float loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) override;
    float getAscent() const override;
    float getDescent() const override;
    int loadPixelAdvance(char32_t character, int pixels) override;
    int loadLineHeight(int pixels) override;

private:
    FT_UInt getGlyphIndex(char32_t character) const;

    FT_Face m_face;
    std::string m_family;
    bool m_isSymbol = false;
    int m_ascent = 0, m_descent = 0; ///< In font units, both positive.
    int m_pixels = 0;                ///< The em size that is set in the face; 0: none.
};
