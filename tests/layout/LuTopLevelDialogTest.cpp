// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWin.h"
#include "tests/layout/DialogTest.h"

namespace {

/// What the inner window of the dialog is sent.
std::vector<std::pair<UINT, WPARAM>> s_sent;
WNDPROC s_procedure = nullptr;

LRESULT CALLBACK spyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    s_sent.emplace_back(message, wParam);
    return CallWindowProcA(s_procedure, window, message, wParam, lParam);
}

/// The user's lines for each notch of the wheel, known to all dialogs while it lives. Afterwards nothing is
/// known of the wheel, as at the start.
class WheelLines {
public:
    WheelLines(LuTopLevelDialog* dialog, UINT lines) : m_dialog(dialog) {
        SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &m_before, 0);
        tell(lines);
    }
    WheelLines(const WheelLines&) = delete;
    WheelLines& operator=(const WheelLines&) = delete;
    ~WheelLines() {
        m_dialog->setCurrentScrolledWidget(m_dialog->getWidget());
        tell(0);
        SystemParametersInfoA(SPI_SETWHEELSCROLLLINES, m_before, nullptr, 0);
    }

private:
    void tell(UINT lines) {
        EXPECT_TRUE(SystemParametersInfoA(SPI_SETWHEELSCROLLLINES, lines, nullptr, 0));
        SendMessageA(m_dialog->getBaseWidget(), WM_SETTINGCHANGE, 0, 0);
    }

    LuTopLevelDialog* m_dialog;
    UINT m_before = 0;
};

class LuTopLevelDialogTest : public DialogTest {
protected:
    LuTopLevelDialog* buildDialog(const char* text) {
        LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(text);
        if (dialog)
            dialog->buildDialog(nullptr, 0);
        return dialog;
    }

    static LvVec2i32 getFrame() { return {GetSystemMetrics(SM_CXFRAME), GetSystemMetrics(SM_CYFRAME)}; }

    static int countScrolls(LuTopLevelDialog* dialog, int turned, WPARAM code) {
        s_sent.clear();
        s_procedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(dialog->getWidget(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&spyProcedure)));
        SendMessageA(dialog->getBaseWidget(), WM_MOUSEWHEEL, MAKEWPARAM(0, turned), 0);
        SetWindowLongPtrA(dialog->getWidget(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_procedure));
        return static_cast<int>(
            std::count(s_sent.begin(), s_sent.end(), std::pair<UINT, WPARAM>(WM_VSCROLL, code)));
    }
};

constexpr const char* s_oneChild = "TopLevelDialog { label \"Title\" DialogComponent { } }";

TEST_F(LuTopLevelDialogTest, build_makesABaseAnInnerAndACarrierWindow) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    const HWND base = dialog->getBaseWidget();
    EXPECT_EQ(LuWin::getWindowText(base), "Title");
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_STYLE) & 0xffffffff, 0x06CF0000);
    EXPECT_EQ(GetParent(dialog->getWidget()), base);
    EXPECT_EQ(GetWindowLongPtrA(dialog->getWidget(), GWL_STYLE) & 0x56000000, 0x56000000);
    EXPECT_EQ(GetParent(static_cast<LuDialogComponent*>(dialog->getChild(0))->getWidget()),
              dialog->getWidget());
    EXPECT_FALSE(IsWindowVisible(base));
}

TEST_F(LuTopLevelDialogTest, classesThatCantBeRegistered_areReportedAndTheDialogStaysWithoutWindows) {
    LuWin::unregisterClasses();
    LuWin::setRegisterClassHandler([](const WNDCLASSA&, void*) -> ATOM { return 0; }, nullptr);
    expectMessage("LuTopLevelDialog Error", "Register Base Class failed");
    expectMessage("LuTopLevelDialog Error", "Create Base Window failed");
    expectMessage("LuTopLevelDialog Error", "RegisterClass failed");
    expectMessage("LuTopLevelDialog Error", "Create TopLevel Window failed");
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { }");
    LuWin::setRegisterClassHandler(nullptr, nullptr);
    EXPECT_EQ(dialog->getBaseWidget(), nullptr);
    EXPECT_EQ(dialog->getWidget(), nullptr);
    dialog->show();
    dialog->hide();
}

