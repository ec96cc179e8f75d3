// SPDX-License-Identifier: MIT
#include "platform/fonts/LuFontFace.h"

#include "platform/fonts/LuBoxFontSource.h"
#include "platform/fonts/LuCachedFontFace.h"
#include "platform/fonts/LuOutlineBuilder.h"
#include "tests/host/TestHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace {

constexpr float TAHOMA_EM = 2048;

const LuFontFace& tahoma() { return *LuFontFace::find("Tahoma"); }

double areaOf(const LuOutlineContour& contour) {
    double area = 0;
    float x = contour.startX, y = contour.startY;
    for (const LuOutlineSegment& segment : contour.segments) {
        area += (static_cast<double>(x) * segment.y - static_cast<double>(segment.x) * y) / 2;
        x = segment.x;
        y = segment.y;
    }
    return area;
}

bool isClosed(const LuOutlineContour& contour) {
    const LuOutlineSegment& last = contour.segments.back();
    return last.x == contour.startX && last.y == contour.startY;
}

/// In units of the font: what its own tables say.
struct Glyph {
    char32_t character;
    float advance, minX, minY, maxX, maxY;
    std::size_t contours;
};

void PrintTo(const Glyph& glyph, std::ostream* stream) {
    *stream << "U+" << std::hex << static_cast<unsigned>(glyph.character);
}

class TahomaGlyph : public testing::TestWithParam<Glyph> {};

TEST_P(TahomaGlyph, metrics_areTheFontsOwn) {
    const Glyph& glyph = GetParam();
    const LuGlyphMetrics& metrics = tahoma().getGlyphMetrics(glyph.character);
    // A hundredth of a unit: extremes of curves lie between the units.
    EXPECT_FLOAT_EQ(metrics.advance * TAHOMA_EM, glyph.advance);
    EXPECT_NEAR(metrics.minX * TAHOMA_EM, glyph.minX, 0.02);
    EXPECT_NEAR(metrics.minY * TAHOMA_EM, glyph.minY, 0.02);
    EXPECT_NEAR(metrics.maxX * TAHOMA_EM, glyph.maxX, 0.02);
    EXPECT_NEAR(metrics.maxY * TAHOMA_EM, glyph.maxY, 0.02);
    EXPECT_FALSE(metrics.isEmpty);
}

TEST_P(TahomaGlyph, outline_hasClosedContours) {
    const auto outline = tahoma().getGlyphOutline(GetParam().character);
    ASSERT_EQ(outline.size(), GetParam().contours);
    EXPECT_TRUE(std::all_of(outline.begin(), outline.end(), isClosed));
}

INSTANTIATE_TEST_SUITE_P(
    Characters, TahomaGlyph,
    testing::Values(Glyph{U'A', 1229, -10, 0, 1238, 1493, 2}, Glyph{U'o', 1112, 57, -29, 1055, 1147, 2},
                    Glyph{U'g', 1133, 59, -414.094f, 990, 1163.81f, 2},
                    Glyph{U'|', 782, 307, -483, 477, 1565, 1}, Glyph{U'@', 1862, 131, -216, 1760, 1536, 2},
                    Glyph{U'i', 469, 127, 0, 311, 1556, 2}, Glyph{U'\u00E9', 1077, 59, -26, 1040, 1638, 3},
                    Glyph{U'\u0416', 1831, 0, 0, 1830, 1489, 1}));

TEST(FontFaceOutline, ofAnO_isARingWhoseBoxIsThatOfTheMetrics) {
    const auto outline = tahoma().getGlyphOutline(U'o');
    ASSERT_EQ(outline.size(), 2u);
    const double first = areaOf(outline[0]), second = areaOf(outline[1]);
    EXPECT_LT(first * second, 0) << "the hole runs the other way round";
    EXPECT_NE(std::abs(first), std::abs(second));

    LuGlyphMetrics box;
    luMeasureOutline(outline, box);
    const LuGlyphMetrics& metrics = tahoma().getGlyphMetrics(U'o');
    EXPECT_EQ(box.minX, metrics.minX);
    EXPECT_EQ(box.minY, metrics.minY);
    EXPECT_EQ(box.maxX, metrics.maxX);
    EXPECT_EQ(box.maxY, metrics.maxY);
}

