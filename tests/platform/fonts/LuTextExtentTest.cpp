// SPDX-License-Identifier: MIT
#include "platform/fonts/LuFontFace.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

/// Advances from the space to the tilde in pixels, as GDI gives them one by one for Tahoma.
constexpr int AT_11_PIXELS[95] = {
    3,  3, 5, 8, 6, 12, 8, 3,  4, 4, 7, 9, 3, 4, 3, 4, //
    6,  6, 6, 6, 6, 6,  6, 6,  6, 6, 3, 4, 8, 8, 8, 5, //
    10, 7, 7, 7, 7, 6,  6, 7,  8, 4, 5, 7, 6, 9, 8, 8, //
    6,  8, 7, 6, 7, 7,  7, 10, 6, 7, 7, 4, 4, 4, 8, 6, //
    6,  7, 6, 6, 7, 7,  4, 7,  7, 3, 3, 6, 3, 9, 7, 6, //
    6,  7, 4, 5, 4, 7,  5, 8,  5, 5, 6, 5, 5, 5, 9,
};
constexpr int AT_16_PIXELS[95] = {
    5,  5,  7,  12, 9,  16, 11, 4,  6,  6, 9,  11, 5,  6,  4,  6,  //
    9,  9,  9,  9,  9,  9,  9,  9,  9,  9, 6,  6,  12, 13, 12, 8,  //
    15, 10, 10, 11, 11, 9,  8,  11, 11, 7, 7,  9,  8,  12, 11, 12, //
    9,  12, 9,  10, 10, 10, 10, 14, 9,  9, 10, 6,  6,  7,  12, 9,  //
    9,  9,  9,  8,  10, 9,  6,  10, 9,  4, 5,  8,  4,  14, 9,  10, //
    9,  10, 6,  8,  6,  9,  8,  12, 8,  8, 8,  8,  6,  8,  12,
};

const LuFontFace& tahoma() { return *LuFontFace::find("Tahoma"); }

int widthOf(std::string_view text, int pixels) { return tahoma().getTextExtent(text, pixels).width; }

struct Measured {
    const char* text;
    int pixels;
    int width;
    int height;
};

void PrintTo(const Measured& measured, std::ostream* stream) {
    *stream << '"' << measured.text << "\" at " << measured.pixels;
}

class TextExtent : public testing::TestWithParam<Measured> {};

TEST_P(TextExtent, text_hasTheExtentThatTheWindowSystemGives) {
    const LuPixelExtent extent = tahoma().getTextExtent(GetParam().text, GetParam().pixels);
    EXPECT_EQ(extent.width, GetParam().width);
    EXPECT_EQ(extent.height, GetParam().height);
}

INSTANTIATE_TEST_SUITE_P(Labels, TextExtent,
                         testing::Values(Measured{"OK", 11, 15, 13}, Measured{"Cancel", 11, 37, 13},
                                         Measured{"The quick brown fox", 11, 105, 13},
                                         Measured{"AVAWA To", 11, 54, 13}, Measured{"OK", 16, 21, 19},
                                         Measured{"Cancel", 16, 50, 19}, Measured{"AVAWA To", 16, 79, 19}));
INSTANTIATE_TEST_SUITE_P(Sizes, TextExtent,
                         testing::Values(Measured{"The quick brown fox", 5, 48, 6},
                                         Measured{"The quick brown fox", 9, 84, 11},
                                         Measured{"The quick brown fox", 12, 112, 14},
                                         Measured{"The quick brown fox", 13, 122, 16},
                                         Measured{"The quick brown fox", 24, 223, 29},
                                         Measured{"The quick brown fox", 48, 436, 58},
                                         Measured{"The quick brown fox", 100, 908, 121}));
INSTANTIATE_TEST_SUITE_P(BeyondAscii, TextExtent,
                         testing::Values(Measured{"Stra\u00DFe \u00E9t\u00E9", 11, 55, 13},
                                         Measured{"\u0416\u0438\u0437\u043D\u044C", 11, 34, 13},
                                         Measured{"\u0416\u0438\u0437\u043D\u044C", 16, 48, 19},
                                         Measured{"1.25 \u20AC", 11, 30, 13},
                                         Measured{"\u4E2D\u6587", 11, 22, 13}));

TEST(TextExtentOfCharacters, at11Pixels_agreeWithTheWindowSystem) {
    for (int i = 0; i < 95; ++i) {
        const std::string character(1, static_cast<char>(' ' + i));
        EXPECT_EQ(widthOf(character, 11), AT_11_PIXELS[i]) << character;
    }
}

TEST(TextExtentOfCharacters, at16Pixels_agreeWithTheWindowSystem) {
    for (int i = 0; i < 95; ++i) {
        const std::string character(1, static_cast<char>(' ' + i));
        EXPECT_EQ(widthOf(character, 16), AT_16_PIXELS[i]) << character;
    }
}

TEST(TextExtentOfCharacters, sizesInTurn_keepTheirAdvances) {
    for (int round = 0; round < 2; ++round) {
        // More sizes than are kept.
        for (int pixels = 8; pixels < 60; ++pixels)
            EXPECT_GT(widthOf("Cancel", pixels), 0) << pixels;
        EXPECT_EQ(widthOf("Cancel", 11), 37);
        EXPECT_EQ(widthOf("Cancel", 16), 50);
    }
}

TEST(TextExtentOfNothing, emptyText_hasTheHeightOfALine) {
    const LuPixelExtent extent = tahoma().getTextExtent("", 11);
    EXPECT_EQ(extent.width, 0);
    EXPECT_EQ(extent.height, 13);
}

TEST(TextExtentOfNothing, sizeOfZeroOrLess_isEmpty) {
    for (const int pixels : {0, -1, -11, std::numeric_limits<int>::min()}) {
        const LuPixelExtent extent = tahoma().getTextExtent("Cancel", pixels);
        EXPECT_EQ(extent.width, 0) << pixels;
        EXPECT_EQ(extent.height, 0) << pixels;
    }
}

TEST(TextExtentOfGiants, sizeBeyondAllHinting_growsWithTheSize) {
    const LuPixelExtent extent = tahoma().getTextExtent("o", 20000);
    EXPECT_NEAR(extent.width, 20000 * tahoma().getGlyphMetrics(U'o').advance, 1);
    EXPECT_NEAR(extent.height, 20000 * (tahoma().getAscent() + tahoma().getDescent()), 1);
}

TEST(TextExtentOfBadText, eachInvalidByte_countsAsAReplacementCharacter) {
    const int replacement = widthOf("\uFFFD", 11);
    EXPECT_GT(replacement, 0);
    EXPECT_EQ(widthOf("a\xFF\xFE"
                      "b",
                      11),
              widthOf("ab", 11) + 2 * replacement);
}

TEST(TextExtentOfBadText, sequenceThatIsCutOff_countsAsReplacementCharacters) {
    const int replacement = widthOf("\uFFFD", 11);
    EXPECT_EQ(widthOf("a\xC3", 11), widthOf("a", 11) + replacement);
    EXPECT_EQ(widthOf("\xE4\xB8", 11), 2 * replacement);
    EXPECT_EQ(widthOf("\xF0\x9F\x98", 11), 3 * replacement);
}

TEST(TextExtentOfBadText, longFormOfASlash_isNoSlash) {
    EXPECT_EQ(widthOf("\xC0\xAF", 11), 2 * widthOf("\uFFFD", 11));
}

} // namespace
