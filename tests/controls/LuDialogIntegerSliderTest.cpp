// SPDX-License-Identifier: MIT
#include "controls/LuDialogIntegerSlider.h"

#include "auditors/LuDialogAuditor.h"
#include "auditors/LuDialogIntegerSliderAuditor.h"
#include "layout/LuRowDialog.h"
#include "platform/lumora/base/LuDebugError.h"
#include "tests/controls/SliderTest.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

constexpr int LOWEST = std::numeric_limits<int>::min();
constexpr int HIGHEST = std::numeric_limits<int>::max();

class IntegerAuditor : public SliderAuditor<LuDialogIntegerSliderAuditor, LuDialogIntegerSlider> {
public:
    ~IntegerAuditor() override = default;
    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override { hear(*slider); }
};

class LuDialogIntegerSliderTest : public SliderTest<LuDialogIntegerSlider> {
protected:
    LuDialogIntegerSliderTest() { m_slider->addAuditor(&m_events); }
    ~LuDialogIntegerSliderTest() override { m_slider->removeAuditor(&m_events); }

    /// The width of the edit box for a text.
    static int getRoomFor(const char* text) { return LuPanelix::getLabelPixelSize(text, nullptr).x + 8; }

    IntegerAuditor m_events;
};

TEST_F(LuDialogIntegerSliderTest, newSlider_hasTheDefaults) {
    const Held<LuDialogIntegerSlider> slider;
    EXPECT_EQ(slider->min.getValue(), 0);
    EXPECT_EQ(slider->max.getValue(), 1);
    EXPECT_EQ(slider->value.getValue(), 0);
    EXPECT_EQ(slider->format.getValue(), "%d");
    EXPECT_TRUE(slider->format.isDefault());
    EXPECT_EQ(slider->getTypeId().getParent(), LuDialogSlider::getClassTypeId());
    EXPECT_STREQ(slider->getTypeId().getName().getString(), "DialogIntegerSlider");
}

// Position and value

struct RoundingCase {
    int min, max;
    float position;
    int value;
};

void PrintTo(const RoundingCase& rounding, std::ostream* out) {
    *out << rounding.position << " of " << rounding.min << " to " << rounding.max;
}

class LuDialogIntegerSliderRoundingTest : public SliderTest<LuDialogIntegerSlider>,
                                          public testing::WithParamInterface<RoundingCase> {};

TEST_P(LuDialogIntegerSliderRoundingTest, position_isRoundedToTheNearestNumber) {
    const RoundingCase& rounding = GetParam();
    setLimits(rounding.min, rounding.max, rounding.min);
    m_slider->drop(rounding.position);
    EXPECT_EQ(m_slider->value.getValue(), rounding.value);
}

INSTANTIATE_TEST_SUITE_P(
    LuDialogIntegerSlider, LuDialogIntegerSliderRoundingTest,
    testing::Values(RoundingCase{0, 10, 0.54F, 5}, RoundingCase{0, 10, 0.55F, 6}, RoundingCase{0, 10, 0, 0},
                    RoundingCase{0, 10, 1, 10}, RoundingCase{0, 10, 0.049F, 0},
                    RoundingCase{0, 10, 0.96F, 10}, RoundingCase{-10, -5, 1, -5},
                    RoundingCase{-10, -5, 0.5F, -7}, RoundingCase{10, 0, 1, 1}, RoundingCase{10, 0, 0, 10},
                    RoundingCase{10, 0, 0.25F, 8}, RoundingCase{7, 7, 0.5F, 7},
                    RoundingCase{LOWEST, HIGHEST, 1, HIGHEST}, RoundingCase{LOWEST, HIGHEST, 0, LOWEST},
                    RoundingCase{0, HIGHEST, 1, HIGHEST}, RoundingCase{HIGHEST - 1, HIGHEST, 1, HIGHEST - 1},
                    RoundingCase{0, 10, 1.5F, 15}, RoundingCase{0, 10, -0.5F, -4},
                    RoundingCase{0, 10, 1e30F, HIGHEST}, RoundingCase{0, 10, -1e30F, LOWEST}));

