// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvString.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace std::string_literals;

std::u32string decodeAll(std::string_view text) {
    std::u32string result;
    for (std::size_t position = 0; position < text.size();)
        result += LuUtf8::next(text, position);
    return result;
}

TEST(LvString, newText_isEmpty) {
    EXPECT_TRUE(LvString().isEmpty());
    EXPECT_EQ(LvString().getLength(), 0);
    EXPECT_STREQ(LvString().getString(), "");
}

TEST(LvString, nullPointer_standsForTheEmptyText) {
    const char* const none = nullptr;
    LvString text(none);
    EXPECT_TRUE(text.isEmpty());
    EXPECT_TRUE(text == none);
    text += none;
    EXPECT_TRUE(text.isEmpty());
    EXPECT_FALSE(LvString("a") == none);
}

TEST(LvString, texts_areAppended) {
    LvString text = "one";
    text += LvString(" two");
    text += " three";
    text += '!';
    EXPECT_EQ(text, "one two three!");
    EXPECT_EQ(LvString("a") + LvString("b"), "ab");
    EXPECT_EQ(LvString("a") + "b", "ab");
    EXPECT_EQ("a" + LvString("b"), "ab");
}

TEST(LvString, textAppendedToItself_isDoubled) {
    LvString text = "ab";
    text += text;
    EXPECT_EQ(text, "abab");
}

TEST(LvString, comparison_isByText) {
    EXPECT_EQ(LvString("same"), LvString("same"));
    EXPECT_NE(LvString("same"), LvString("Same"));
    EXPECT_NE(LvString("same"), "sam");
    EXPECT_NE(LvString("a\0b"s), LvString("a\0c"s));
}

TEST(LvString, length_countsBytes) {
    EXPECT_EQ(LvString("\xC3\xA9").getLength(), 2);
    EXPECT_EQ(LvString("a\0b"s).getLength(), 3);
}

TEST(LvString, find_givesTheFirstPositionFromTheStart) {
    const LvString text = "one two one";
    EXPECT_EQ(text.find("one"), 0);
    EXPECT_EQ(text.find("one", 1), 8);
    EXPECT_EQ(text.find("two"), 4);
    EXPECT_EQ(text.find("", 3), 3);
}

TEST(LvString, find_givesNposWhenThereIsNothing) {
    const LvString text = "one two";
    EXPECT_EQ(text.find("three"), LvString::npos);
    EXPECT_EQ(text.find("one", 1), LvString::npos);
    EXPECT_EQ(text.find("one", 100), LvString::npos);
    EXPECT_EQ(LvString().find("one"), LvString::npos);
}

TEST(LvString, find_fromANegativeStart_beginsAtTheStart) { EXPECT_EQ(LvString("ab").find("a", -5), 0); }

TEST(LvString, subString_runsUpToTheEnd) {
    const LvString text = "abcdef";
    EXPECT_EQ(text.getSubString(1, 3), "bc");
    EXPECT_EQ(text.getSubString(0, 6), "abcdef");
    EXPECT_EQ(text.getSubString(2), "cdef");
    EXPECT_EQ(text.getSubString(2, -1), "cdef");
    EXPECT_EQ(text.getSubString(3, 3), "");
}

TEST(LvString, subString_outsideTheText_isMovedToItsEnds) {
    const LvString text = "abc";
    EXPECT_EQ(text.getSubString(-4, 2), "ab");
    EXPECT_EQ(text.getSubString(1, 100), "bc");
    EXPECT_EQ(text.getSubString(100), "");
    EXPECT_EQ(text.getSubString(100, 200), "");
    EXPECT_EQ(text.getSubString(2, 1), "");
    EXPECT_EQ(LvString().getSubString(0, 1), "");
}

TEST(LvString, latin1_comesBackForEveryByte) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(static_cast<unsigned char>(byte));
    const LvString text = LvString::fromLatin1(bytes);
    EXPECT_EQ(text.getLength(), 128 + 2 * 128);
    EXPECT_EQ(text.toLatin1(), bytes);
}

TEST(LvString, latin1_knowsTheUmlaut) { EXPECT_EQ(LvString::fromLatin1("\xFC"), "\xC3\xBC"); }

TEST(LvString, characterOutsideLatin1_becomesAQuestionMark) {
    EXPECT_EQ(LvString("a\xE2\x82\xAC"
                       "b")
                  .toLatin1(),
              "a?b");
    EXPECT_EQ(LvString("\xFF").toLatin1(), "?");
}

