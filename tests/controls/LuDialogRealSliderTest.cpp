// SPDX-License-Identifier: MIT
#include "controls/LuDialogRealSlider.h"

#include "auditors/LuDialogRealSliderAuditor.h"
#include "tests/controls/SliderTest.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

constexpr float ENDLESS = std::numeric_limits<float>::infinity();
constexpr float HIGHEST = std::numeric_limits<float>::max();

class RealAuditor : public SliderAuditor<LuDialogRealSliderAuditor, LuDialogRealSlider> {
public:
    ~RealAuditor() override = default;
    void dialogRealSlider(LuDialogRealSlider* slider) override { hear(*slider); }
};

class LuDialogRealSliderTest : public SliderTest<LuDialogRealSlider> {
protected:
    LuDialogRealSliderTest() { m_slider->addAuditor(&m_events); }
    ~LuDialogRealSliderTest() override { m_slider->removeAuditor(&m_events); }

    RealAuditor m_events;
};

TEST_F(LuDialogRealSliderTest, newSlider_hasTheDefaults) {
    const Held<LuDialogRealSlider> slider;
    EXPECT_EQ(slider->min.getValue(), 0);
    EXPECT_EQ(slider->max.getValue(), 1);
    EXPECT_EQ(slider->value.getValue(), 0);
    EXPECT_EQ(slider->format.getValue(), "%.3f");
    EXPECT_EQ(slider->getTypeId().getParent(), LuDialogSlider::getClassTypeId());
    EXPECT_STREQ(slider->getTypeId().getName().getString(), "DialogRealSlider");
}

// Position and value

TEST_F(LuDialogRealSliderTest, position_givesTheNumberInTheRange) {
    setLimits(-1.0F, 3.0F, 0.0F);
    m_slider->drop(0.25F);
    EXPECT_EQ(m_slider->value.getValue(), 0);
    m_slider->drop(1);
    EXPECT_EQ(m_slider->value.getValue(), 3);
    m_slider->drop(0);
    EXPECT_EQ(m_slider->value.getValue(), -1);
}

TEST_F(LuDialogRealSliderTest, number_isComputedInFloats) {
    setLimits(0.1F, 0.7F, 0.1F);
    m_slider->drop(0.3F);
    EXPECT_EQ(m_slider->value.getValue(), 0.1F + (0.7F - 0.1F) * 0.3F);
}

TEST_F(LuDialogRealSliderTest, dragThatEndsAtTheSameValue_isNotHeard) {
    setLimits(0.0F, 10.0F, 5.0F);
    buildWindows(*m_slider);
    m_slider->changeValueAfterFinish(0.5F);
    EXPECT_EQ(m_events.m_count, 0);
    m_slider->changeValueAfterFinish(0.6F);
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogRealSliderTest, noPosition_givesNoNumber) {
    m_slider->drop(std::nanf(""));
    EXPECT_TRUE(std::isnan(m_slider->value.getValue()));
}

TEST_F(LuDialogRealSliderTest, valueThatIsNoNumber_leavesTheSceneWhole) {
    buildBoth(*m_slider);
    m_slider->value = std::nanf("");
    EXPECT_EQ(m_slider->getCursor(), 0);
    EXPECT_EQ(m_slider->getThumb(), 0);
    m_slider->value = 0.5F;
    EXPECT_EQ(m_slider->getPosition(), 0.5F);
    EXPECT_EQ(m_slider->getText3D(), "0.500");
}

TEST_F(LuDialogRealSliderTest, numbersWithoutEnd_areSafe) {
    for (const float limit : {ENDLESS, -ENDLESS, HIGHEST, -HIGHEST, std::nanf("")}) {
        const Held<OpenSlider<LuDialogRealSlider>> slider;
        slider->width = 300;
        slider->height = 30;
        slider->max = limit;
        slider->min = -limit;
        buildBoth(*slider);
        slider->value = limit;
        slider->drop(0.5F);
        slider->enter("1e99");
        slider->enter("nan");
        EXPECT_TRUE(std::isfinite(slider->getCursor()));
        EXPECT_TRUE(std::isfinite(slider->getThumb()));
    }
}

TEST_F(LuDialogRealSliderTest, equalLimits_areTheValueAtPosition0) {
    setLimits(2.5F, 2.5F, 2.5F);
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->value.getValue(), 2.5F);
    EXPECT_EQ(m_slider->getPosition(), 0);
    EXPECT_EQ(m_slider->getBox(), "2.500");
    EXPECT_EQ(m_slider->getText3D(), "2.500");
}

TEST_F(LuDialogRealSliderTest, fieldsSetByTheProgram_areShownButNotHeard) {
    buildBoth(*m_slider);
    m_slider->max = 4;
    m_slider->value = 3;
    EXPECT_EQ(m_slider->getBox(), "3.000");
    EXPECT_EQ(m_slider->getText3D(), "3.000");
    EXPECT_EQ(m_slider->getThumb(), 0.75F);
    m_slider->max = 2;
    EXPECT_EQ(m_slider->value.getValue(), 2);
    m_slider->min = 2.5F;
    EXPECT_EQ(m_slider->value.getValue(), 2.5F);
    EXPECT_EQ(m_slider->max.getValue(), 2);
    EXPECT_EQ(m_events.m_count, 0);
}

// The build

TEST_F(LuDialogRealSliderTest, valueBeyondTheLimits_stretchesThemAtTheBuild) {
    setLimits(0.0F, 10.0F, 15.0F);
    buildWindows(*m_slider);
    EXPECT_EQ(m_slider->max.getValue(), 15);
    EXPECT_EQ(m_slider->value.getValue(), 15);
}

