// SPDX-License-Identifier: MIT
#pragma once

#include "platform/fonts/LuFontSource.h"

#include <cstdint>
#include <windows.h>

/// An outline font through GDI.
class LuGdiSource : public LuFontSource {
public:
    /// The font that GDI takes for a family name; null when GDI gives no outline font.
    static LuGdiSource* create(const std::wstring& family);

    ~LuGdiSource() override;
    LuGdiSource(const LuGdiSource&) = delete;
    LuGdiSource& operator=(const LuGdiSource&) = delete;

    const std::string& getFamily() const override { return m_family; }
    bool hasGlyph(char32_t character) override;
    float loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) override;
    float getAscent() const override { return m_ascent; }
    float getDescent() const override { return m_descent; }
    int loadPixelAdvance(char32_t character, int pixels) override;
    int loadLineHeight(int pixels) override;

private:
    explicit LuGdiSource(std::wstring requestedFamily);

    HFONT createFont(int pixels) const;
    void selectPixels(int pixels);
    void selectEm();
    /// The index of a character's glyph; 0 for one that is missing. The em font must be selected.
    WORD getGlyphIndex(char32_t character);
    /// The same for characters beyond 16 bits, which GDI's own question does not reach.
    WORD findInCharacterMap(char32_t character);
    /// The groups of the font's table for all of Unicode: first and last character, first glyph.
    void loadCharacterMap();

    struct Group {
        std::uint32_t first, last, glyph;
    };

    std::wstring m_requestedFamily;
    std::string m_family;
    HDC m_context = nullptr;
    HGDIOBJ m_originalFont = nullptr;
    HFONT m_emFont = nullptr;
    HFONT m_pixelFont = nullptr; ///< The last size that was measured.
    int m_pixels = 0;            ///< Its em size.
    double m_unitsPerEm = 0;
    float m_ascent = 0, m_descent = 0;
    bool m_isCharacterMapLoaded = false;
    std::vector<Group> m_groups;
};
