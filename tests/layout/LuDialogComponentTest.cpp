// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/win/LuWin.h"
#include "tests/layout/DialogTest.h"

namespace {

constexpr int UNLIMITED = LuSizes::UNLIMITED;

/// Opens what subclasses see.
class Probe : public LuDialogComponent {
public:
    using LuDialogComponent::m_labelSize;
    using LuDialogComponent::m_mainScale;
    using LuDialogComponent::m_mainTransform;
    using LuDialogComponent::m_mainTranslation;
    using LuDialogComponent::m_material;
    using LuDialogComponent::m_pickStyle;

    void eventNotify(unsigned int event, std::uint64_t value) override { events.emplace_back(event, value); }

    std::vector<std::pair<unsigned, std::uint64_t>> events;
};

class LuDialogComponentTest : public DialogTest {
protected:
    LuDialogComponentTest() {
        m_parent = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 600, 400, nullptr, nullptr,
                                   LuWin::getInstance(), nullptr);
    }
    ~LuDialogComponentTest() override { DestroyWindow(m_parent); }

    LuSizes getUserSizes() const {
        LuSizes user;
        m_probe->getDefaultState(user.size, user.minSize, user.maxSize);
        return user;
    }

    HWND m_parent;
    Held<Probe> m_probe;
};

TEST_F(LuDialogComponentTest, nothingSet_getsTheDefaultSizes) {
    const LuSizes sizes = getSizesOf(m_probe.get());
    EXPECT_EQ(sizes.size, LvVec2i32(200, 28));
    EXPECT_EQ(sizes.minSize, LvVec2i32(25, 25));
    EXPECT_EQ(sizes.maxSize, LvVec2i32(UNLIMITED, UNLIMITED));
}

TEST_F(LuDialogComponentTest, minimumAboveMaximum_theMaximumWins) {
    m_probe->minWidth = 300;
    m_probe->maxWidth = 100;
    EXPECT_EQ(getSizesOf(m_probe.get()).size.x, 100);
}

TEST_F(LuDialogComponentTest, fixedWidth_makesTheSizeTheLimits) {
    m_probe->fixedWidth = true;
    const LuSizes sizes = getSizesOf(m_probe.get());
    EXPECT_EQ(sizes.size.x, 200);
    EXPECT_EQ(sizes.minSize.x, 200);
    EXPECT_EQ(sizes.maxSize.x, 200);
}

TEST_F(LuDialogComponentTest, askedHeight_isTakenAndZeroAsksForNothing) {
    build(m_probe.get(), m_parent, 1, {0, 40});
    EXPECT_EQ(m_probe->width.getValue(), 200);
    EXPECT_EQ(m_probe->height.getValue(), 40);
    EXPECT_EQ(getExtent(m_probe->getWidget()), LvVec2i32(200, 40));
}

TEST_F(LuDialogComponentTest, askedHeightOutsideTheLimits_isLimited) {
    m_probe->maxHeight = 35;
    build(m_probe.get(), m_parent, 1, {0, 40});
    EXPECT_EQ(m_probe->height.getValue(), 35);
    build(m_probe.get(), m_parent, 1, {0, 4});
    EXPECT_EQ(m_probe->height.getValue(), 25);
}

TEST_F(LuDialogComponentTest, componentWithoutParent_hasALabelColumnOfItsOwn) {
    m_probe->label = LvString("Name");
    build(m_probe.get(), m_parent, 1);
    EXPECT_EQ(m_probe->m_labelSize, LuPanelix::getLabelPixelSize("Name", nullptr));
    EXPECT_GT(m_probe->m_labelSize.x, 3);
}

TEST_F(LuDialogComponentTest, computedSizes_areNotWritten) {
    m_probe->minHeight = 20;
    build(m_probe.get(), m_parent, 1);
    const std::string text = write(m_probe.get());
    EXPECT_NE(text.find("minHeight 20"), std::string::npos);
    for (const char* name : {"width", "Width", " height", "maxHeight"})
        EXPECT_EQ(text.find(name), std::string::npos) << text;
}