TEST_F(LuDialogIntegerSliderTest, noPosition_isTheLowestNumberPlusTheLimit) {
    setLimits(5, 10, 7);
    m_slider->drop(std::nanf(""));
    EXPECT_EQ(m_slider->value.getValue(), LOWEST + 5);
}

TEST_F(LuDialogIntegerSliderTest, valueSetInAnyLimits_givesItsPosition) {
    setLimits(0, 10, 4);
    buildWindows(*m_slider);
    EXPECT_EQ(m_slider->getPosition(), 0.4F);
    m_slider->value = 9;
    EXPECT_EQ(m_slider->getPosition(), 0.9F);
    EXPECT_EQ(m_slider->getThumb(), 0.9F);
    EXPECT_EQ(m_slider->getBox(), "9");
}

TEST_F(LuDialogIntegerSliderTest, valueSetBeyondALimit_staysAndLeavesTheRange) {
    setLimits(0, 10, 4);
    buildBoth(*m_slider);
    m_slider->value = 25;
    EXPECT_EQ(m_slider->value.getValue(), 25);
    EXPECT_EQ(m_slider->getPosition(), 2.5F);
    EXPECT_EQ(m_slider->getBox(), "25");
    EXPECT_EQ(m_slider->getText3D(), "25");
    EXPECT_FLOAT_EQ(m_slider->getCursor(), (m_slider->getFrameLength() - 10) * 2.5F);
    EXPECT_EQ(m_slider->getThumb(), 1);
}

TEST_F(LuDialogIntegerSliderTest, fieldsSetByTheProgram_areNotHeard) {
    buildBoth(*m_slider);
    m_slider->max = 10;
    m_slider->value = 5;
    m_slider->min = 7;
    m_slider->max = 6;
    m_slider->value = 100;
    EXPECT_EQ(m_events.m_count, 0);
}

TEST_F(LuDialogIntegerSliderTest, limitThatPassesTheValue_takesItAlong) {
    setLimits(0, 10, 5);
    buildBoth(*m_slider);
    m_slider->min = 7;
    EXPECT_EQ(m_slider->value.getValue(), 7);
    EXPECT_EQ(m_slider->getPosition(), 0);
    m_slider->min = 0;
    m_slider->max = 4;
    EXPECT_EQ(m_slider->value.getValue(), 4);
    EXPECT_EQ(m_slider->getPosition(), 1);
    EXPECT_EQ(m_slider->getBox(), "4");
    EXPECT_EQ(m_slider->getText3D(), "4");
}

TEST_F(LuDialogIntegerSliderTest, newLimit_neverMovesTheOther) {
    setLimits(0, 10, 5);
    buildBoth(*m_slider);
    m_slider->min = 20;
    EXPECT_EQ(m_slider->max.getValue(), 10);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_slider->getPosition(), 0);
}

TEST_F(LuDialogIntegerSliderTest, newLimits_giveTheNumberItsRoom) {
    buildBoth(*m_slider);
    const int before = std::get<2>(getPlace(m_slider->getEditWidget()));
    const float lengthBefore = m_slider->getFrameLength();
    m_slider->max = 1000000;
    EXPECT_EQ(before, getRoomFor("9"));
    EXPECT_EQ(std::get<2>(getPlace(m_slider->getEditWidget())), getRoomFor("9999999"));
    EXPECT_EQ(m_slider->getFrameLength(),
              lengthBefore - static_cast<float>(getRoomFor("9999999") - getRoomFor("9")));
}

// Equal limits

TEST_F(LuDialogIntegerSliderTest, equalLimits_giveTheNumberInTheSceneAndAnotherInTheBox) {
    setLimits(5, 5, 5);
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->value.getValue(), 5);
    EXPECT_EQ(m_slider->getPosition(), 0);
    EXPECT_EQ(m_slider->getText3D(), "5");
    EXPECT_EQ(m_slider->getBox(), "-2147483643");
}

