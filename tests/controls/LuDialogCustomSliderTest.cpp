// SPDX-License-Identifier: MIT
#include "controls/LuDialogCustomSlider.h"

#include "tests/platform/lumora/win/GLRecorder.h"
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using Calls = std::vector<std::string>;

const LvColor RED(1, 0, 0), GREEN(0, 1, 0), BLUE(0, 0, 1);

class CountingSlider : public LuDialogCustomSlider {
public:
    using LuDialogCustomSlider::LuDialogCustomSlider;
    void redraw() override {
        ++m_numRedraws;
        LuDialogCustomSlider::redraw();
    }
    int m_numRedraws = 0;
};

/// A slider of 110 by 24 pixels; its bar is that wide, and 16 pixels high.
class LuDialogCustomSliderTest : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        const HWND top = createTop();
        ShowWindow(top, SW_SHOW);
        m_slider = std::make_unique<CountingSlider>(top);
        m_window = m_slider->buildWidget(top);
        SetWindowPos(m_window, nullptr, 10, 10, 110, 24, SWP_NOZORDER);
    }
    void TearDown() override {
        m_slider.reset();
        WindowFixture::TearDown();
    }

    /// The calls up to the first of the thumb, and the very last one.
    Calls draw() {
        GLRecorder recorder;
        SendMessageA(m_window, WM_PAINT, 0, 0);
        Calls calls = recorder.take();
        const auto thumb = std::find(calls.begin(), calls.end(), "rects 0 0 10 24");
        if (thumb == calls.end() || thumb == calls.begin())
            return {"there is no thumb"};
        const std::string last = calls.back();
        calls.erase(thumb - 1, calls.end());
        calls.push_back(last);
        return calls;
    }

    std::unique_ptr<CountingSlider> m_slider;
    HWND m_window = nullptr;
};

TEST_F(LuDialogCustomSliderTest, newBar_isLightGrey) {
    EXPECT_THAT(draw(), ElementsAre("color3fv 168 168 168", "rects 0 4 110 20", "flush"));
}

TEST_F(LuDialogCustomSliderTest, oneColor_fillsTheBar) {
    m_slider->setBarColors({RED}, true);
    EXPECT_THAT(draw(), ElementsAre("color3fv 255 0 0", "rects 0 4 110 20", "flush"));
}

TEST_F(LuDialogCustomSliderTest, oneColor_looksTheSameWhileDisabled) {
    m_slider->setBarColors({RED}, true);
    m_slider->setBarEnabled(false);
    EXPECT_THAT(draw(), ElementsAre("color3fv 255 0 0", "rects 0 4 110 20", "flush"));
}

TEST_F(LuDialogCustomSliderTest, shadedColors_areARampFromEndToEnd) {
    m_slider->setBarColors({RED, GREEN, BLUE}, true);
    EXPECT_THAT(draw(), ElementsAre("pushAttrib 64", "shadeModel 7425", "begin 8",       //
                                    "color3fv 255 0 0", "vertex 0 4", "vertex 0 20",     //
                                    "color3fv 0 255 0", "vertex 55 4", "vertex 55 20",   //
                                    "color3fv 0 0 255", "vertex 110 4", "vertex 110 20", //
                                    "end", "popAttrib", "flush"));
}

TEST_F(LuDialogCustomSliderTest, placesInARamp_areTruncated) {
    m_slider->setBarColors({RED, GREEN, BLUE, RED}, true);
    EXPECT_THAT(draw(), testing::IsSupersetOf({"vertex 36 4", "vertex 73 20"}));
}

TEST_F(LuDialogCustomSliderTest, unshadedColors_areBandsThatTakeTheColorOfTheirRightEnd) {
    m_slider->setBarColors({RED, GREEN}, false);
    EXPECT_THAT(draw(), ElementsAre("pushAttrib 64", "shadeModel 7424", "begin 8",       //
                                    "color3fv 255 0 0", "vertex 0 4", "vertex 0 20",     //
                                    "color3fv 255 0 0", "vertex 55 4", "vertex 55 20",   //
                                    "color3fv 0 255 0", "vertex 110 4", "vertex 110 20", //
                                    "end", "popAttrib", "flush"));
}

TEST_F(LuDialogCustomSliderTest, disabledRamp_isHalfAsBright) {
    m_slider->setBarColors({LvColor(1, 0.8F, 0), BLUE}, true);
    m_slider->setBarEnabled(false);
    EXPECT_THAT(draw(), ElementsAre("pushAttrib 64", "shadeModel 7425", "begin 8",      //
                                    "color3f 128 102 0", "vertex 0 4", "vertex 0 20",   //
                                    "color3f 0 0 128", "vertex 110 4", "vertex 110 20", //
                                    "end", "popAttrib", "flush"));
}

TEST_F(LuDialogCustomSliderTest, shading_staysWhileThereIsOneColor) {
    m_slider->setBarColors({RED, GREEN}, true);
    m_slider->setBarColors({RED}, false);
    EXPECT_THAT(draw(), ElementsAre("color3fv 255 0 0", "rects 0 4 110 20", "flush"));
    m_slider->setBarColors({RED, GREEN}, false);
    EXPECT_THAT(draw(), testing::Contains("shadeModel 7424"));
}

TEST_F(LuDialogCustomSliderTest, noColors_leaveTheThumbAlone) {
    m_slider->setBarColors({}, true);
    EXPECT_THAT(draw(), ElementsAre("flush"));
    m_slider->setBarColors({}, false);
    EXPECT_THAT(draw(), ElementsAre("flush"));
}

TEST_F(LuDialogCustomSliderTest, colorsAndEnabling_areDrawnAtOnce) {
    m_slider->m_numRedraws = 0;
    m_slider->setBarColors({RED}, true);
    EXPECT_EQ(m_slider->m_numRedraws, 1);
    m_slider->setBarColors({RED, GREEN}, true);
    EXPECT_EQ(m_slider->m_numRedraws, 2);
    m_slider->setBarEnabled(false);
    EXPECT_EQ(m_slider->m_numRedraws, 3);
}

} // namespace