TEST_F(LuDialogComponentTest, widthOfTheUser_isWritten) {
    m_probe->width = 120;
    build(m_probe.get(), m_parent, 1, {150, 0});
    EXPECT_NE(write(m_probe.get()).find("width 150"), std::string::npos);
}

TEST_F(LuDialogComponentTest, limitOfTheUserOnAFixedAxis_isNotWritten) {
    m_probe->fixedWidth = true;
    m_probe->minWidth = 60;
    build(m_probe.get(), m_parent, 1);
    EXPECT_EQ(write(m_probe.get()).find("minWidth"), std::string::npos);
}

TEST_F(LuDialogComponentTest, widthSetAfterTheBuild_waitsForTheNextBuild) {
    build(m_probe.get(), m_parent, 1, {}, {7, 9});
    m_probe->width = 90;
    EXPECT_EQ(getExtent(m_probe->getWidget()).x, 200);
    EXPECT_EQ(getCorner(m_probe->getWidget()), LvVec2i32(7, 9));
    build(m_probe.get(), m_parent, 1, {}, {7, 9});
    EXPECT_EQ(getExtent(m_probe->getWidget()).x, 90);
}

TEST_F(LuDialogComponentTest, edgeStyle_setsTheInsetAndNeverTheRoom) {
    m_probe->labelVisibility = false;
    build(m_probe.get(), m_parent, 1);
    LvVec2i32 size, position;
    for (const auto& [style, inset] : {std::pair{0, 3}, {1, 2}, {2, 0}}) {
        m_probe->edgeStyle = style;
        m_probe->get2DComponentSize(size, position);
        EXPECT_EQ(size, LvVec2i32(194, 22)) << style;
        EXPECT_EQ(position, LvVec2i32(inset, inset)) << style;
    }
}

TEST_F(LuDialogComponentTest, invisibleLabel_takesNoRoom) {
    m_probe->label = LvString("Name");
    m_probe->labelVisibility = false;
    build(m_probe.get(), m_parent, 1);
    LvVec2i32 size, position;
    m_probe->get2DComponentSize(size, position);
    EXPECT_EQ(size.x, 194);
    EXPECT_EQ(position.x, 3);
    m_probe->get3DComponentSize(size, position);
    EXPECT_EQ(size.x, 194);
    EXPECT_EQ(position, LvVec2i32(0, 0));
}

TEST_F(LuDialogComponentTest, visibleLabel_takesItsColumn) {
    LvVec2i32 column(50, 10), size, position;
    m_probe->setLabelSize(column);
    m_probe->width = 200;
    m_probe->height = 28;
    m_probe->get2DComponentSize(size, position);
    EXPECT_EQ(size, LvVec2i32(142, 22));
    EXPECT_EQ(position, LvVec2i32(55, 3));
    m_probe->get3DComponentSize(size, position);
    EXPECT_EQ(size, LvVec2i32(142, 22));
    EXPECT_EQ(position, LvVec2i32(26, 0));
}

TEST_F(LuDialogComponentTest, sizesAtTheEndsOfTheNumbers_saturate) {
    LvVec2i32 column(UNLIMITED, UNLIMITED), size, position;
    m_probe->setLabelSize(column);
    m_probe->width = std::numeric_limits<int>::min();
    m_probe->height = std::numeric_limits<int>::min();
    m_probe->get2DComponentSize(size, position);
    EXPECT_EQ(size, LvVec2i32(std::numeric_limits<int>::min(), std::numeric_limits<int>::min()));
    EXPECT_EQ(position.x, UNLIMITED);
    m_probe->get3DComponentSize(size, position);
    EXPECT_EQ(size.x, std::numeric_limits<int>::min());
}

