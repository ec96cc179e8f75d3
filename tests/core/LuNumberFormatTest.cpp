// SPDX-License-Identifier: MIT
#include "core/LuNumberFormat.h"

#include "tests/host/TestHost.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace {

LvString printWhole(const char* format, int number) {
    LuNumberFormat whole(LuNumberFormat::WHOLE, "%d");
    whole.set(format);
    return whole.print(number);
}

LvString printReal(const char* format, double number) {
    LuNumberFormat real(LuNumberFormat::REAL, "%.3f");
    real.set(format);
    return real.print(number);
}

TEST(LuNumberFormat, newFormat_isTheFallback) {
    EXPECT_EQ(LuNumberFormat(LuNumberFormat::WHOLE, "%d").print(12), "12");
    EXPECT_EQ(LuNumberFormat(LuNumberFormat::REAL, "%.3f").print(0.5), "0.500");
}

struct WholeCase {
    const char* format;
    int number;
    const char* text;
};

constexpr WholeCase WHOLE_CASES[] = {{"%d", -12, "-12"},
                                     {"%i", 7, "7"},
                                     {"%u", 7, "7"},
                                     {"%5d|", 42, "   42|"},
                                     {"%-5d|", 42, "42   |"},
                                     {"%05d", -42, "-0042"},
                                     {"%+d", 42, "+42"},
                                     {"% d", 42, " 42"},
                                     {"%.4d", -42, "-0042"},
                                     {"%06.4d", 42, "  0042"},
                                     {"%x", 255, "ff"},
                                     {"%#X", 255, "0XFF"},
                                     {"%#06x", 255, "0x00ff"},
                                     {"%o", 8, "10"},
                                     {"%d %%", 50, "50 %"},
                                     {"%%%d%%%%", 5, "%5%%"},
                                     {"about %d px", 3, "about 3 px"},
                                     {"%d \xc3\xa4", 3, "3 \xc3\xa4"},
                                     {"%d", std::numeric_limits<int>::min(), "-2147483648"}};

TEST(LuNumberFormat, goodWholeFormat_printsAsTheSystemDoes) {
    for (const auto& [format, number, text] : WHOLE_CASES)
        EXPECT_EQ(printWhole(format, number), text) << format;
}

struct RealCase {
    const char* format;
    double number;
    const char* text;
};

constexpr double ENDLESS = std::numeric_limits<double>::infinity();

constexpr RealCase REAL_CASES[] = {{"%f", 1.5, "1.500000"},
                                   {"%3f", 1.5, "1.500000"},
                                   {"%.1f", 0.25, "0.2"},
                                   {"%lf", 1, "1.000000"},
                                   {"%8.2f|", -1.5, "   -1.50|"},
                                   {"%08.2f", -1.5, "-0001.50"},
                                   {"%-8.2f|", 1.5, "1.50    |"},
                                   {"%+g", 1.5, "+1.5"},
                                   {"%e", 1500, "1.500000e+03"},
                                   {"%.0f", 2.5, "2"},
                                   {"%#.0f", 3, "3."},
                                   {"%G", 1e-10, "1E-10"},
                                   {"%.1f%%", 12.5, "12.5%"},
                                   {"%06.1f", ENDLESS, "   inf"},
                                   {"%.f", 1.5, "2"}};

TEST(LuNumberFormat, goodRealFormat_printsAsTheSystemDoes) {
    for (const auto& [format, number, text] : REAL_CASES)
        EXPECT_EQ(printReal(format, number), text) << format;
}

TEST(LuNumberFormat, greatestNumberWithTheGreatestPrecision_hasAllDigits) {
    const LvString text = printReal("%99.99f", -std::numeric_limits<double>::max());
    EXPECT_EQ(text.getLength(), 1 + 309 + 1 + 99);
}

struct BadCase {
    LuNumberFormat::Kind kind;
    const char* format;
    const char* fault;
};

constexpr auto WHOLE = LuNumberFormat::WHOLE;
constexpr auto REAL = LuNumberFormat::REAL;
constexpr const char* NONE = "it has no conversion";
constexpr const char* MANY = "it has more than one conversion";
constexpr const char* UNFIT = "its conversion does not fit";
constexpr const char* WIDE = "its width or its precision is too great";