TEST(LvString, wideText_comesBack) {
    for (const char* text : {"", "plain", "\xC3\xBC", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(LvString::fromWide(LvString(text).toWide()), text);
}

TEST(LvString, wideText_hasTheUnitsOfTheSystem) {
    EXPECT_EQ(LvString("\xE2\x82\xAC").toWide(), std::wstring(1, static_cast<wchar_t>(0x20AC)));
    const std::wstring smile = LvString("\xF0\x9F\x98\x80").toWide();
    if (sizeof(wchar_t) == 2) {
        ASSERT_EQ(smile.size(), 2u);
        EXPECT_EQ(static_cast<unsigned>(smile[0]), 0xD83Du);
        EXPECT_EQ(static_cast<unsigned>(smile[1]), 0xDE00u);
    } else {
        ASSERT_EQ(smile.size(), 1u);
        EXPECT_EQ(static_cast<unsigned>(smile[0]), 0x1F600u);
    }
}

TEST(LvString, loneSurrogate_becomesTheReplacement) {
    for (const unsigned unit : {0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu}) {
        EXPECT_EQ(LvString::fromWide(std::wstring(1, static_cast<wchar_t>(unit))), "\xEF\xBF\xBD");
        const std::wstring between{L'a', static_cast<wchar_t>(unit), L'b'};
        EXPECT_EQ(LvString::fromWide(between), "a\xEF\xBF\xBD"
                                               "b");
    }
}

TEST(LuUtf8, firstAndLastOfEachLength_comeBack) {
    for (const char32_t character :
         {0x00u, 0x7Fu, 0x80u, 0x7FFu, 0x800u, 0xD7FFu, 0xE000u, 0xFFFFu, 0x10000u, 0x10FFFFu}) {
        std::string text;
        LuUtf8::append(text, character);
        EXPECT_EQ(decodeAll(text), std::u32string(1, character));
        EXPECT_EQ(LuUtf8::validLength(text), text.size());
    }
}

TEST(LuUtf8, next_movesBehindTheCharacter) {
    const std::string_view text = "\xC3\xA9x";
    std::size_t position = 0;
    EXPECT_EQ(LuUtf8::next(text, position), U'\u00E9');
    EXPECT_EQ(position, 2u);
    EXPECT_EQ(LuUtf8::next(text, position), U'x');
    EXPECT_EQ(position, 3u);
}

TEST(LuUtf8, invalidBytes_giveOneReplacementEach) {
    struct Row {
        const char* text;
        std::size_t replacements;
    };
    const Row rows[] = {
        {"\x80", 1},             // a following byte without a lead
        {"\xC0\x80", 2},         // overlong zero
        {"\xC1\xBF", 2},         // overlong 7F
        {"\xE0\x9F\xBF", 3},     // overlong 7FF
        {"\xF0\x8F\xBF\xBF", 4}, // overlong FFFF
        {"\xED\xA0\x80", 3},     // surrogate
        {"\xF4\x90\x80\x80", 4}, // beyond the last character
        {"\xF5\x80\x80\x80", 4}, // no lead at all
        {"\xE2\x82", 2},         // cut off
        {"\xFF", 1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(decodeAll(row.text), std::u32string(row.replacements, U'\uFFFD')) << row.text;
        EXPECT_EQ(LuUtf8::validLength(row.text), 0u) << row.text;
    }
}

TEST(LuUtf8, characterBehindInvalidBytes_isRead) { EXPECT_EQ(decodeAll("\xE2\x82x"), U"\uFFFD\uFFFDx"); }

TEST(LuUtf8, validLength_stopsAtTheFirstInvalidByte) {
    EXPECT_EQ(LuUtf8::validLength(""), 0u);
    EXPECT_EQ(LuUtf8::validLength("a\xC3\xA9"), 3u);
    EXPECT_EQ(LuUtf8::validLength("a\xC3\xA9\xE2\x82"), 3u);
    EXPECT_EQ(LuUtf8::validLength("a\xFF"
                                  "b"),
              1u);
}

// Numbers

struct NumberCase {
    const char* text;
    int whole;
    float real;
};

constexpr float ENDLESS = std::numeric_limits<float>::infinity();
constexpr int LOWEST = std::numeric_limits<int>::min();
constexpr int HIGHEST = std::numeric_limits<int>::max();

constexpr NumberCase NUMBERS[] = {{"", 0, 0},
                                  {" ", 0, 0},
                                  {"-", 0, 0},
                                  {".", 0, 0},
                                  {"x", 0, 0},
                                  {"12", 12, 12},
                                  {" \t-12 \n", -12, -12},
                                  {"+3", 3, 3},
                                  {"+-3", 0, 0},
                                  {"2.5", 2, 2.5F},
                                  {".5", 0, 0.5F},
                                  {"1.", 1, 1},
                                  {"2,5", 2, 2},
                                  {"1e2", 1, 100},
                                  {"1e", 1, 1},
                                  {"1x", 1, 1},
                                  {"12 34", 12, 12},
                                  {"0x10", 0, 0},
                                  {"2147483647", HIGHEST, 2147483648.0F},
                                  {"2147483648", HIGHEST, 2147483648.0F},
                                  {"-99999999999", LOWEST, -99999999999.0F},
                                  {"1e39", 1, ENDLESS},
                                  {"-1e39", -1, -ENDLESS},
                                  {"1e999", 1, ENDLESS},
                                  {"-1e999", -1, -ENDLESS},
                                  {"1e-50", 1, 0},
                                  {"1e-999", 1, 0},
                                  {"inf", 0, ENDLESS}};

TEST(LvString, text_givesItsNumber) {
    for (const auto& [text, whole, real] : NUMBERS) {
        EXPECT_EQ(LvString(text).toInt(), whole) << text;
        EXPECT_EQ(LvString(text).toFloat(), real) << text;
    }
}

TEST(LvString, manyDigits_areTooGreatOrTooSmallForAFloat) {
    EXPECT_EQ(LvString(std::string(400, '9')).toFloat(), ENDLESS);
    EXPECT_EQ(LvString("0." + std::string(400, '0') + "1").toFloat(), 0);
}

} // namespace