TEST_F(LuTopLevelDialogTest, showAndHide_areOfTheBaseWindow) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    dialog->show();
    EXPECT_TRUE(IsWindowVisible(dialog->getBaseWidget()));
    dialog->hide();
    EXPECT_FALSE(IsWindowVisible(dialog->getBaseWidget()));
}

TEST_F(LuTopLevelDialogTest, closeOfTheSystemMenu_hidesTheDialog) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    dialog->show();
    SendMessageA(dialog->getBaseWidget(), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_TRUE(IsWindow(dialog->getBaseWidget()));
    EXPECT_FALSE(IsWindowVisible(dialog->getBaseWidget()));
}

TEST_F(LuTopLevelDialogTest, closeOfAnEmbeddedDialog_endsTheMessageLoop) {
    const HWND window = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                                        nullptr, LuWin::getInstance(), nullptr);
    LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(s_oneChild);
    dialog->buildDialog(window, 1);
    EXPECT_EQ(dialog->getBaseWidget(), window);
    SendMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_FALSE(LuWin::processMessages());
}

TEST_F(LuTopLevelDialogTest, close_givesUpAReference) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    dialog->ref();
    const int before = dialog->getRefCount();
    dialog->show();
    dialog->close();
    EXPECT_EQ(dialog->getRefCount(), before - 1);
    EXPECT_FALSE(IsWindowVisible(dialog->getBaseWidget()));
}

TEST_F(LuTopLevelDialogTest, lastReference_endsTheWindows) {
    auto* const dialog = new LuTopLevelDialog;
    dialog->ref();
    auto* const child = new LuDialogComponent;
    dialog->addChild(child);
    dialog->buildDialog(nullptr, 0);
    const HWND windows[] = {dialog->getBaseWidget(), dialog->getWidget(), child->getWidget()};
    dialog->unref();
    for (const HWND window : windows)
        EXPECT_FALSE(IsWindow(window));
}

TEST_F(LuTopLevelDialogTest, size_isThatOfTheChildrenWithTheFrame) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { margin 4 rowSpacing 5 resizable FALSE"
                    " DialogComponent { } DialogComponent { } DialogComponent { } }");
    LvVec2i32 size, minSize, maxSize;
    dialog->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size, LvVec2i32(208, 3 * 28 + 2 * 5 + 8));
    EXPECT_EQ(minSize, LvVec2i32(33, 3 * 25 + 2 * 5 + 8));
    EXPECT_EQ(maxSize, LvVec2i32(LuSizes::UNLIMITED, LuSizes::UNLIMITED));
    EXPECT_EQ(dialog->width.getValue(), 208 + 2 * getFrame().x);
}

TEST_F(LuTopLevelDialogTest, children_areStackedFromTheTop) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { margin 4 rowSpacing 5"
                    " DialogComponent { fixedHeight TRUE } DialogComponent { } }");
    EXPECT_EQ(getCorner(static_cast<LuDialogComponent*>(dialog->getChild(0))->getWidget()), LvVec2i32(4, 4));
    EXPECT_EQ(getCorner(static_cast<LuDialogComponent*>(dialog->getChild(1))->getWidget()), LvVec2i32(4, 37));
}

TEST_F(LuTopLevelDialogTest, labels_haveOneColumnThroughTheWholeDialog) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { DialogComponent { label \"A longer label\" } DialogComponent { } }");
    LvVec2i32 size, position;
    static_cast<LuDialogComponent*>(dialog->getChild(1))->get2DComponentSize(size, position);
    EXPECT_EQ(position.x, 5 + LuPanelix::getLabelPixelSize("A longer label", nullptr).x);
}

