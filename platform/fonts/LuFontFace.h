// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Measures of one glyph in em units: multiply by a font size to get scene units. y points up.
struct LuGlyphMetrics {
    float advance = 0; ///< Distance to the next glyph's origin, unhinted.
    float minX = 0, minY = 0, maxX = 0,
          maxY = 0;      ///< Exact box of the outline (curve extremes, not control points).
    bool isEmpty = true; ///< No outline at all (a space): the box says nothing.
};

/// One piece of a contour: a line when `isCurve` is false, else a quadratic curve with one control point.
/// A piece starts where the piece before it ends.
struct LuOutlineSegment {
    bool isCurve = false;
    float controlX = 0, controlY = 0;
    float x = 0, y = 0;
};

/// A closed contour, in em units, y up.
struct LuOutlineContour {
    float startX = 0, startY = 0;
    std::vector<LuOutlineSegment> segments;
};

/// Width and height in whole pixels.
struct LuPixelExtent {
    int width = 0;
    int height = 0;
};

/// A typeface of the system: outlines and metrics, whatever the font library behind it.
///
/// Faces are made once per family name and live to the end of the process. Everything is for the one thread
/// of the user interface.
class LuFontFace {
public:
    /// The face of a family name ("Tahoma", UTF-8). An unknown name gives the nearest face of the system, a
    /// system without any font gives a face whose glyphs are empty boxes of half an em; each says so once
    /// through LuDebugError. Never null.
    static const LuFontFace* find(std::string_view family);

    virtual ~LuFontFace() = default;

    /// The measures of a character, from a cache: the reference holds until the process ends. A character
    /// that the face lacks is taken from another font of the system, from the face's sign for a missing one
    /// when no font has it.
    virtual const LuGlyphMetrics& getGlyphMetrics(char32_t character) const = 0;

    /// The outline of a character; empty for a space.
    virtual std::vector<LuOutlineContour> getGlyphOutline(char32_t character) const = 0;

    /// Heights above and below the base line, in em units, both positive.
    virtual float getAscent() const = 0;
    virtual float getDescent() const = 0;

    /// Extent of one line of UTF-8 text as the window system draws it at a font height of `pixels` (the em
    /// size, CreateFont's negative height): hinted advances without kerning, height of a line. Characters
    /// that the face lacks count as its sign for a missing one, each byte that is no valid UTF-8 as U+FFFD.
    /// Nothing at all when `pixels` is not above 0.
    virtual LuPixelExtent getTextExtent(std::string_view text, int pixels) const = 0;
};
