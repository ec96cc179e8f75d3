// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWin.h"

#include "tests/host/TestHost.h"
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class LuWinTest : public WindowFixture {
protected:
    void TearDown() override {
        LuWin::setErrorDialogHandler(nullptr, nullptr);
        LuWin::setRegisterClassHandler(nullptr, nullptr);
        LuWin::setMessageHandler(nullptr, nullptr);
        LuWin::setTopLevelWidget(nullptr);
        LuWin::removeAccelerators();
        WindowFixture::TearDown();
    }

    static WNDCLASSA describeClass(const char* name) {
        WNDCLASSA description{};
        description.lpfnWndProc = DefWindowProcA;
        description.hInstance = LuWin::getInstance();
        description.lpszClassName = name;
        return description;
    }
};

TEST_F(LuWinTest, class_isFoundAfterItIsRegistered) {
    WNDCLASSA found{};
    std::string realName = "before";
    EXPECT_FALSE(LuWin::getClassInfo(LuWin::getInstance(), "LuWinTestClass", realName, found));
    EXPECT_EQ(realName, "before");
    EXPECT_NE(LuWin::registerClass(describeClass("LuWinTestClass"), realName), 0);
    EXPECT_EQ(realName, "LuWinTestClass");
    realName.clear();
    EXPECT_TRUE(LuWin::getClassInfo(LuWin::getInstance(), "LuWinTestClass", realName, found));
    EXPECT_EQ(realName, "LuWinTestClass");
    HWND window = CreateWindowExA(0, realName.c_str(), "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                  LuWin::getInstance(), nullptr);
    EXPECT_TRUE(IsWindow(window));
    LuWin::unregisterClasses();
    EXPECT_TRUE(LuWin::getClassInfo(LuWin::getInstance(), "LuWinTestClass", realName, found))
        << "a class with windows stays";
    DestroyWindow(window);
    LuWin::unregisterClasses();
    EXPECT_FALSE(LuWin::getClassInfo(LuWin::getInstance(), "LuWinTestClass", realName, found));
}

TEST_F(LuWinTest, failedRegistration_givesNothing) {
    std::string realName = "before";
    LuWin::setRegisterClassHandler([](const WNDCLASSA&, void*) -> ATOM { return 0; }, nullptr);
    EXPECT_EQ(LuWin::registerClass(describeClass("LuWinTestClass"), realName), 0);
    EXPECT_EQ(realName, "before");
}

TEST_F(LuWinTest, errorDialog_isPostedAndHandedToTheHandler) {
    std::string seen;
    LuWin::setErrorDialogHandler(
        [](const LuErrorDialog& dialog, void* data) {
            *static_cast<std::string*>(data) = std::string(dialog.title) + "|" + dialog.text;
        },
        &seen);
    expectMessage("LuTest Error", "CreateWindow failed");
    LuWin::createSimpleErrorDialog(nullptr, "LuTest Error", "CreateWindow failed", nullptr);
    EXPECT_EQ(seen, "LuTest Error|CreateWindow failed");
    expectMessage("LuTest Error", "CreateWindow failed (no memory)");
    LuWin::createSimpleErrorDialog(nullptr, "LuTest Error", "CreateWindow failed", "no memory");
}

TEST_F(LuWinTest, errorDialogWithoutAHandler_doesNotStopTheProgram) {
    expectMessage("LuTest Error", "CreateWindow failed");
    LuWin::createSimpleErrorDialog(nullptr, "LuTest Error", "CreateWindow failed", nullptr);
}

TEST_F(LuWinTest, showAndHide_followTheWindow) {
    HWND top = createTop();
    LuWin::show(top);
    EXPECT_TRUE(IsWindowVisible(top));
    EXPECT_EQ(GetActiveWindow(), top);
    LuWin::hide(top);
    EXPECT_FALSE(IsWindowVisible(top));
    DestroyWindow(top);
    LuWin::show(top);
    LuWin::hide(nullptr);
}

TEST_F(LuWinTest, messages_areShownToTheHandler) {
    EXPECT_FALSE(LuWin::isLumoraMessage(nullptr, WM_USER, 1, 2));
    UINT seen = 0;
    LuWin::setMessageHandler(
        [](HWND, UINT message, WPARAM, LPARAM, void* data) {
            *static_cast<UINT*>(data) = message;
            return message == WM_USER;
        },
        &seen);
    EXPECT_TRUE(LuWin::isLumoraMessage(nullptr, WM_USER, 1, 2));
    EXPECT_FALSE(LuWin::isLumoraMessage(nullptr, WM_SIZE, 1, 2));
    EXPECT_EQ(seen, static_cast<UINT>(WM_SIZE));
}

TEST_F(LuWinTest, topLevelWidgetThatIsGone_isNull) {
    EXPECT_EQ(LuWin::getTopLevelWidget(), nullptr);
    HWND top = createTop();
    LuWin::setTopLevelWidget(top);
    EXPECT_EQ(LuWin::getTopLevelWidget(), top);
    DestroyWindow(top);
    EXPECT_EQ(LuWin::getTopLevelWidget(), nullptr);
}

TEST_F(LuWinTest, mainLoop_dispatchesUntilItIsToldToQuit) {
    HWND top = createTop();
    takeLog();
    PostMessageA(top, WM_USER, 3, 0);
    PostQuitMessage(5);
    EXPECT_EQ(LuWin::mainLoop(), 5);
    EXPECT_THAT(takeLog(), ElementsAre("top:USER(3)"));
    EXPECT_TRUE(LuWin::processMessages());
    PostQuitMessage(0);
    EXPECT_FALSE(LuWin::processMessages());
}

TEST_F(LuWinTest, accelerator_becomesACommandOfTheOutermostWindow) {
    HWND top = createTop();
    HWND child = createChild("child", top);
    LuWin::addAccelerator({FVIRTKEY, VK_F4, 1});
    LuWin::addAccelerator({FVIRTKEY, VK_F4, 42});
    takeLog();
    PostMessageA(child, WM_KEYDOWN, VK_F4, 0);
    PostMessageA(child, WM_KEYDOWN, VK_F1, 0);
    PostQuitMessage(0);
    LuWin::mainLoop();
    EXPECT_THAT(takeLog(), ElementsAre("top:COMMAND(42,1,none)"));
}

TEST_F(LuWinTest, windowText_isUtf8) {
    HWND label = create("label", WS_CHILD, createTop(), 0, {}, "STATIC");
    LuWin::setWindowText(label, "a\xce\xb1\xe2\x82\xac");
    EXPECT_EQ(LuWin::getWindowText(label), LvString("a\xce\xb1\xe2\x82\xac"));
    LuWin::setWindowText(label, "");
    EXPECT_TRUE(LuWin::getWindowText(label).isEmpty());
}

} // namespace
