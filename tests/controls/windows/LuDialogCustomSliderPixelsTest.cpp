// SPDX-License-Identifier: MIT
#include "controls/LuDialogCustomSlider.h"

#include "tests/platform/win32/WindowFixture.h"

#include <memory>

namespace {

const LvColor RED(1, 0, 0), BLUE(0, 0, 1);

/// What the screen shows of a slider of 210 by 24 pixels, whose thumb stands at the left end.
class LuDialogCustomSliderPixelsTest : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        const HWND top = createTop();
        ShowWindow(top, SW_SHOW);
        m_slider = std::make_unique<LuDialogCustomSlider>(top);
        m_window = m_slider->buildWidget(top);
        SetWindowPos(m_window, nullptr, 10, 10, 210, 24, SWP_NOZORDER);
    }
    void TearDown() override {
        m_slider.reset();
        WindowFixture::TearDown();
    }

    void expectPixel(int x, int y, int red, int green, int blue) const {
        expectPixelOf(m_window, x, y, red, green, blue);
    }

    static void expectPixelOf(HWND window, int x, int y, int red, int green, int blue) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        const HDC dc = GetDC(window);
        const COLORREF pixel = GetPixel(dc, x, y);
        ReleaseDC(window, dc);
        constexpr int TOLERANCE = 3;
        EXPECT_NEAR(GetRValue(pixel), red, TOLERANCE) << x << ", " << y;
        EXPECT_NEAR(GetGValue(pixel), green, TOLERANCE) << x << ", " << y;
        EXPECT_NEAR(GetBValue(pixel), blue, TOLERANCE) << x << ", " << y;
    }

    std::unique_ptr<LuDialogCustomSlider> m_slider;
    HWND m_window = nullptr;
};

TEST_F(LuDialogCustomSliderPixelsTest, oneColor_fillsTheBarAndNoMore) {
    m_slider->setBarColors({RED}, true);
    expectPixel(100, 4, 255, 0, 0);
    expectPixel(209, 19, 255, 0, 0);
    const COLORREF ground = GetSysColor(COLOR_BTNFACE);
    expectPixel(100, 3, GetRValue(ground), GetGValue(ground), GetBValue(ground));
    expectPixel(100, 20, GetRValue(ground), GetGValue(ground), GetBValue(ground));
}

TEST_F(LuDialogCustomSliderPixelsTest, shadedColors_areASmoothRamp) {
    m_slider->setBarColors({RED, BLUE}, true);
    expectPixel(52, 12, 191, 0, 64);
    expectPixel(105, 12, 127, 0, 128);
    expectPixel(209, 12, 0, 0, 254);
}

TEST_F(LuDialogCustomSliderPixelsTest, unshadedColors_areBands) {
    m_slider->setBarColors({RED, BLUE}, false);
    expectPixel(20, 12, 255, 0, 0);
    expectPixel(104, 12, 255, 0, 0);
    expectPixel(105, 12, 0, 0, 255);
    expectPixel(200, 12, 0, 0, 255);
}

TEST_F(LuDialogCustomSliderPixelsTest, disabledBar_isHalfAsBrightUnlessItHasOneColor) {
    m_slider->setBarColors({RED, BLUE}, false);
    m_slider->setBarEnabled(false);
    expectPixel(20, 12, 128, 0, 0);
    expectPixel(200, 12, 0, 0, 128);
    m_slider->setBarColors({RED}, true);
    expectPixel(200, 12, 255, 0, 0);
}

TEST_F(LuDialogCustomSliderPixelsTest, thumb_standsAtTheValue) {
    m_slider->setBarColors({RED}, true);
    m_slider->setValue(0.5F, 1);
    expectPixel(99, 12, 255, 0, 0);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    expectPixel(107, 12, GetRValue(face), GetGValue(face), GetBValue(face));
    expectPixel(110, 12, 255, 0, 0);
}

TEST_F(LuDialogCustomSliderPixelsTest, severalSliders_drawEachItsOwn) {
    m_slider->setBarColors({RED}, true);
    LuDialogCustomSlider other(GetParent(m_window));
    const HWND window = other.buildWidget(GetParent(m_window));
    SetWindowPos(window, nullptr, 10, 50, 100, 40, SWP_NOZORDER);
    other.setBarColors({BLUE}, true);
    expectPixel(100, 12, 255, 0, 0);
    expectPixelOf(window, 90, 20, 0, 0, 255);
}

TEST_F(LuDialogCustomSliderPixelsTest, currentContext_staysWhoseverItIs) {
    EXPECT_EQ(wglGetCurrentContext(), nullptr);
    expectPixel(100, 12, 168, 168, 168);
    EXPECT_EQ(wglGetCurrentContext(), nullptr);
}

} // namespace
