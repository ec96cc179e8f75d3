// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinSlider.h"

#include "platform/lumora/win/LuWin.h"
#include "platform/lumora/win/LuWinCanvas.h"
#include "tests/host/TestHost.h"
#include "tests/platform/lumora/win/GLRecorder.h"
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>
#include <limits>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class CountingSlider : public LuWinSlider {
public:
    using LuWinSlider::LuWinSlider;
    void redraw() override {
        ++m_numRedraws;
        LuWinSlider::redraw();
    }
    int m_numRedraws = 0;
};

/// A slider of 110 by 24 pixels: its thumb, 10 pixels wide, goes 100 pixels from end to end.
class LuWinSliderTest : public WindowFixture {
public:
    HWND m_top = nullptr, m_other = nullptr, m_window = nullptr;
    std::unique_ptr<CountingSlider> m_slider;
    std::vector<std::string> m_events;

protected:
    void SetUp() override {
        WindowFixture::SetUp();
        m_top = createTop();
        m_other = createButton("other", m_top, {0, 100, 80, 124});
        ShowWindow(m_top, SW_SHOW);
        m_slider = std::make_unique<CountingSlider>(m_top, "", 1, 0);
        m_window = build(*m_slider);
        m_slider->addValueChangedCallback(writeChange, this);
        m_slider->addFinishCallback(writeFinish, this);
    }
    void TearDown() override {
        m_slider.reset();
        LuWinCanvas::setMaker(nullptr);
        WindowFixture::TearDown();
    }

    HWND build(LuWinSlider& slider) {
        const HWND window = slider.buildWidget(m_top);
        slider.setBaseWidget(window);
        SetWindowPos(window, nullptr, 10, 10, 110, 24, SWP_NOZORDER);
        return window;
    }

    void send(UINT message, int x) const {
        const WPARAM buttons = message == WM_LBUTTONUP ? 0 : MK_LBUTTON;
        SendMessageA(m_window, message, buttons, MAKELPARAM(x, 12));
    }
    void press(int x) const { send(WM_LBUTTONDOWN, x); }
    void move(int x) const { send(WM_MOUSEMOVE, x); }
    void release(int x) const { send(WM_LBUTTONUP, x); }
    void paint() const { SendMessageA(m_window, WM_PAINT, 0, 0); }

    int getThumb() const { return m_slider->getThumbRectangle().x0; }

    /// "changed 50", "finished 50": hundredths.
    std::vector<std::string> takeEvents() { return std::exchange(m_events, {}); }

    static std::string getText(const char* name, float value) {
        return std::string(name) + " " + std::to_string(std::lround(value * 100));
    }
    static void writeChange(void* data, float value) {
        static_cast<LuWinSliderTest*>(data)->m_events.push_back(getText("changed", value));
    }
    static void writeFinish(void* data, float value) {
        static_cast<LuWinSliderTest*>(data)->m_events.push_back(getText("finished", value));
    }
    static void endSlider(void* data, float) { static_cast<LuWinSliderTest*>(data)->m_slider.reset(); }
    static void endWindow(void* data, float) { DestroyWindow(static_cast<LuWinSliderTest*>(data)->m_window); }
    static void endBoth(void* data, float value) {
        endSlider(data, value);
        endWindow(data, value);
    }
};

// The value

TEST_F(LuWinSliderTest, newSlider_standsAtItsLeftEnd) {
    EXPECT_EQ(m_slider->getValue(), 0);
    EXPECT_EQ(getThumb(), 0);
}

