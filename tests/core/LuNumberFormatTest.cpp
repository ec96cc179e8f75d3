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

class LuNumberFormatWhole : public testing::TestWithParam<WholeCase> {};

TEST_P(LuNumberFormatWhole, goodFormat_printsAsTheSystemDoes) {
    EXPECT_EQ(printWhole(GetParam().format, GetParam().number), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(LuNumberFormat, LuNumberFormatWhole,
                         testing::Values(WholeCase{"%d", -12, "-12"}, WholeCase{"%i", 7, "7"},
                                         WholeCase{"%u", 7, "7"}, WholeCase{"%5d|", 42, "   42|"},
                                         WholeCase{"%-5d|", 42, "42   |"}, WholeCase{"%05d", -42, "-0042"},
                                         WholeCase{"%+d", 42, "+42"}, WholeCase{"% d", 42, " 42"},
                                         WholeCase{"%.4d", -42, "-0042"}, WholeCase{"%06.4d", 42, "  0042"},
                                         WholeCase{"%x", 255, "ff"}, WholeCase{"%#X", 255, "0XFF"},
                                         WholeCase{"%#06x", 255, "0x00ff"}, WholeCase{"%o", 8, "10"},
                                         WholeCase{"%d %%", 50, "50 %"}, WholeCase{"%%%d%%%%", 5, "%5%%"},
                                         WholeCase{"about %d px", 3, "about 3 px"},
                                         WholeCase{"%d \xc3\xa4", 3, "3 \xc3\xa4"},
                                         WholeCase{"%d", std::numeric_limits<int>::min(), "-2147483648"}));

struct RealCase {
    const char* format;
    double number;
    const char* text;
};

class LuNumberFormatReal : public testing::TestWithParam<RealCase> {};

TEST_P(LuNumberFormatReal, goodFormat_printsAsTheSystemDoes) {
    EXPECT_EQ(printReal(GetParam().format, GetParam().number), GetParam().text);
}

constexpr double ENDLESS = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(LuNumberFormat, LuNumberFormatReal,
                         testing::Values(RealCase{"%f", 1.5, "1.500000"}, RealCase{"%3f", 1.5, "1.500000"},
                                         RealCase{"%.1f", 0.25, "0.2"}, RealCase{"%lf", 1, "1.000000"},
                                         RealCase{"%8.2f|", -1.5, "   -1.50|"},
                                         RealCase{"%08.2f", -1.5, "-0001.50"},
                                         RealCase{"%-8.2f|", 1.5, "1.50    |"}, RealCase{"%+g", 1.5, "+1.5"},
                                         RealCase{"%e", 1500, "1.500000e+03"}, RealCase{"%.0f", 2.5, "2"},
                                         RealCase{"%#.0f", 3, "3."}, RealCase{"%G", 1e-10, "1E-10"},
                                         RealCase{"%.1f%%", 12.5, "12.5%"},
                                         RealCase{"%06.1f", ENDLESS, "   inf"}, RealCase{"%.f", 1.5, "2"}));

TEST(LuNumberFormat, greatestNumberWithTheGreatestPrecision_hasAllDigits) {
    const LvString text = printReal("%99.99f", -std::numeric_limits<double>::max());
    EXPECT_EQ(text.getLength(), 1 + 309 + 1 + 99);
}

struct BadCase {
    LuNumberFormat::Kind kind;
    const char* format;
    const char* fault;
};

class LuNumberFormatBad : public testing::TestWithParam<BadCase> {};

TEST_P(LuNumberFormatBad, badFormat_isReportedOnceAndTheFallbackTaken) {
    const auto& [kind, text, fault] = GetParam();
    const bool isWhole = kind == LuNumberFormat::WHOLE;
    LuNumberFormat format(kind, isWhole ? "%d" : "%.3f");
    expectMessage("LuNumberFormat", std::string("\"") + text + "\" is no format for a " +
                                        (isWhole ? "whole" : "real") + " number: " + fault + ". \"" +
                                        (isWhole ? "%d" : "%.3f") + "\" is used instead.");
    for (int i = 0; i < 2; ++i) {
        format.set(text);
        EXPECT_EQ(isWhole ? format.print(5) : format.print(5.0), isWhole ? "5" : "5.000");
    }
}

constexpr auto WHOLE = LuNumberFormat::WHOLE;
constexpr auto REAL = LuNumberFormat::REAL;
constexpr const char* NONE = "it has no conversion";
constexpr const char* MANY = "it has more than one conversion";
constexpr const char* UNFIT = "its conversion does not fit";
constexpr const char* WIDE = "its width or its precision is too great";

INSTANTIATE_TEST_SUITE_P(
    LuNumberFormat, LuNumberFormatBad,
    testing::Values(BadCase{WHOLE, "", NONE}, BadCase{WHOLE, "text", NONE}, BadCase{WHOLE, "100%%", NONE},
                    BadCase{WHOLE, "%s", UNFIT}, BadCase{WHOLE, "%n", UNFIT}, BadCase{WHOLE, "%c", UNFIT},
                    BadCase{WHOLE, "%p", UNFIT}, BadCase{WHOLE, "%f", UNFIT}, BadCase{WHOLE, "%*d", UNFIT},
                    BadCase{WHOLE, "%.*d", UNFIT}, BadCase{WHOLE, "%1$d", UNFIT},
                    BadCase{WHOLE, "%'d", UNFIT}, BadCase{WHOLE, "%ld", UNFIT}, BadCase{WHOLE, "%lld", UNFIT},
                    BadCase{WHOLE, "%hhd", UNFIT}, BadCase{WHOLE, "%", UNFIT}, BadCase{WHOLE, "%5", UNFIT},
                    BadCase{WHOLE, "%d%d", MANY}, BadCase{WHOLE, "%d%n", MANY}, BadCase{WHOLE, "%d%", MANY},
                    BadCase{WHOLE, "%1000000000d", WIDE}, BadCase{WHOLE, "%99999999999999999999d", WIDE},
                    BadCase{WHOLE, "%.1000000000d", WIDE}, BadCase{REAL, "%d", UNFIT},
                    BadCase{REAL, "%s", UNFIT}, BadCase{REAL, "%n", UNFIT}, BadCase{REAL, "%Lf", UNFIT},
                    BadCase{REAL, "%llf", UNFIT}, BadCase{REAL, "%hf", UNFIT}, BadCase{REAL, "%*f", UNFIT},
                    BadCase{REAL, "%f %f", MANY}, BadCase{REAL, "%.100f", WIDE}, BadCase{REAL, "", NONE}));

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

TEST(LuNumberFormat, localeWithAComma_changesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const char* found = nullptr;
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German_Germany.1252"})
        found = found ? found : std::setlocale(LC_ALL, name);
    if (!found)
        GTEST_SKIP() << "The system has no locale that writes a comma.";
    const LvString text = printReal("%.1f", 1.5);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(text, "1.5");
}

} // namespace