TEST_F(LuDialogIntegerSliderTest, equalNegativeLimits_wrapInTheBox) {
    setLimits(-5, -5, -5);
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->getText3D(), "-5");
    EXPECT_EQ(m_slider->getBox(), "2147483643");
}

TEST_F(LuDialogIntegerSliderTest, equalFixedLimits_takeTheValue) {
    setLimits(5, 5, 9);
    m_slider->fixedLimits = true;
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->value.getValue(), 5);
}

TEST_F(LuDialogIntegerSliderTest, entryWithEqualFixedLimits_keepsTheNumberAndTheSceneWhole) {
    setLimits(5, 5, 5);
    m_slider->fixedLimits = true;
    buildBoth(*m_slider);
    m_slider->enter("7");
    EXPECT_EQ(m_slider->value.getValue(), 5);
    EXPECT_EQ(m_slider->getText3D(), "5");
    EXPECT_EQ(m_slider->getCursor(), 0);
    EXPECT_EQ(m_slider->getThumb(), 0);
}

// The build

TEST_F(LuDialogIntegerSliderTest, valueBeyondTheLimits_stretchesThemAtTheBuild) {
    setLimits(0, 10, 15);
    buildWindows(*m_slider);
    EXPECT_EQ(m_slider->min.getValue(), 0);
    EXPECT_EQ(m_slider->max.getValue(), 15);
    EXPECT_EQ(m_slider->value.getValue(), 15);
    EXPECT_EQ(m_slider->getPosition(), 1);
    EXPECT_EQ(m_slider->getThumb(), 1);
}

TEST_F(LuDialogIntegerSliderTest, valueBelowTheLimits_stretchesThemAtTheBuild) {
    setLimits(0, 10, -5);
    build3D(*m_slider);
    EXPECT_EQ(m_slider->min.getValue(), -5);
    EXPECT_EQ(m_slider->max.getValue(), 10);
    EXPECT_EQ(m_slider->getPosition(), 0);
}

TEST_F(LuDialogIntegerSliderTest, fixedLimits_limitTheValueAtTheBuild) {
    for (const auto& [value, limited] : {std::pair(15, 10), std::pair(-5, 0), std::pair(3, 3)}) {
        const Held<LuDialogIntegerSlider> slider;
        slider->max = 10;
        slider->value = value;
        slider->fixedLimits = true;
        buildWindows(*slider);
        EXPECT_EQ(slider->value.getValue(), limited);
        EXPECT_EQ(slider->max.getValue(), 10);
    }
}

TEST_F(LuDialogIntegerSliderTest, fixedLimitsInTheWrongOrder_giveTheLastWordToTheLower) {
    setLimits(10, 0, 5);
    m_slider->fixedLimits = true;
    buildWindows(*m_slider);
    EXPECT_EQ(m_slider->value.getValue(), 10);
    EXPECT_EQ(m_slider->getPosition(), 0);
}

TEST_F(LuDialogIntegerSliderTest, limitsInTheWrongOrder_bothMoveToTheValue) {
    setLimits(10, 0, 5);
    buildWindows(*m_slider);
    EXPECT_EQ(m_slider->min.getValue(), 5);
    EXPECT_EQ(m_slider->max.getValue(), 5);
    EXPECT_EQ(m_slider->value.getValue(), 5);
}

/// The exit status of a process that has built no slider yet.
int buildFirstSliders() {
    LuPreferences::setString("PANELIX_SKINS_DIR", "data/Panelix/skins");
    LuPanelix::init();
    int values[2] = {}, limits[2] = {};
    for (int i = 0; i < 2; ++i) {
        const Held<LuDialogIntegerSlider> slider;
        slider->max = 10;
        slider->value = 15;
        LuGetBoundingBoxAction().apply(slider.get());
        values[i] = slider->value.getValue();
        limits[i] = slider->max.getValue();
    }
    LuPanelix::finish();
    const bool isFirstLimited = values[0] == 10 && limits[0] == 10;
    const bool isSecondStretched = values[1] == 15 && limits[1] == 15;
    std::fprintf(stderr, "%d of %d, %d of %d\n", values[0], limits[0], values[1], limits[1]);
    return isFirstLimited && isSecondStretched ? 0 : 1;
}