TEST_F(LuTopLevelDialogTest, notResizableWithoutWidth_hasTheLimitsOfTheChildren) {
    LuTopLevelDialog* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { resizable FALSE DialogComponent { } }");
    EXPECT_EQ(getSizesOf(dialog).minSize.x, 25 + 2 * getFrame().x);
    EXPECT_EQ(getSizesOf(dialog).maxSize.x, LuSizes::UNLIMITED);
    dialog->width = 300;
    EXPECT_EQ(getSizesOf(dialog).minSize.x, 300);
    EXPECT_EQ(getSizesOf(dialog).maxSize.x, 300);
}

TEST_F(LuTopLevelDialogTest, minMaxInfo_tellsTheLimitsAndZeroAsNone) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    dialog->minWidth = 120;
    dialog->maxWidth = 0;
    dialog->maxHeight = 400;
    MINMAXINFO info{};
    SendMessageA(dialog->getBaseWidget(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 120);
    EXPECT_EQ(info.ptMaxTrackSize.x, 2147483647);
    EXPECT_EQ(info.ptMaxTrackSize.y, 400);
}

TEST_F(LuTopLevelDialogTest, resizedWindow_isLaidOutAnew) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    const int before = dialog->width.getValue();
    auto* const child = static_cast<LuDialogComponent*>(dialog->getChild(0));
    const LvVec2i32 childBefore = getExtent(child->getWidget());
    SetWindowPos(dialog->getBaseWidget(), nullptr, 40, 50, before + 30, dialog->height.getValue() + 20, 0);
    EXPECT_EQ(dialog->width.getValue(), before + 30);
    EXPECT_EQ(dialog->position.getValue(), LvVec2i32(40, 50));
    EXPECT_EQ(getExtent(child->getWidget()), LvVec2i32(childBefore.x + 30, childBefore.y + 20));
}

TEST_F(LuTopLevelDialogTest, positionField_movesTheWindow) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { position 60 70 DialogComponent { } }");
    EXPECT_EQ(getCorner(dialog->getBaseWidget()), LvVec2i32(60, 70));
    dialog->position = LvVec2i32(20, 30);
    EXPECT_EQ(getCorner(dialog->getBaseWidget()), LvVec2i32(20, 30));
}

TEST_F(LuTopLevelDialogTest, computedSizes_areNotWritten) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { minWidth 40 DialogComponent { } }");
    const std::string text = write(dialog);
    EXPECT_NE(text.find("minWidth 40"), std::string::npos);
    for (const char* name : {" width", "eight", "maxWidth"})
        EXPECT_EQ(text.find(name), std::string::npos) << text;
}

TEST_F(LuTopLevelDialogTest, wheelBeforeTheSettingsAreKnown_doesNothing) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    EXPECT_EQ(countScrolls(dialog, 120, SB_LINEUP), 0);
}

TEST_F(LuTopLevelDialogTest, wheel_scrollsTheLinesOfTheSystem) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    for (const UINT lines : {0u, 1u, 2u, WHEEL_PAGESCROLL}) {
        const WheelLines setting(dialog, lines);
        const int expected = lines == WHEEL_PAGESCROLL ? 0 : static_cast<int>(lines);
        EXPECT_EQ(countScrolls(dialog, 120, SB_LINEUP), expected);
        EXPECT_EQ(countScrolls(dialog, -120, SB_LINEDOWN), expected);
    }
}

TEST_F(LuTopLevelDialogTest, partsOfANotch_addUp) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    const WheelLines setting(dialog, 3);
    EXPECT_EQ(countScrolls(dialog, 120, SB_LINEUP), 3);
    EXPECT_EQ(countScrolls(dialog, -240, SB_LINEDOWN), 6);
    EXPECT_EQ(countScrolls(dialog, 20, SB_LINEUP), 0);
    EXPECT_EQ(countScrolls(dialog, 20, SB_LINEUP), 1);
}