TEST_F(LuDialogComponentTest, carrierWindow_hasTheStylesOfItsEdge) {
    m_probe->edgeStyle = LuDialogComponent::SHADOW_IN;
    build(m_probe.get(), m_parent, 1);
    const HWND window = m_probe->getWidget();
    EXPECT_EQ(GetWindowLongPtrA(window, GWL_STYLE) & 0xffffffff, 0x56000000);
    EXPECT_EQ(GetWindowLongPtrA(window, GWL_EXSTYLE) & 0x3ffff, 0x30000);
    m_probe->edgeStyle = LuDialogComponent::SHADOW_OUT;
    EXPECT_EQ(GetWindowLongPtrA(window, GWL_EXSTYLE) & 0x30001, 0x10001);
    m_probe->edgeStyle = LuDialogComponent::NONE;
    EXPECT_EQ(GetWindowLongPtrA(window, GWL_EXSTYLE) & 0x30001, 0x10000);
}

TEST_F(LuDialogComponentTest, messagesOfTheCarrier_becomeEvents) {
    build(m_probe.get(), m_parent, 1);
    const HWND window = m_probe->getWidget();
    SendMessageA(window, WM_COMMAND, MAKEWPARAM(4, 17), 99);
    SendMessageA(window, WM_NOTIFY, 0, 5);
    SendMessageA(window, WM_HSCROLL, SB_ENDSCROLL, 0);
    SendMessageA(window, WM_VSCROLL, SB_ENDSCROLL, 0);
    SendMessageA(window, WM_DRAWITEM, 0, 0);
    const std::vector<std::pair<unsigned, std::uint64_t>> expected{
        {17, 99}, {WM_NOTIFY, 5}, {WM_HSCROLL, SB_ENDSCROLL}};
    EXPECT_EQ(m_probe->events, expected);
}

TEST_F(LuDialogComponentTest, enable_reachesTheCarrier) {
    build(m_probe.get(), m_parent, 1);
    m_probe->enable = false;
    EXPECT_FALSE(IsWindowEnabled(m_probe->getWidget()));
    m_probe->changeWidgetEnable(1);
    EXPECT_FALSE(IsWindowEnabled(m_probe->getWidget()));
    m_probe->enable = true;
    EXPECT_TRUE(IsWindowEnabled(m_probe->getWidget()));
}

TEST_F(LuDialogComponentTest, destroyWidget_endsTheWindowAndAnotherBuildMakesOne) {
    build(m_probe.get(), m_parent, 1);
    const HWND window = m_probe->getWidget();
    m_probe->destroyWidget();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(m_probe->getWidget(), nullptr);
    EXPECT_FALSE(m_probe->isBuilt2D());
    build(m_probe.get(), m_parent, 1);
    EXPECT_TRUE(IsWindow(m_probe->getWidget()));
}

TEST_F(LuDialogComponentTest, parentThatIsNoWindow_isReportedAndNotFatal) {
    expectMessageContaining("LuDialogComponent Error", "CreateWindow failed");
    build(m_probe.get(), nullptr, 1);
    EXPECT_EQ(m_probe->getWidget(), nullptr);
}

TEST_F(LuDialogComponentTest, classThatCantBeRegistered_isReportedAndTheNextBuildTriesAgain) {
    LuWin::unregisterClasses();
    LuWin::setRegisterClassHandler([](const WNDCLASSA&, void*) -> ATOM { return 0; }, nullptr);
    expectMessage("LuDialogComponent Error", "RegisterClass failed");
    expectMessage("LuDialogComponent Error", "CreateWindow failed");
    build(m_probe.get(), m_parent, 1);
    EXPECT_EQ(m_probe->getWidget(), nullptr);
    LuWin::setRegisterClassHandler(nullptr, nullptr);
    build(m_probe.get(), m_parent, 1);
    EXPECT_TRUE(IsWindow(m_probe->getWidget()));
}

TEST_F(LuDialogComponentTest, resetSize_forgetsComputedSizes) {
    build(m_probe.get(), m_parent, 1);
    m_probe->resetSize();
    EXPECT_EQ(m_probe->width.getValue(), 0);
    EXPECT_EQ(m_probe->height.getValue(), 0);
    EXPECT_EQ(m_probe->minWidth.getValue(), 25);
}