TEST(LuDialogIntegerSliderDeathTest, firstSliderOfTheProcess_limitsItsValue) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(buildFirstSliders()), testing::ExitedWithCode(0), "10 of 10, 15 of 15");
}

// The edit box

TEST_F(LuDialogIntegerSliderTest, entryBeyondFixedLimits_isLimited) {
    setLimits(0, 10, 5);
    m_slider->fixedLimits = true;
    buildBoth(*m_slider);
    m_slider->enter("15");
    EXPECT_EQ(m_slider->getBox(), "10");
    EXPECT_EQ(m_slider->value.getValue(), 10);
    EXPECT_EQ(m_slider->getText3D(), "10");
    m_slider->enter("-3");
    EXPECT_EQ(m_slider->getBox(), "0");
    EXPECT_EQ(m_slider->value.getValue(), 0);
    EXPECT_EQ(m_slider->max.getValue(), 10);
    EXPECT_EQ(m_slider->min.getValue(), 0);
}

TEST_F(LuDialogIntegerSliderTest, entryBeyondFreeLimits_movesTheLimit) {
    setLimits(0, 10, 5);
    buildBoth(*m_slider);
    m_slider->enter("15");
    EXPECT_EQ(m_slider->max.getValue(), 15);
    EXPECT_EQ(m_slider->value.getValue(), 15);
    EXPECT_EQ(m_slider->getPosition(), 1);
    EXPECT_EQ(m_slider->getThumb(), 1);
    EXPECT_EQ(m_slider->getText3D(), "15");
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogIntegerSliderTest, entryBeyondFreeLimits_staysWhenTheBoxLosesTheFocus) {
    setLimits(0, 10, 5);
    buildWindows(*m_slider);
    m_slider->enter("15");
    EXPECT_EQ(m_slider->getBox(), "15");
    SendMessageA(m_slider->getEditWidget(), WM_KILLFOCUS, 0, 0);
    EXPECT_EQ(m_slider->value.getValue(), 15);
}

TEST_F(LuDialogIntegerSliderTest, entryWithAFraction_isWrittenAnew) {
    setLimits(0, 10, 5);
    buildWindows(*m_slider);
    m_slider->enter("2.5");
    EXPECT_EQ(m_slider->value.getValue(), 2);
    EXPECT_EQ(m_slider->getBox(), "2");
}

TEST_F(LuDialogIntegerSliderTest, wholeEntry_staysAsItWasWritten) {
    setLimits(0, 10, 5);
    buildWindows(*m_slider);
    m_slider->enter("007");
    EXPECT_EQ(m_slider->value.getValue(), 7);
    EXPECT_EQ(m_slider->getBox(), "007");
}

TEST_F(LuDialogIntegerSliderTest, emptyEntry_isZero) {
    setLimits(0, 10, 5);
    buildWindows(*m_slider);
    m_slider->enter("");
    EXPECT_EQ(m_slider->value.getValue(), 0);
}

TEST_F(LuDialogIntegerSliderTest, hugeEntry_endsAtTheEndOfTheType) {
    buildWindows(*m_slider);
    m_slider->enter("99999999999999999999");
    EXPECT_EQ(m_slider->max.getValue(), HIGHEST);
    EXPECT_EQ(m_slider->value.getValue(), HIGHEST);
    m_slider->enter("-99999999999999999999");
    EXPECT_EQ(m_slider->min.getValue(), LOWEST);
    EXPECT_EQ(m_slider->value.getValue(), LOWEST);
}

TEST_F(LuDialogIntegerSliderTest, entryOfTheSameNumber_isNotHeard) {
    setLimits(0, 10, 5);
    buildWindows(*m_slider);
    m_slider->enter("5");
    EXPECT_EQ(m_events.m_count, 0);
    m_slider->enter("6");
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogIntegerSliderTest, editWithoutARendition_countsAsZero) {
    setLimits(0, 10, 5);
    m_slider->setValueFromEdit(1);
    EXPECT_EQ(m_slider->getPosition(), 0);
    m_slider->setValueFromEdit(0);
    EXPECT_EQ(m_slider->getPosition(), 0);
}

