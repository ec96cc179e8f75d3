// SPDX-License-Identifier: MIT
#pragma once

#include "platform/fonts/LuFontFace.h"

#include <array>
#include <memory>
#include <unordered_map>
#include <vector>

class LuFontSource;

/// A face over a font of the system: caches what the font gives, and takes the outlines of characters that
/// the font lacks from another.
class LuCachedFontFace : public LuFontFace {
public:
    /// `source` stays its owner's and must live as long as the face.
    explicit LuCachedFontFace(LuFontSource& source);

    const LuGlyphMetrics& getGlyphMetrics(char32_t character) const override;
    std::vector<LuOutlineContour> getGlyphOutline(char32_t character) const override;
    float getAscent() const override;
    float getDescent() const override;
    LuPixelExtent getTextExtent(std::string_view text, int pixels) const override;

private:
    static constexpr std::size_t ASCII_COUNT = 128;

    /// What was asked for at one size in pixels.
    struct PixelSize {
        int pixels;
        int lineHeight;
        std::array<int, ASCII_COUNT> asciiAdvances; ///< -1: not asked for yet.
        std::unordered_map<char32_t, int> otherAdvances;
    };

    LuFontSource& getSourceFor(char32_t character) const;
    LuGlyphMetrics loadMetrics(char32_t character) const;
    const LuGlyphMetrics& findGlyphMetrics(char32_t character) const;
    PixelSize& getPixelSize(int pixels) const;
    int getPixelAdvance(PixelSize& size, char32_t character) const;

    LuFontSource& m_source;
    mutable std::array<LuGlyphMetrics, ASCII_COUNT> m_asciiMetrics;
    mutable std::array<bool, ASCII_COUNT> m_isAsciiLoaded{};
    mutable std::unordered_map<char32_t, LuGlyphMetrics> m_otherMetrics;
    mutable std::unordered_map<char32_t, LuFontSource*> m_replacements;
    mutable std::vector<std::unique_ptr<PixelSize>> m_pixelSizes; ///< The last one used comes first.
};