TEST_F(LuDialogComponentTest, resetSize_forgetsTheWidthOfTheUserToo) {
    m_probe->width = 120;
    build(m_probe.get(), m_parent, 1);
    m_probe->resetSize();
    EXPECT_EQ(getUserSizes().size.x, 0);
    build(m_probe.get(), m_parent, 1);
    EXPECT_EQ(m_probe->width.getValue(), 200);
    EXPECT_EQ(write(m_probe.get()).find("width"), std::string::npos);
}

TEST_F(LuDialogComponentTest, sizesThatTheLayoutWrites_areNotTakenForTheUsers) {
    m_probe->minWidth = 30;
    build(m_probe.get(), m_parent, 1);
    build(m_probe.get(), m_parent, 1, {150, 40});
    EXPECT_EQ(m_probe->width.getValue(), 150);
    EXPECT_EQ(getUserSizes().size, LvVec2i32(0, 0));
    EXPECT_EQ(getUserSizes().minSize, LvVec2i32(30, 0));
    EXPECT_EQ(getUserSizes().maxSize, LvVec2i32(0, 0));
}

TEST_F(LuDialogComponentTest, sizesSetAfterTheBuild_areTheUsers) {
    build(m_probe.get(), m_parent, 1);
    m_probe->width = 90;
    m_probe->height = 30;
    EXPECT_EQ(getUserSizes().size, LvVec2i32(90, 30));
    m_probe->maxHeight = 77;
    EXPECT_EQ(getUserSizes().minSize, LvVec2i32(25, 25));
    EXPECT_EQ(getUserSizes().maxSize, LvVec2i32(UNLIMITED, 77));
}

TEST_F(LuDialogComponentTest, unlimitedMaximumOfTheUser_isNotWritten) {
    m_probe->maxWidth = UNLIMITED;
    build(m_probe.get(), m_parent, 1);
    EXPECT_TRUE(m_probe->maxWidth.isDefault());
}

TEST_F(LuDialogComponentTest, scrollBarsOfTheCarrier_moveWhatIsInside) {
    build(m_probe.get(), m_parent, 1, {100, 100});
    ShowWindow(m_parent, SW_SHOW);
    const HWND carrier = m_probe->getWidget();
    const HWND content = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, carrier, nullptr,
                                         LuWin::getInstance(), nullptr);
    for (const int bar : {SB_HORZ, SB_VERT}) {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = 100;
        info.nPage = 11;
        info.nPos = 50;
        SetScrollInfo(carrier, bar, &info, FALSE);
        int moved = 0;
        for (const auto& [code, step] : {std::pair{SB_LINEUP, -1},
                                         {SB_LINEDOWN, 1},
                                         {SB_PAGEUP, -10},
                                         {SB_PAGEDOWN, 10},
                                         {SB_THUMBTRACK, 0},
                                         {SB_ENDSCROLL, 0},
                                         {SB_TOP, 0}}) {
            SendMessageA(carrier, bar == SB_HORZ ? WM_HSCROLL : WM_VSCROLL, static_cast<WPARAM>(code), 0);
            moved += step;
            EXPECT_EQ(GetScrollPos(carrier, bar), 50 + moved) << bar << " " << code;
            const LvVec2i32 corner = getCorner(content);
            EXPECT_EQ(bar == SB_HORZ ? corner.x : corner.y, -moved) << bar << " " << code;
        }
    }
}

TEST_F(LuDialogComponentTest, carrierWindow_isOfAClassOfItsOwn) {
    build(m_probe.get(), m_parent, 1);
    std::string name;
    WNDCLASSA info{};
    ASSERT_TRUE(LuWin::getClassInfo(LuWin::getInstance(), "LuDialogComponent", name, info));
    EXPECT_EQ(info.style, 0x83u);
    EXPECT_EQ(info.cbClsExtra, 0);
    EXPECT_EQ(info.cbWndExtra, 8);
    EXPECT_EQ(info.hIcon, nullptr);
    EXPECT_NE(info.hCursor, nullptr);
    EXPECT_EQ(LuWin::getWindowText(m_probe->getWidget()), "LuDialogComponent");
}