TEST_F(LuTopLevelDialogTest, wheelOverAnotherScrolledWindow_isNotTheDialogs) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    const WheelLines setting(dialog, 3);
    dialog->setCurrentScrolledWidget(nullptr);
    EXPECT_EQ(countScrolls(dialog, 120, SB_LINEUP), 0);
}

TEST_F(LuTopLevelDialogTest, windowHardlyHigherThanABar_showsNoHorizontalBar) {
    LuTopLevelDialog* const dialog = buildDialog(
        "TopLevelDialog { hScrollVisibility ALWAYS vScrollVisibility NEVER DialogComponent { } }");
    SetWindowPos(dialog->getWidget(), nullptr, 0, 0, 200, 2 * GetSystemMetrics(SM_CXHSCROLL) + 1, SWP_NOMOVE);
    EXPECT_TRUE(GetWindowLongPtrA(dialog->getWidget(), GWL_STYLE) & WS_HSCROLL);
    SetWindowPos(dialog->getWidget(), nullptr, 0, 0, 200, 30, SWP_NOMOVE);
    EXPECT_FALSE(GetWindowLongPtrA(dialog->getWidget(), GWL_STYLE) & WS_HSCROLL);
}

TEST_F(LuTopLevelDialogTest, modalFrame_setsTheStylesAndAChangeOthers) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { modalFrame TRUE resizable FALSE DialogComponent { } }");
    const HWND base = dialog->getBaseWidget();
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_STYLE) & 0xffffffff, 0x86C80000);
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_EXSTYLE), 393);
    dialog->modalFrame = false;
    EXPECT_FALSE(GetWindowLongPtrA(base, GWL_EXSTYLE) & WS_EX_TOPMOST);
    dialog->modalFrame = true;
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_EXSTYLE), 264);
    dialog->resizable = true;
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_STYLE) & 0x0fffffff & ~0x08000000, 0x06CF0000);
    EXPECT_EQ(dialog->maxWidth.getValue(), 0);
    EXPECT_TRUE(dialog->maxWidth.isDefault());
}

TEST_F(LuTopLevelDialogTest, dialogThatIsNotResizable_isMadeWithAThinFrameAndShows) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { resizable FALSE DialogComponent { } }");
    const HWND base = dialog->getBaseWidget();
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_STYLE) & 0xffffffff, 0x16C80000);
    EXPECT_EQ(GetWindowLongPtrA(base, GWL_EXSTYLE), 256);
    for (const LuSFInt32* limit :
         {&dialog->minWidth, &dialog->minHeight, &dialog->maxWidth, &dialog->maxHeight})
        EXPECT_TRUE(limit->isDefault());
    EXPECT_EQ(dialog->minWidth.getValue(), dialog->width.getValue());
    EXPECT_EQ(dialog->maxHeight.getValue(), dialog->height.getValue());
}

TEST_F(LuTopLevelDialogTest, dialogThatIsNoLongerResizable_hasTheLimitsOfItsChildren) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { DialogComponent { maxHeight 90 } }");
    dialog->resizable = false;
    EXPECT_EQ(GetWindowLongPtrA(dialog->getBaseWidget(), GWL_STYLE) & 0xffffffff, 0x16C80000);
    EXPECT_EQ(dialog->minWidth.getValue(), 25);
    EXPECT_EQ(dialog->minHeight.getValue(), 25);
    EXPECT_EQ(dialog->maxWidth.getValue(), 0);
    EXPECT_EQ(dialog->maxHeight.getValue(), 90);
    EXPECT_TRUE(IsWindowVisible(dialog->getBaseWidget()));
}

TEST_F(LuTopLevelDialogTest, sizesSetAfterTheBuild_areTheUsers) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    dialog->width = 400;
    dialog->height = 300;
    dialog->minHeight = 70;
    LuSizes user;
    dialog->getDefaultState(user.size, user.minSize, user.maxSize);
    EXPECT_EQ(user.size, LvVec2i32(400, 300));
    EXPECT_EQ(user.minSize.y, 70);
    EXPECT_EQ(user.maxSize.x, LuSizes::UNLIMITED);
}