TEST_F(LuWinSliderTest, value_placesTheThumbBetweenTheEnds) {
    m_slider->setValue(0.5F, 1);
    EXPECT_EQ(getThumb(), 50);
    EXPECT_EQ(m_slider->getThumbRectangle().x1, 59);
    m_slider->setValue(1, 1);
    EXPECT_EQ(m_slider->getThumbRectangle().x1, 109);
    EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(LuWinSliderTest, valueBeyondAnEnd_isTheEnd) {
    m_slider->setValue(1.01F, 1);
    EXPECT_EQ(m_slider->getValue(), 1);
    m_slider->setValue(-3, 1);
    EXPECT_EQ(m_slider->getValue(), 0);
    m_slider->setValue(0.5F, 1);
    m_slider->setValue(std::numeric_limits<float>::quiet_NaN(), 1);
    EXPECT_EQ(m_slider->getValue(), 0);
}

TEST_F(LuWinSliderTest, value_isDrawnWhenItIsAskedFor) {
    m_slider->m_numRedraws = 0;
    m_slider->setValue(0.5F, 0);
    EXPECT_EQ(m_slider->m_numRedraws, 0);
    m_slider->setValue(0.5F, 1);
    EXPECT_EQ(m_slider->m_numRedraws, 1);
}

TEST_F(LuWinSliderTest, bar_isAsWideAsTheWindow) {
    const LuWinSliderRectangle bar = m_slider->getBarRectangle();
    EXPECT_EQ(bar.x0, 0);
    EXPECT_EQ(bar.x1, 109);
    EXPECT_GT(bar.y0, 0);
    EXPECT_EQ(bar.y1, 23 - bar.y0);
}

// The mouse

TEST_F(LuWinSliderTest, drag_changesAtEachMotionAndFinishesAtTheRelease) {
    press(5);
    move(30);
    move(55);
    release(55);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 25", "changed 50", "finished 50"));
    EXPECT_EQ(getThumb(), 50);
}

TEST_F(LuWinSliderTest, pressOnTheThumb_leavesTheValue) {
    m_slider->setValue(0.503F, 1);
    press(51);
    move(51);
    release(51);
    EXPECT_THAT(takeEvents(), ElementsAre("finished 50"));
    EXPECT_EQ(m_slider->getValue(), 0.503F);
}

TEST_F(LuWinSliderTest, pressOnTheBar_bringsTheThumbThereAndGoesOnAsADrag) {
    press(75);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 70"));
    move(85);
    release(95);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 80", "changed 90", "finished 90"));
}

TEST_F(LuWinSliderTest, dragBeyondTheEnds_staysAtThem) {
    press(5);
    move(500);
    move(700);
    move(-200);
    release(-200);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 100", "changed 0", "finished 0"));
}

TEST_F(LuWinSliderTest, motionWithoutAPress_doesNothing) {
    move(50);
    release(50);
    EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(LuWinSliderTest, press_takesFocusAndMouse) {
    press(5);
    EXPECT_EQ(GetFocus(), m_window);
    EXPECT_EQ(GetCapture(), m_window);
    release(5);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(LuWinSliderTest, mouseTakenAway_finishesTheDrag) {
    press(5);
    move(30);
    SetCapture(m_other);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 25", "finished 25"));
    move(60);
    release(60);
    EXPECT_THAT(takeEvents(), IsEmpty());
    EXPECT_EQ(GetCapture(), m_other);
    ReleaseCapture();
}

TEST_F(LuWinSliderTest, disabledDuringADrag_finishesIt) {
    press(5);
    move(30);
    EnableWindow(m_window, FALSE);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 25", "finished 25"));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(LuWinSliderTest, windowNoWiderThanItsThumb_keepsItsValue) {
    SetWindowPos(m_window, nullptr, 10, 10, 8, 24, SWP_NOZORDER);
    EXPECT_EQ(m_slider->getThumbRectangle().x1, 7);
    press(4);
    move(7);
    release(7);
    EXPECT_THAT(takeEvents(), ElementsAre("finished 0"));
}

TEST_F(LuWinSliderTest, arrowKeys_areNotItsBusiness) {
    SetFocus(m_window);
    SendMessageA(m_window, WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_THAT(takeEvents(), IsEmpty());
    EXPECT_EQ(SendMessageA(m_window, WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS);
}

// Callbacks

TEST_F(LuWinSliderTest, callbackAddedTwice_isCalledTwice) {
    m_slider->addFinishCallback(writeFinish, this);
    press(5);
    release(5);
    EXPECT_THAT(takeEvents(), ElementsAre("finished 0", "finished 0"));
    m_slider->removeFinishCallback(writeFinish, this);
    press(5);
    release(5);
    EXPECT_THAT(takeEvents(), ElementsAre("finished 0"));
}

TEST_F(LuWinSliderTest, unknownCallback_isNotRemoved) {
    m_slider->removeFinishCallback(writeFinish, nullptr);
    m_slider->removeFinishCallback(writeChange, this);
    press(5);
    release(5);
    EXPECT_THAT(takeEvents(), ElementsAre("finished 0"));
}

TEST_F(LuWinSliderTest, callbackRemovedByAnother_isNotCalled) {
    m_slider->removeFinishCallback(writeFinish, this);
    m_slider->addFinishCallback(
        [](void* data, float) {
            static_cast<LuWinSliderTest*>(data)->m_slider->removeFinishCallback(writeFinish, data);
        },
        this);
    m_slider->addFinishCallback(writeFinish, this);
    press(5);
    release(5);
    EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(LuWinSliderTest, silentSlider_callsNobody) {
    LuWinSlider silent(m_top, "", 0, 0);
    m_window = build(silent);
    silent.addValueChangedCallback(writeChange, this);
    silent.addFinishCallback(writeFinish, this);
    press(5);
    move(55);
    release(55);
    EXPECT_THAT(takeEvents(), IsEmpty());
    EXPECT_EQ(silent.getValue(), 0.5F);
}

TEST_F(LuWinSliderTest, sliderEndedByACallback_takesTheOthersWithIt) {
    m_slider = std::make_unique<CountingSlider>(m_top, "", 1, 0);
    m_window = build(*m_slider);
    m_slider->addValueChangedCallback(endSlider, this);
    m_slider->addValueChangedCallback(writeChange, this);
    m_slider->addFinishCallback(writeFinish, this);
    press(5);
    move(30);
    release(30);
    EXPECT_THAT(takeEvents(), IsEmpty());
    EXPECT_TRUE(IsWindow(m_window)) << "who made it ends it";
    EXPECT_EQ(GetCapture(), nullptr);
    DestroyWindow(m_window);
}

TEST_F(LuWinSliderTest, sliderEndedAtThePressOnTheBar_isGone) {
    m_slider->addValueChangedCallback(endBoth, this);
    press(75);
    EXPECT_FALSE(IsWindow(m_window));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(LuWinSliderTest, sliderEndedAtTheRelease_isGone) {
    m_slider->addFinishCallback(endBoth, this);
    press(5);
    release(30);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 25", "finished 25"));
    EXPECT_FALSE(IsWindow(m_window));
}

TEST_F(LuWinSliderTest, windowEndedByACallback_leavesTheSliderWithoutOne) {
    m_slider->addValueChangedCallback(endWindow, this);
    press(5);
    move(30);
    EXPECT_EQ(m_slider->getBaseWidget(), nullptr);
    EXPECT_EQ(m_slider->getNormalWindow(), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
    m_slider->setValue(0.75F, 1);
    EXPECT_EQ(m_slider->getValue(), 0.75F);
    EXPECT_EQ(m_slider->getBarRectangle().x1, -1);
}

TEST_F(LuWinSliderTest, windowEndedByTheLossOfFocusElsewhere_isNotPressed) {
    SetFocus(m_other);
    subclass(m_other);
    static LuWinSliderTest* s_test;
    s_test = this;
    m_answer = [](HWND window, UINT message, WPARAM, LPARAM, bool&) -> LRESULT {
        if (message == WM_KILLFOCUS && window == s_test->m_other)
            endBoth(s_test, 0);
        return 0;
    };
    press(75);
    m_answer = nullptr;
    EXPECT_THAT(takeEvents(), IsEmpty());
    EXPECT_EQ(GetCapture(), nullptr);
}

// Windows

TEST_F(LuWinSliderTest, sliderThatIsBuiltNow_hasItsWindow) {
    LuWinSlider now(m_top, "now", 1, 1);
    EXPECT_TRUE(IsWindow(now.getBaseWidget()));
    EXPECT_EQ(now.getNormalWindow(), now.getBaseWidget());
    EXPECT_EQ(GetParent(now.getBaseWidget()), m_top);
    EXPECT_EQ(LuWin::getWindowText(now.getBaseWidget()), "now");
    now.hide();
    EXPECT_FALSE(IsWindowVisible(now.getBaseWidget()));
    now.show();
    EXPECT_TRUE(IsWindowVisible(now.getBaseWidget()));
}

TEST_F(LuWinSliderTest, userDataOfTheWindow_isForItsUser) {
    SetWindowLongPtrA(m_window, GWLP_USERDATA, 17);
    press(75);
    release(75);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 70", "finished 70"));
    EXPECT_EQ(GetWindowLongPtrA(m_window, GWLP_USERDATA), 17);
}

TEST_F(LuWinSliderTest, classThatCannotBeRegistered_isReported) {
    m_slider.reset();
    DestroyWindow(m_window);
    LuWin::unregisterClasses();
    LuWin::setRegisterClassHandler([](const WNDCLASSA&, void*) -> ATOM { return 0; }, nullptr);
    expectMessage("LuWinSlider Error", "RegisterClass failed");
    LuWinSlider slider(m_top, "", 1, 1);
    LuWin::setRegisterClassHandler(nullptr, nullptr);
    EXPECT_EQ(slider.getBaseWidget(), nullptr);
}

TEST_F(LuWinSliderTest, windowThatCannotBeMade_isReported) {
    expectMessage("LuWinSlider Error", "CreateWindow failed");
    LuWinSlider slider(nullptr, "", 1, 1);
    EXPECT_EQ(slider.getBaseWidget(), nullptr);
}

// Drawing

TEST_F(LuWinSliderTest, paint_drawsBarThenThumbThenFlushes) {
    GLRecorder recorder;
    m_slider->setValue(0.5F, 1);
    paint();
    const std::vector<std::string> calls = recorder.take();
    const LuWinSliderRectangle bar = m_slider->getBarRectangle();
    ASSERT_GT(calls.size(), 4u);
    EXPECT_EQ(calls[1], "rects 0 " + std::to_string(bar.y0) + " 110 " + std::to_string(bar.y1 + 1));
    EXPECT_EQ(calls[3], "rects 50 0 60 24");
    EXPECT_THAT(calls, Contains("flush"));
}

std::string getCall(int systemColor) {
    const COLORREF color = GetSysColor(systemColor);
    return "color3f " + std::to_string(color & 255) + " " + std::to_string(color >> 8 & 255) + " " +
           std::to_string(color >> 16 & 255);
}

TEST_F(LuWinSliderTest, thumb_showsTheFocus) {
    GLRecorder recorder;
    SetFocus(m_other);
    paint();
    EXPECT_THAT(recorder.take(), Not(Contains(getCall(COLOR_HIGHLIGHT))));
    m_slider->m_numRedraws = 0;
    SetFocus(m_window);
    EXPECT_EQ(m_slider->m_numRedraws, 1);
    recorder.take();
    paint();
    EXPECT_THAT(recorder.take(), Contains(getCall(COLOR_HIGHLIGHT)));
}

TEST_F(LuWinSliderTest, thumbOfADisabledSlider_isFlatter) {
    GLRecorder recorder;
    paint();
    EXPECT_THAT(recorder.take(), Contains(getCall(COLOR_3DDKSHADOW)));
    m_slider->m_numRedraws = 0;
    EnableWindow(m_window, FALSE);
    EXPECT_EQ(m_slider->m_numRedraws, 1);
    recorder.take();
    paint();
    EXPECT_THAT(recorder.take(), Not(Contains(getCall(COLOR_3DDKSHADOW))));
}

TEST_F(LuWinSliderTest, newSize_isDrawn) {
    m_slider->m_numRedraws = 0;
    SetWindowPos(m_window, nullptr, 10, 10, 60, 24, SWP_NOZORDER);
    EXPECT_EQ(m_slider->m_numRedraws, 1);
    EXPECT_EQ(m_slider->getBarRectangle().x1, 59);
}

int s_numCanvases = 0;

class EmptyCanvas : public LuWinCanvas {
public:
    EmptyCanvas() { ++s_numCanvases; }
    ~EmptyCanvas() override { --s_numCanvases; }
    bool begin(int, int, COLORREF) override { return true; }
    void end(HDC) override {}
};

TEST_F(LuWinSliderTest, allSliders_shareACanvasThatEndsWithTheLast) {
    LuWinCanvas::setMaker([]() -> std::shared_ptr<LuWinCanvas> { return std::make_shared<EmptyCanvas>(); });
    {
        LuWinSlider other(m_top, "", 1, 0);
        const HWND otherWindow = build(other);
        paint();
        SendMessageA(otherWindow, WM_PAINT, 0, 0);
        EXPECT_EQ(s_numCanvases, 1);
    }
    EXPECT_EQ(s_numCanvases, 1);
    m_slider.reset();
    EXPECT_EQ(s_numCanvases, 0);
}

TEST_F(LuWinSliderTest, withoutACanvas_theSliderStaysUsable) {
    static int s_numTries;
    s_numTries = 0;
    LuWinCanvas::setMaker([]() -> std::shared_ptr<LuWinCanvas> {
        ++s_numTries;
        return nullptr;
    });
    GLRecorder recorder;
    paint();
    paint();
    EXPECT_EQ(s_numTries, 1) << "what failed once is not tried at each paint";
    EXPECT_THAT(recorder.take(), IsEmpty());
    press(5);
    move(55);
    release(55);
    EXPECT_THAT(takeEvents(), ElementsAre("changed 50", "finished 50"));
}

} // namespace