TEST_F(LuDialogComponentTest, geometry_hasItsNodesInOrder) {
    build(m_probe.get(), nullptr, 0);
    auto* const geometry = static_cast<LuGroup*>(m_probe->getPart("geomSwitch", false));
    ASSERT_EQ(geometry->getNumChildren(), 5);
    EXPECT_EQ(geometry->getChild(0), m_probe->m_material);
    EXPECT_EQ(geometry->getChild(1), m_probe->m_pickStyle);
    EXPECT_EQ(geometry->getChild(2), m_probe->m_mainTranslation);
    EXPECT_EQ(geometry->getChild(3), m_probe->getPart("mainCptSeparator", false));
    EXPECT_EQ(geometry->getChild(4), m_probe->m_mainTransform);
    auto* const frame = static_cast<LuGroup*>(geometry->getChild(3));
    EXPECT_EQ(frame->getChild(0), m_probe->m_mainScale);
}

TEST_F(LuDialogComponentTest, geometryOfAChild_standsRelativeToTheCornerOfItsGroup) {
    const Held<LuRowDialog> row;
    row->addChild(m_probe.get());
    row->margin = 5;
    build(row.get(), nullptr, 0, {}, {10, 20});
    EXPECT_EQ(m_probe->m_mainTranslation->translation.getValue(), LvVec3f(10 + 5 + 103, -20 - 5 - 17, 0));
    EXPECT_EQ(m_probe->m_mainScale->scaleFactor.getValue(), LvVec3f(206, 34, 1));
    row->removeChild(m_probe.get());
}

TEST_F(LuDialogComponentTest, geometryInAGroupThatIsNotTraversed_standsAtTheOrigin) {
    const Held<LuRowDialog> row;
    row->addChild(m_probe.get());
    build(row.get(), nullptr, 0, {}, {10, 20});
    row->setCanBeTraversed(0);
    build(m_probe.get(), nullptr, 0);
    EXPECT_EQ(m_probe->m_mainTranslation->translation.getValue(), LvVec3f(103, -17, 0));
    row->removeChild(m_probe.get());
}

TEST_F(LuDialogComponentTest, geometry_standsWithItsCornerAtThePosition) {
    build(m_probe.get(), nullptr, 0, {100, 40}, {10, 20});
    EXPECT_EQ(m_probe->m_mainTranslation->translation.getValue(), LvVec3f(60, -40, 0));
    EXPECT_EQ(m_probe->m_mainScale->scaleFactor.getValue(), LvVec3f(100, 40, 1));
}

TEST_F(LuDialogComponentTest, edgeStyle_switchesTheGeometry) {
    build(m_probe.get(), nullptr, 0);
    m_probe->setBuilt3D(1);
    m_probe->edgeStyle = LuDialogComponent::SHADOW_OUT;
    auto* const edges = static_cast<LuSwitch*>(m_probe->getPart("edgeStyleSwitch", false));
    EXPECT_EQ(edges->whichChild.getValue(), 2);
}

TEST_F(LuDialogComponentTest, addTranslation_standsFirstOrGivesItsValueToTheParentPosition) {
    auto* const first = new LuTranslation;
    m_probe->addTranslation(first);
    auto* const geometry = static_cast<LuGroup*>(m_probe->getPart("geomSwitch", false));
    EXPECT_EQ(geometry->getChild(0), first);
    first->setName("parentPositionTranslation");
    Held<LuTranslation> second;
    second->translation = LvVec3f(1, 2, 3);
    m_probe->addTranslation(second.get());
    EXPECT_EQ(geometry->getChild(0), first);
    EXPECT_EQ(first->translation.getValue(), LvVec3f(1, 2, 3));
}

} // namespace