struct WidthCase {
    int min, max;
    const char* text;
};

void PrintTo(const WidthCase& width, std::ostream* out) { *out << width.min << " to " << width.max; }

class LuDialogIntegerSliderWidthTest : public SliderTest<LuDialogIntegerSlider>,
                                       public testing::WithParamInterface<WidthCase> {};

TEST_P(LuDialogIntegerSliderWidthTest, limits_giveTheRoomOfTheirNines) {
    const auto& [min, max, text] = GetParam();
    setLimits(min, max, min);
    EXPECT_EQ(m_slider->computeEditZoneWidth(), LuPanelix::getLabelPixelSize(text, nullptr).x + 8);
}

INSTANTIATE_TEST_SUITE_P(LuDialogIntegerSlider, LuDialogIntegerSliderWidthTest,
                         testing::Values(WidthCase{0, 1, "9"}, WidthCase{0, 9, "9"}, WidthCase{0, 10, "99"},
                                         WidthCase{0, 1000, "9999"}, WidthCase{-5, 0, "99"},
                                         WidthCase{-100, 5, "9999"}, WidthCase{0, 0, "-1"},
                                         WidthCase{LOWEST, HIGHEST, "2147483646"}));

// Formats

TEST_F(LuDialogIntegerSliderTest, format_printsBothTexts) {
    setLimits(0, 10, 5);
    m_slider->format = "<%3d %%>";
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->getBox(), "<  5 %>");
    EXPECT_EQ(m_slider->getText3D(), "<  5 %>");
    EXPECT_EQ(m_slider->m_editZoneWidth, getRoomFor("< 99 %>"));
}

TEST_F(LuDialogIntegerSliderTest, newFormat_waitsForTheNextText) {
    setLimits(0, 10, 5);
    buildBoth(*m_slider);
    m_slider->format = "%d!";
    EXPECT_EQ(m_slider->getBox(), "5");
    m_slider->value = 6;
    EXPECT_EQ(m_slider->getBox(), "6!");
    EXPECT_EQ(m_slider->getText3D(), "6!");
}

TEST_F(LuDialogIntegerSliderTest, formatThatDoesNotFit_isReportedOnce) {
    setLimits(0, 10, 5);
    m_slider->format = "%f";
    expectMessageContaining("LuNumberFormat", "\"%f\" is no format for a whole number");
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->getBox(), "5");
    m_slider->value = 6;
    EXPECT_EQ(m_slider->getBox(), "6");
}

// Auditors

TEST_F(LuDialogIntegerSliderTest, newValue_isHeardOnce) {
    setLimits(0, 10, 5);
    m_slider->drop(0.7F);
    m_slider->drop(0.71F);
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogIntegerSliderTest, ownAuditor_hidesThatOfTheContainer) {
    class Container : public LuDialogAuditor {
    public:
        void dialogIntegerSlider(LuDialogIntegerSlider*) override { ++m_count; }
        int m_count = 0;
    } container;
    const Held<LuRowDialog> row;
    row->addAuditor(&container);
    row->addChild(m_slider.get());
    m_slider->drop(1);
    EXPECT_EQ(m_events.m_count, 1);
    EXPECT_EQ(container.m_count, 0);
    m_slider->removeAuditor(&m_events);
    m_slider->drop(0);
    EXPECT_EQ(container.m_count, 1);
}

TEST_F(LuDialogIntegerSliderTest, auditorThatSetsTheValue_hasTheLastWord) {
    setLimits(0, 10, 0);
    buildWindows(*m_slider);
    m_events.m_action = [](LuDialogIntegerSlider& slider) { slider.value = 5; };
    m_slider->changeValueAfterFinish(0.9F);
    EXPECT_EQ(m_slider->value.getValue(), 5);
    EXPECT_EQ(m_slider->getBox(), "5");
    EXPECT_EQ(m_slider->getThumb(), 0.5F);
    EXPECT_EQ(m_events.m_count, 1);
}

} // namespace