TEST_F(LuDialogRealSliderTest, fixedLimits_limitTheValueAtTheBuild) {
    setLimits(0.0F, 10.0F, 15.0F);
    m_slider->fixedLimits = true;
    buildWindows(*m_slider);
    EXPECT_EQ(m_slider->max.getValue(), 10);
    EXPECT_EQ(m_slider->value.getValue(), 10);
}

/// The exit status of a process that has built no slider yet.
int buildFirstSliders() {
    LuPreferences::setString("PANELIX_SKINS_DIR", "data/Panelix/skins");
    LuPanelix::init();
    float values[2] = {};
    for (float& value : values) {
        const Held<LuDialogRealSlider> slider;
        slider->value = 2;
        LuGetBoundingBoxAction().apply(slider.get());
        value = slider->value.getValue();
    }
    LuPanelix::finish();
    std::fprintf(stderr, "%g, %g\n", static_cast<double>(values[0]), static_cast<double>(values[1]));
    return values[0] == 1 && values[1] == 2 ? 0 : 1;
}

TEST(LuDialogRealSliderDeathTest, firstSliderOfTheProcess_limitsItsValue) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(buildFirstSliders()), testing::ExitedWithCode(0), "1, 2");
}

// The edit box

TEST_F(LuDialogRealSliderTest, entryBeyondFixedLimits_isLimited) {
    setLimits(0.0F, 10.0F, 5.0F);
    m_slider->fixedLimits = true;
    buildBoth(*m_slider);
    m_slider->enter("15.5");
    EXPECT_EQ(m_slider->getBox(), "10.000");
    EXPECT_EQ(m_slider->value.getValue(), 10);
    m_slider->enter("-1e-3");
    EXPECT_EQ(m_slider->getBox(), "0.000");
    EXPECT_EQ(m_slider->value.getValue(), 0);
}

TEST_F(LuDialogRealSliderTest, entryBeyondFreeLimits_movesTheLimit) {
    setLimits(0.0F, 10.0F, 5.0F);
    buildBoth(*m_slider);
    m_slider->enter("15.5");
    EXPECT_EQ(m_slider->max.getValue(), 15.5F);
    EXPECT_EQ(m_slider->value.getValue(), 15.5F);
    EXPECT_EQ(m_slider->getText3D(), "15.500");
    EXPECT_EQ(m_slider->getBox(), "15.500");
}

TEST_F(LuDialogRealSliderTest, entryWithinTheLimits_staysAsItWasWritten) {
    buildWindows(*m_slider);
    m_slider->enter("2.5e-1");
    EXPECT_EQ(m_slider->value.getValue(), 0.25F);
    EXPECT_EQ(m_slider->getBox(), "2.5e-1");
}

TEST_F(LuDialogRealSliderTest, editWithoutARendition_keepsThePosition) {
    m_slider->setValueFromSlider(0.5F);
    m_slider->setValueFromEdit(1);
    m_slider->setValueFromEdit(0);
    EXPECT_EQ(m_slider->getPosition(), 0.5F);
}

struct WidthCase {
    float min, max;
    const char* text;
};

void PrintTo(const WidthCase& width, std::ostream* out) { *out << width.min << " to " << width.max; }

class LuDialogRealSliderWidthTest : public SliderTest<LuDialogRealSlider>,
                                    public testing::WithParamInterface<WidthCase> {};

TEST_P(LuDialogRealSliderWidthTest, limits_giveTheRoomOfTheirNines) {
    const auto& [min, max, text] = GetParam();
    setLimits(min, max, min);
    EXPECT_EQ(m_slider->computeEditZoneWidth(), LuPanelix::getLabelPixelSize(text, nullptr).x + 8);
}

INSTANTIATE_TEST_SUITE_P(
    LuDialogRealSlider, LuDialogRealSliderWidthTest,
    testing::Values(WidthCase{0, 1, "9.010"}, WidthCase{0, 9.9F, "9.010"}, WidthCase{0, 10, "99.010"},
                    WidthCase{-0.9F, 0.9F, "-0.990"}, WidthCase{0, 0, "-0.990"},
                    // The sign makes nine a number of two digits, and leaves eight one of one.
                    WidthCase{-9, 0, "99.010"}, WidthCase{-8, 0, "9.010"}, WidthCase{-100, 1, "999.010"},
                    WidthCase{0, 1e6F, "9999999.000"}));

TEST_F(LuDialogRealSliderTest, format_printsBothTexts) {
    m_slider->format = "%.1f mm";
    m_slider->value = 0.5F;
    buildBoth(*m_slider);
    EXPECT_EQ(m_slider->getBox(), "0.5 mm");
    EXPECT_EQ(m_slider->getText3D(), "0.5 mm");
    EXPECT_EQ(m_slider->getValueText(), "0.5 mm");
}

TEST_F(LuDialogRealSliderTest, formatThatDoesNotFit_isReportedOnce) {
    m_slider->format = "%n";
    expectMessageContaining("LuNumberFormat", "\"%n\" is no format for a real number");
    buildBoth(*m_slider);
    m_slider->value = 0.5F;
    EXPECT_EQ(m_slider->getBox(), "0.500");
}

TEST_F(LuDialogRealSliderTest, sliderThatEndsInItsAuditor_isSafe) {
    auto* const doomed = new LuDialogRealSlider;
    doomed->ref();
    buildWindows(*doomed, {300, 30});
    doomed->addAuditor(&m_events);
    m_events.m_action = [](LuDialogRealSlider& slider) { slider.unref(); };
    doomed->changeValueAfterFinish(0.5F);
    EXPECT_EQ(m_events.m_count, 1);
}

} // namespace