TEST_F(LuTopLevelDialogTest, marginAndSpacingSetAfterTheBuild_waitForTheNextLayout) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { DialogComponent { } DialogComponent { fixedHeight TRUE } }");
    auto* const last = static_cast<LuDialogComponent*>(dialog->getChild(1));
    const LvVec2i32 before = getCorner(last->getWidget());
    dialog->margin = 6;
    dialog->rowSpacing = 2;
    EXPECT_EQ(getCorner(last->getWidget()), before);
    dialog->updateChildren();
    EXPECT_EQ(getCorner(last->getWidget()).x, 6);
}

TEST_F(LuTopLevelDialogTest, positionAtTheOrigin_isNotWritten) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { position 60 70 DialogComponent { } }");
    EXPECT_FALSE(dialog->position.isDefault());
    dialog->setPosition({0, 0});
    EXPECT_TRUE(dialog->position.isDefault());
    EXPECT_EQ(getCorner(dialog->getBaseWidget()), LvVec2i32(60, 70));
}

TEST_F(LuTopLevelDialogTest, moveOfTheBaseWindow_isToldByItsSizeOnly) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { position 60 70 DialogComponent { } }");
    SendMessageA(dialog->getBaseWidget(), WM_MOVE, 0, MAKELPARAM(100, 100));
    EXPECT_EQ(dialog->position.getValue(), LvVec2i32(60, 70));
}

TEST_F(LuTopLevelDialogTest, minimisedWindow_keepsItsLayout) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { width 300 height 200 DialogComponent { } }");
    auto* const child = static_cast<LuDialogComponent*>(dialog->getChild(0));
    const LvVec2i32 before = getExtent(child->getWidget());
    dialog->margin = 10;
    SendMessageA(dialog->getWidget(), WM_SIZE, SIZE_MINIMIZED, 0);
    EXPECT_EQ(getExtent(child->getWidget()), before);
    SendMessageA(dialog->getWidget(), WM_SIZE, SIZE_RESTORED, 0);
    EXPECT_EQ(getExtent(child->getWidget()).x, before.x - 20);
}

TEST_F(LuTopLevelDialogTest, embeddedDialog_leavesShowingToTheApplication) {
    const HWND window = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                                        nullptr, LuWin::getInstance(), nullptr);
    LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(s_oneChild);
    dialog->buildDialog(window, 1);
    EXPECT_EQ(GetWindowLongPtrA(window, GWL_STYLE) & 0xffffffff, 0x06CF0000);
    EXPECT_EQ(LuWin::getWindowText(window), "Title");
    dialog->show();
    EXPECT_FALSE(IsWindowVisible(window));
    ShowWindow(window, SW_SHOW);
    dialog->hide();
    EXPECT_TRUE(IsWindowVisible(window));
}

TEST_F(LuTopLevelDialogTest, scrollBar_startsAtZeroAfterEachLayout) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { DialogComponent { minHeight 300 minWidth 300 } }");
    SetWindowPos(dialog->getWidget(), nullptr, 0, 0, 320, 100, SWP_NOMOVE);
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ASSERT_TRUE(GetScrollInfo(dialog->getWidget(), SB_VERT, &info));
    EXPECT_EQ(info.nMax, 300);
    EXPECT_EQ(info.nPage, 100u);
    dialog->setCurrentScrolledWidget(nullptr);
    SendMessageA(dialog->getWidget(), WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(GetScrollPos(dialog->getWidget(), SB_VERT), 1);
    EXPECT_EQ(dialog->getCurrentScrolledWidget(), dialog->getWidget());
    SetWindowPos(dialog->getWidget(), nullptr, 0, 0, 200, 100, SWP_NOMOVE);
    ASSERT_TRUE(GetScrollInfo(dialog->getWidget(), SB_VERT, &info));
    EXPECT_EQ(info.nPos, 0);
    // The bar below counts in the range.
    EXPECT_EQ(info.nMax, 300 + GetSystemMetrics(SM_CXHSCROLL));
}