constexpr BadCase BAD_CASES[] = {{WHOLE, "", NONE},
                                 {WHOLE, "text", NONE},
                                 {WHOLE, "100%%", NONE},
                                 {WHOLE, "%s", UNFIT},
                                 {WHOLE, "%n", UNFIT},
                                 {WHOLE, "%c", UNFIT},
                                 {WHOLE, "%p", UNFIT},
                                 {WHOLE, "%f", UNFIT},
                                 {WHOLE, "%*d", UNFIT},
                                 {WHOLE, "%.*d", UNFIT},
                                 {WHOLE, "%1$d", UNFIT},
                                 {WHOLE, "%'d", UNFIT},
                                 {WHOLE, "%ld", UNFIT},
                                 {WHOLE, "%lld", UNFIT},
                                 {WHOLE, "%hhd", UNFIT},
                                 {WHOLE, "%", UNFIT},
                                 {WHOLE, "%5", UNFIT},
                                 {WHOLE, "%d%d", MANY},
                                 {WHOLE, "%d%n", MANY},
                                 {WHOLE, "%d%", MANY},
                                 {WHOLE, "%1000000000d", WIDE},
                                 {WHOLE, "%99999999999999999999d", WIDE},
                                 {WHOLE, "%.1000000000d", WIDE},
                                 {REAL, "%d", UNFIT},
                                 {REAL, "%s", UNFIT},
                                 {REAL, "%n", UNFIT},
                                 {REAL, "%Lf", UNFIT},
                                 {REAL, "%llf", UNFIT},
                                 {REAL, "%hf", UNFIT},
                                 {REAL, "%*f", UNFIT},
                                 {REAL, "%f %f", MANY},
                                 {REAL, "%.100f", WIDE},
                                 {REAL, "", NONE}};

TEST(LuNumberFormat, badFormat_isReportedOnceAndTheFallbackTaken) {
    for (const auto& [kind, text, fault] : BAD_CASES) {
        const bool isWhole = kind == WHOLE;
        const std::string fallback = isWhole ? "%d" : "%.3f";
        LuNumberFormat format(kind, isWhole ? "%d" : "%.3f");
        expectMessage("LuNumberFormat", std::string("\"") + text + "\" is no format for a " +
                                            (isWhole ? "whole" : "real") + " number: " + fault + ". \"" +
                                            fallback + "\" is used instead.");
        for (int i = 0; i < 2; ++i) {
            format.set(text);
            EXPECT_EQ(isWhole ? format.print(5) : format.print(5.0), isWhole ? "5" : "5.000") << text;
        }
    }
}

TEST(LuNumberFormat, longBadFormat_isShownInPart) {
    LuNumberFormat format(LuNumberFormat::WHOLE, "%d");
    expectMessage("LuNumberFormat", "\"" + std::string(60, 'x') +
                                        "\" is no format for a whole number: it has no conversion. \"%d\" "
                                        "is used instead.");
    format.set(std::string(100000, 'x'));
}

TEST(LuNumberFormat, goodFormatAfterABadOne_isTaken) {
    LuNumberFormat format(LuNumberFormat::WHOLE, "%d");
    expectMessageContaining("LuNumberFormat", "\"%s\"");
    format.set("%s");
    format.set("<%d>");
    EXPECT_EQ(format.print(1), "<1>");
}

TEST(LuNumberFormat, decimalPointOfAnotherLocale_becomesAPoint) {
    const auto replace = [](std::string digits, std::string_view point) {
        luReplaceDecimalPoint(digits, point);
        return digits;
    };
    EXPECT_EQ(replace("-1,5e+10", ","), "-1.5e+10");
    EXPECT_EQ(replace("1\xd9\xab"
                      "5",
                      "\xd9\xab"),
              "1.5");
    EXPECT_EQ(replace("1.5", "."), "1.5");
    EXPECT_EQ(replace("15", ","), "15");
    EXPECT_EQ(replace("1.5", ""), "1.5");
}

/// Which of these locales a system has is its own business; the first, which all have, shows that the
/// conversion is made at all.
TEST(LuNumberFormat, numbers_lookTheSameInEachLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"C", "de_DE.UTF-8", "fr_FR.UTF-8", "German_Germany.1252"}) {
        const bool isThere = std::setlocale(LC_ALL, name) != nullptr;
        const LvString text = printReal("%.1f", 1.5);
        std::setlocale(LC_ALL, before.c_str());
        EXPECT_EQ(text, "1.5") << name << (isThere ? "" : ", which isn't there");
    }
}

} // namespace
