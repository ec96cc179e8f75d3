// SPDX-License-Identifier: MIT
#include "platform/fonts/freetype/LuFreeTypeSource.h"

#include "platform/fonts/LuOutlineBuilder.h"

#include <cmath>

#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

namespace {

/// Fractional bits that the decomposition gets: a point between two control points lies between units.
constexpr int SHIFT = 6;

/// Symbol fonts keep their characters here, and are asked with the low byte.
constexpr char32_t SYMBOL_BASE = 0xF000;

/// The largest em size in pixels that instructions of fonts are run at.
constexpr int MAX_HINTED_PIXELS = 2048;

LuOutlineBuilder::Point pointOf(const FT_Vector* vector) {
    return {static_cast<double>(vector->x), static_cast<double>(vector->y)};
}

LuOutlineBuilder& builderOf(void* user) { return *static_cast<LuOutlineBuilder*>(user); }

int moveTo(const FT_Vector* to, void* user) {
    builderOf(user).moveTo(pointOf(to));
    return 0;
}

int lineTo(const FT_Vector* to, void* user) {
    builderOf(user).lineTo(pointOf(to));
    return 0;
}

int curveTo(const FT_Vector* control, const FT_Vector* to, void* user) {
    builderOf(user).curveTo(pointOf(control), pointOf(to));
    return 0;
}

int cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
    builderOf(user).cubicTo(pointOf(control1), pointOf(control2), pointOf(to));
    return 0;
}

int toPixels(double units, int pixels, int unitsPerEm) {
    return static_cast<int>(std::floor(units * pixels / unitsPerEm + 0.5));
}

} // namespace

LuFreeTypeSource::LuFreeTypeSource(FT_Face face, std::string family)
    : m_face(face), m_family(std::move(family)) {
    // Without a Unicode table FreeType selects none.
    if (!m_face->charmap)
        m_isSymbol = FT_Select_Charmap(m_face, FT_ENCODING_MS_SYMBOL) == 0;
    m_ascent = m_face->ascender;
    m_descent = -m_face->descender;
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(m_face, FT_SFNT_OS2));
    if (os2 && os2->usWinAscent + os2->usWinDescent != 0) {
        m_ascent = os2->usWinAscent;
        m_descent = os2->usWinDescent;
    }
}

LuFreeTypeSource::~LuFreeTypeSource() { FT_Done_Face(m_face); }

FT_UInt LuFreeTypeSource::getGlyphIndex(char32_t character) const {
    if (m_isSymbol && character < 0x100) {
        if (const FT_UInt index = FT_Get_Char_Index(m_face, SYMBOL_BASE + character))
            return index;
    }
    return FT_Get_Char_Index(m_face, character);
}

bool LuFreeTypeSource::hasGlyph(char32_t character) { return getGlyphIndex(character) != 0; }

float LuFreeTypeSource::loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) {
    if (FT_Load_Glyph(m_face, getGlyphIndex(character), FT_LOAD_NO_SCALE) != 0)
        return 0;
    const double scale = 1.0 / m_face->units_per_EM;
    FT_GlyphSlot slot = m_face->glyph;
    if (slot->format == FT_GLYPH_FORMAT_OUTLINE) {
        LuOutlineBuilder builder(outline, scale / (1 << SHIFT));
        const FT_Outline_Funcs functions{moveTo, lineTo, curveTo, cubicTo, SHIFT, 0};
        FT_Outline_Decompose(&slot->outline, &functions, &builder);
        builder.close();
    }
    return static_cast<float>(static_cast<double>(slot->advance.x) * scale);
}

float LuFreeTypeSource::getAscent() const {
    return static_cast<float>(m_ascent) / static_cast<float>(m_face->units_per_EM);
}

float LuFreeTypeSource::getDescent() const {
    return static_cast<float>(m_descent) / static_cast<float>(m_face->units_per_EM);
}

int LuFreeTypeSource::loadPixelAdvance(char32_t character, int pixels) {
    const FT_UInt index = getGlyphIndex(character);
    if (pixels <= MAX_HINTED_PIXELS && pixels != m_pixels)
        m_pixels = FT_Set_Pixel_Sizes(m_face, 0, static_cast<FT_UInt>(pixels)) == 0 ? pixels : 0;
    // Bitmaps within a font have other advances than the window system takes.
    if (pixels == m_pixels && FT_Load_Glyph(m_face, index, FT_LOAD_DEFAULT | FT_LOAD_NO_BITMAP) == 0)
        return static_cast<int>((m_face->glyph->advance.x + 32) >> 6);
    if (FT_Load_Glyph(m_face, index, FT_LOAD_NO_SCALE) != 0)
        return 0;
    return toPixels(static_cast<double>(m_face->glyph->advance.x), pixels, m_face->units_per_EM);
}

int LuFreeTypeSource::loadLineHeight(int pixels) {
    // Each is rounded for itself, as the window system does.
    return toPixels(m_ascent, pixels, m_face->units_per_EM) +
           toPixels(m_descent, pixels, m_face->units_per_EM);
}