TEST(FontFaceOutline, ofASpace_isEmptyAndAdvances) {
    EXPECT_TRUE(tahoma().getGlyphOutline(U' ').empty());
    const LuGlyphMetrics& metrics = tahoma().getGlyphMetrics(U' ');
    EXPECT_TRUE(metrics.isEmpty);
    EXPECT_FLOAT_EQ(metrics.advance * TAHOMA_EM, 639);
}

TEST(FontFaceHeights, ofTahoma_areTheFontsOwn) {
    EXPECT_FLOAT_EQ(tahoma().getAscent() * TAHOMA_EM, 2049);
    EXPECT_FLOAT_EQ(tahoma().getDescent() * TAHOMA_EM, 423);
}

TEST(FontFaceFallback, characterThatTheFaceLacks_comesFromAnother) {
    // No Greek in this Tahoma: were it drawn with the sign for a missing character, the two would be alike.
    const LuGlyphMetrics& alpha = tahoma().getGlyphMetrics(U'\u03B1');
    const LuGlyphMetrics& omega = tahoma().getGlyphMetrics(U'\u03A9');
    EXPECT_FALSE(alpha.isEmpty);
    EXPECT_FALSE(omega.isEmpty);
    EXPECT_NE(alpha.advance, omega.advance);
    EXPECT_GT(omega.maxY, alpha.maxY + 0.1f);
    EXPECT_FALSE(tahoma().getGlyphOutline(U'\u03A9').empty());
}

TEST(FontFaceFallback, characterBeyondSixteenBits_comesFromAnother) {
    // Mathematical A and B with double strokes.
    const LuGlyphMetrics& first = tahoma().getGlyphMetrics(U'\U0001D538');
    const LuGlyphMetrics& second = tahoma().getGlyphMetrics(U'\U0001D539');
    EXPECT_FALSE(first.isEmpty);
    EXPECT_FALSE(second.isEmpty);
    EXPECT_NE(first.maxX, second.maxX);
}

TEST(FontFaceFallback, characterThatNoFontHas_isTheSignForAMissingOne) {
    // Of the area for private use, and the last code of all.
    const LuGlyphMetrics& missing = tahoma().getGlyphMetrics(U'\U0010FFFD');
    EXPECT_FALSE(missing.isEmpty);
    EXPECT_GT(missing.advance, 0);
    EXPECT_EQ(tahoma().getGlyphMetrics(U'\U0010FFFC').advance, missing.advance);
}

TEST(FontFaceFind, sameFamilyTwice_isOneFace) {
    EXPECT_EQ(LuFontFace::find("Tahoma"), LuFontFace::find("Tahoma"));
    EXPECT_EQ(LuFontFace::find("Tahoma"), LuFontFace::find("TAHOMA"));
}

TEST(FontFaceFind, familyThatIsMissing_saysSoOnceAndGivesAFace) {
    expectMessageContaining("LuFontFace::find", "No font family \"No Such Family\", \"");
    const LuFontFace* face = LuFontFace::find("No Such Family");
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(LuFontFace::find("No Such Family"), face);
    EXPECT_GT(face->getTextExtent("Cancel", 11).width, 0);
    EXPECT_FALSE(face->getGlyphOutline(U'o').empty());
}

TEST(FontFaceFind, familyWithALongOrBrokenName_isMissing) {
    const std::string longName(5000, 'x');
    for (const std::string& name : {longName, std::string("Tahoma\xFF"), std::string()}) {
        expectMessageContaining("LuFontFace::find", "No font family \"" + name + "\"");
        ASSERT_NE(LuFontFace::find(name), nullptr);
    }
}

TEST(FontFaceOfBoxes, characters_areHollowBoxesOfHalfAnEm) {
    LuBoxFontSource boxes;
    const LuCachedFontFace face(boxes);
    const LuGlyphMetrics& metrics = face.getGlyphMetrics(U'x');
    EXPECT_EQ(metrics.advance, 0.5f);
    EXPECT_EQ(metrics.maxX - metrics.minX, 0.5f);
    EXPECT_EQ(metrics.maxY - metrics.minY, 0.5f);
    const auto outline = face.getGlyphOutline(U'x');
    ASSERT_EQ(outline.size(), 2u);
    EXPECT_LT(areaOf(outline[0]) * areaOf(outline[1]), 0);
    EXPECT_TRUE(face.getGlyphOutline(U' ').empty());
    EXPECT_EQ(face.getTextExtent("abc", 11).width, 18);
    EXPECT_EQ(face.getTextExtent("abc", 11).height, 11);
}

} // namespace
