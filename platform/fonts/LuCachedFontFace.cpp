// SPDX-License-Identifier: MIT
#include "platform/fonts/LuCachedFontFace.h"

#include "platform/fonts/LuFontSource.h"
#include "platform/fonts/LuOutlineBuilder.h"
#include "platform/lumora/base/LvString.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

/// An application that sweeps over sizes keeps no more than these; the one least lately used goes.
constexpr std::size_t MAX_PIXEL_SIZES = 32;

bool isControl(char32_t character) { return character < 0x20 || (character >= 0x7F && character < 0xA0); }

} // namespace

LuCachedFontFace::LuCachedFontFace(LuFontSource& source) : m_source(source) {}

LuFontSource& LuCachedFontFace::getSourceFor(char32_t character) const {
    if (isControl(character) || m_source.hasGlyph(character))
        return m_source;
    const auto [place, isNew] = m_replacements.try_emplace(character, &m_source);
    if (isNew) {
        if (LuFontSource* other = LuFontLibrary::findCharacter(character, m_source))
            place->second = other;
    }
    return *place->second;
}

LuGlyphMetrics LuCachedFontFace::loadMetrics(char32_t character) const {
    LuGlyphMetrics metrics;
    std::vector<LuOutlineContour> outline;
    metrics.advance = getSourceFor(character).loadGlyph(character, outline);
    luMeasureOutline(outline, metrics);
    return metrics;
}

const LuGlyphMetrics& LuCachedFontFace::getGlyphMetrics(char32_t character) const {
    if (character < ASCII_COUNT && m_isAsciiLoaded[character])
        return m_asciiMetrics[character];
    return findGlyphMetrics(character);
}

/// Apart, so that the short way above saves no registers for the long one.
[[gnu::noinline]] const LuGlyphMetrics& LuCachedFontFace::findGlyphMetrics(char32_t character) const {
    if (character < ASCII_COUNT) {
        m_asciiMetrics[character] = loadMetrics(character);
        m_isAsciiLoaded[character] = true;
        return m_asciiMetrics[character];
    }
    const auto place = m_otherMetrics.find(character);
    if (place != m_otherMetrics.end())
        return place->second;
    return m_otherMetrics.emplace(character, loadMetrics(character)).first->second;
}

std::vector<LuOutlineContour> LuCachedFontFace::getGlyphOutline(char32_t character) const {
    std::vector<LuOutlineContour> outline;
    getSourceFor(character).loadGlyph(character, outline);
    return outline;
}

float LuCachedFontFace::getAscent() const { return m_source.getAscent(); }

float LuCachedFontFace::getDescent() const { return m_source.getDescent(); }

LuCachedFontFace::PixelSize& LuCachedFontFace::getPixelSize(int pixels) const {
    const auto place = std::find_if(m_pixelSizes.begin(), m_pixelSizes.end(),
                                    [pixels](const auto& size) { return size->pixels == pixels; });
    if (place != m_pixelSizes.end()) {
        std::rotate(m_pixelSizes.begin(), place, place + 1);
        return *m_pixelSizes.front();
    }
    if (m_pixelSizes.size() == MAX_PIXEL_SIZES)
        m_pixelSizes.pop_back();
    auto size = std::make_unique<PixelSize>();
    size->pixels = pixels;
    size->lineHeight = m_source.loadLineHeight(pixels);
    size->asciiAdvances.fill(-1);
    return **m_pixelSizes.insert(m_pixelSizes.begin(), std::move(size));
}

int LuCachedFontFace::getPixelAdvance(PixelSize& size, char32_t character) const {
    // The window system measures with the face alone: no replacement here.
    if (character < ASCII_COUNT) {
        int& advance = size.asciiAdvances[character];
        if (advance < 0)
            advance = m_source.loadPixelAdvance(character, size.pixels);
        return advance;
    }
    const auto [place, isNew] = size.otherAdvances.try_emplace(character, 0);
    if (isNew)
        place->second = m_source.loadPixelAdvance(character, size.pixels);
    return place->second;
}

LuPixelExtent LuCachedFontFace::getTextExtent(std::string_view text, int pixels) const {
    if (pixels <= 0)
        return {};
    PixelSize& size = getPixelSize(pixels);
    std::int64_t width = 0;
    for (std::size_t position = 0; position < text.size();) {
        const auto byte = static_cast<unsigned char>(text[position]);
        if (byte < ASCII_COUNT && size.asciiAdvances[byte] >= 0) {
            width += size.asciiAdvances[byte];
            ++position;
        } else {
            width += getPixelAdvance(size, LuUtf8::next(text, position));
        }
    }
    const std::int64_t limit = std::numeric_limits<int>::max();
    return {static_cast<int>(std::min(width, limit)), size.lineHeight};
}