TEST_F(LuTopLevelDialogTest, userSizes_comeBackOnlyWhenTheChildrenMayResizeTheWindow) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    const int height = dialog->height.getValue();
    dialog->addChild(new LuDialogComponent);
    EXPECT_EQ(dialog->height.getValue(), height);
    dialog->windowResizedByChildren = true;
    dialog->addChild(new LuDialogComponent);
    EXPECT_EQ(dialog->height.getValue(), height + 2 * 28);
}

TEST_F(LuTopLevelDialogTest, tab_movesTheFocus) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    auto* const child = static_cast<LuDialogComponent*>(dialog->getChild(0));
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    HWND buttons[2];
    for (HWND& button : buttons)
        button = CreateWindowExA(0, "BUTTON", "", style, 0, 0, 20, 8, child->getWidget(), nullptr,
                                 LuWin::getInstance(), nullptr);
    dialog->show();
    dialog->setCurrentFocusedWidget(buttons[0]);
    SendMessageA(dialog->getBaseWidget(), WM_KEYDOWN, VK_TAB, 0);
    EXPECT_EQ(dialog->getCurrentFocusedWidget(), buttons[1]);
    EXPECT_EQ(GetFocus(), buttons[1]);
    SendMessageA(dialog->getWidget(), WM_KEYDOWN, VK_TAB, 0);
    EXPECT_EQ(dialog->getCurrentFocusedWidget(), buttons[0]);
}

TEST_F(LuTopLevelDialogTest, tabWithShift_movesTheFocusTheOtherWay) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    auto* const child = static_cast<LuDialogComponent*>(dialog->getChild(0));
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    HWND buttons[3];
    for (HWND& button : buttons)
        button = CreateWindowExA(0, "BUTTON", "", style, 0, 0, 20, 8, child->getWidget(), nullptr,
                                 LuWin::getInstance(), nullptr);
    dialog->show();
    dialog->setCurrentFocusedWidget(buttons[0]);
    SendMessageA(dialog->getBaseWidget(), WM_KEYDOWN, VK_SHIFT, 0);
    SendMessageA(dialog->getBaseWidget(), WM_KEYDOWN, VK_TAB, 0);
    SendMessageA(dialog->getBaseWidget(), WM_KEYUP, VK_SHIFT, 0);
    const HWND withShift = dialog->getCurrentFocusedWidget();
    SendMessageA(dialog->getBaseWidget(), WM_KEYDOWN, VK_TAB, 0);
    EXPECT_EQ(dialog->getCurrentFocusedWidget(), buttons[0]);
    EXPECT_NE(withShift, buttons[0]);
}

TEST_F(LuTopLevelDialogTest, enable_isThatOfBothWindows) {
    LuTopLevelDialog* const dialog = buildDialog(s_oneChild);
    dialog->enable = false;
    EXPECT_FALSE(IsWindowEnabled(dialog->getBaseWidget()));
    EXPECT_FALSE(IsWindowEnabled(dialog->getWidget()));
}

TEST_F(LuTopLevelDialogTest, marginAndSpacingAtTheEndsOfTheNumbers_areHarmless) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { DialogComponent { } DialogComponent { } }");
    for (const int end : {2147483647, -2147483647 - 1}) {
        dialog->margin = end;
        dialog->rowSpacing = end;
        dialog->updateAfterSceneGraphChange();
    }
    EXPECT_EQ(dialog->getNumChildren(), 2);
}

TEST_F(LuTopLevelDialogTest, emptyDialog_isBuiltAndGrowsWithItsFirstChild) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { windowResizedByChildren TRUE }");
    dialog->addChild(new LuDialogComponent);
    EXPECT_TRUE(IsWindow(static_cast<LuDialogComponent*>(dialog->getChild(0))->getWidget()));
    dialog->removeAllChildren();
    EXPECT_EQ(dialog->getNumChildren(), 0);
}

} // namespace
