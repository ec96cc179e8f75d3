// SPDX-License-Identifier: MIT
#include "auditors/LuAuditor.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/core/OpenPanelix.h"
#include "tests/host/ComponentTest.h"

#include <array>

namespace {

using PanelixTest = ComponentTest;

TEST_F(PanelixTest, ClassesAreBuiltIn) {
    EXPECT_TRUE(Held<LuPanelix>()->getIsBuiltIn());
    EXPECT_TRUE(Held<OpenPanelix>()->getIsBuiltIn());
}

TEST(ModuleTest, TwoStartsAndOneEndLeaveTheClassesRegistered) {
    using Counts = std::array<int, 3>;
    const auto getCounts = [] {
        return Counts{LuDB::getInitCount(), LuNodeKit::getInitCount(), LuInteraction::getInitCount()};
    };
    const auto [toolkit, kits, draggers] = getCounts();
    LuPanelix::init();
    LuPanelix::init();
    EXPECT_EQ(getCounts(), (Counts{toolkit + 2, kits + 2, draggers + 2}));
    LuPanelix::finish();
    EXPECT_EQ(getCounts(), (Counts{toolkit + 1, kits + 1, draggers + 1}));
    EXPECT_TRUE(LuPanelix::isInitialized());
    EXPECT_FALSE(LuType::fromName("Panelix").isBad());
    LuPanelix::finish();
    EXPECT_FALSE(LuPanelix::isInitialized());
    EXPECT_TRUE(LuType::fromName("Panelix").isBad());
}

TEST(ModuleTest, EndWithoutAStartDoesNothing) {
    const int toolkitStarts = LuDB::getInitCount();
    LuPanelix::finish();
    EXPECT_EQ(LuDB::getInitCount(), toolkitStarts);
    EXPECT_FALSE(LuPanelix::isInitialized());
}

TEST(ModuleTest, ClassesRegisterAgainAfterTheEnd) {
    LuPanelix::init();
    LuPanelix::finish();
    LuPanelix::init();
    const Held<OpenPanelix> component;
    EXPECT_EQ(component->getNumFields(), 7);
    EXPECT_GE(component->getNodekitCatalog()->getPartNumber("geomSwitch"), 0);
    LuPanelix::finish();
}

TEST(ModuleTest, ProductHasANameAndAVersion) {
    EXPECT_STREQ(LuPanelix::getProductName(), "Panelix");
    EXPECT_STRNE(LuPanelix::getVersion(), "");
}

TEST_F(PanelixTest, FieldsHaveTheirDefaultsAndOrder) {
    const Held<OpenPanelix> component;
    EXPECT_TRUE(component->enable.getValue());
    EXPECT_EQ(component->label.getValue(), "");
    EXPECT_EQ(component->auditorID.getValue(), "");
    EXPECT_EQ(component->labelAlignment.getValue(), LuPanelix::RIGHT);
    const LuFieldData& data = *component->getFieldData();
    const int first = data.getIndex("enable");
    EXPECT_EQ(data.getFieldName(first + 1), LvName("label"));
    EXPECT_EQ(data.getFieldName(first + 2), LvName("auditorID"));
    EXPECT_EQ(data.getFieldName(first + 3), LvName("labelAlignment"));
}

TEST_F(PanelixTest, FieldChangeReachesTheWindowsFirst) {
    const Held<OpenPanelix> component;
    component->build(0);
    EXPECT_EQ(component->isBuilt2D(), 0);
    component->setBuilt3D(1);
    component->build(1);
    component->enable.setValue(false);
    EXPECT_EQ(component->calls, "changeEnable change3DEnable ");
}

TEST_F(PanelixTest, FieldChangeBeforeTheBuildReachesNothing) {
    const Held<OpenPanelix> component;
    component->enable.setValue(false);
    EXPECT_EQ(component->calls, "");
}

TEST_F(PanelixTest, ComponentThatIsNotTraversedGetsNo3DUpdates) {
    const Held<OpenPanelix> component;
    component->build(0);
    component->setBuilt3D(1);
    component->setCanBeTraversed(0);
    component->enable.setValue(false);
    EXPECT_EQ(component->calls, "");
}

TEST_F(PanelixTest, RepeatedBuildKeepsOneSensor) {
    const Held<OpenPanelix> component;
    component->build(1);
    component->build(1);
    component->label.setValue("x");
    EXPECT_EQ(component->calls, "changeLabel ");
}

TEST_F(PanelixTest, EnableIn3DPicksTheBoxAndDisableNothing) {
    const Held<OpenPanelix> component;
    component->build(0);
    component->change3DEnable();
    EXPECT_EQ(component->m_pickStyle->style.getValue(), LuPickStyle::BOUNDING_BOX);
    EXPECT_EQ(component->m_material->emissiveColor[0], LvColor(0, 0, 0));
    component->enable.setValue(false);
    component->change3DEnable();
    EXPECT_EQ(component->m_pickStyle->style.getValue(), LuPickStyle::UNPICKABLE);
    EXPECT_EQ(component->m_material->emissiveColor[0], LvColor(0.5F, 0.5F, 0.5F));
}

TEST_F(PanelixTest, EnableByTheParentPicksTheShape) {
    const Held<OpenPanelix> component;
    component->build(0);
    component->change3DWidgetEnable(1);
    EXPECT_EQ(component->m_pickStyle->style.getValue(), LuPickStyle::SHAPE);
    component->change3DWidgetEnable(0);
    EXPECT_EQ(component->m_pickStyle->style.getValue(), LuPickStyle::UNPICKABLE);
    component->enable.setValue(false);
    component->change3DWidgetEnable(1);
    EXPECT_EQ(component->m_pickStyle->style.getValue(), LuPickStyle::UNPICKABLE);
}

TEST_F(PanelixTest, ActiveComponentIsNotToldToYieldToItself) {
    const Held<OpenPanelix> component;
    LuPanelix::set3DCurrentActive(component.get());
    LuPanelix::set3DCurrentActive(component.get());
    EXPECT_EQ(component->calls, "");
    const Held<OpenPanelix> other;
    LuPanelix::set3DCurrentActive(other.get());
    EXPECT_EQ(component->calls, "set3DInactive ");
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), other.get());
}

TEST_F(PanelixTest, EndOfTheActiveComponentLeavesNone) {
    {
        const Held<OpenPanelix> component;
        LuPanelix::set3DCurrentActive(component.get());
    }
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

/// Ends another component, or itself, when it yields.
class EndingPanelix : public OpenPanelix {
public:
    void set3DInactive() override {
        toEnd->unref();
        OpenPanelix::set3DInactive();
    }
    LuPanelix* toEnd = this;
};

TEST_F(PanelixTest, ComponentThatEndsTheNextWhileItYieldsLeavesNoneActive) {
    const Held<EndingPanelix> before;
    auto* const next = new OpenPanelix;
    next->ref();
    before->toEnd = next;
    LuPanelix::set3DCurrentActive(before.get());
    LuPanelix::set3DCurrentActive(next);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

TEST_F(PanelixTest, ComponentMayEndWhileItYields) {
    auto* const before = new EndingPanelix;
    before->ref();
    const Held<OpenPanelix> next;
    LuPanelix::set3DCurrentActive(before);
    LuPanelix::set3DCurrentActive(next.get());
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), next.get());
}

class SilentAuditor : public LuAuditor {};

TEST_F(PanelixTest, AuditorAddedTwiceStandsInTheListOnce) {
    const Held<OpenPanelix> component;
    SilentAuditor auditor;
    component->addAuditor(&auditor);
    component->addAuditor(&auditor);
    EXPECT_EQ(component->getAuditorListLength(), 1);
    component->removeAuditor(&auditor);
    component->removeAuditor(&auditor);
    EXPECT_EQ(component->getAuditorListLength(), 0);
}

TEST_F(PanelixTest, RemovingAnAuditorBeforeAnyWasAddedDoesNothing) {
    const Held<OpenPanelix> component;
    SilentAuditor auditor;
    component->removeAuditor(&auditor);
    EXPECT_EQ(component->getAuditorListLength(), 0);
}

TEST_F(PanelixTest, AuditorBeyondTheListIsNullAndGrowsIt) {
    const Held<OpenPanelix> component;
    EXPECT_EQ(component->getAuditor(2), nullptr);
    EXPECT_EQ(component->getAuditorListLength(), 3);
}

class ParentTest : public ComponentTest {
protected:
    ParentTest() {
        control->setParent(group.get());
        group->setParent(outer.get());
        group->isGroup = true;
    }
    Held<OpenPanelix> outer, group, control;
};

TEST_F(ParentTest, NoTopLevelDialogGivesNone) {
    outer->isGroup = true;
    EXPECT_EQ(control->getFirstTopParent(1, 0), nullptr);
    EXPECT_EQ(control->getFirstTopParent(0, 1), outer.get());
}

TEST_F(ParentTest, TopmostThatIsNoGroupGivesNone) { EXPECT_EQ(control->getFirstTopParent(0, 1), nullptr); }

TEST_F(ParentTest, TopLevelDialogIsFound) {
    outer->isTopLevel = true;
    EXPECT_EQ(control->getFirstTopParent(1, 0), outer.get());
    EXPECT_EQ(control->getFirstTopParent(0, 1), outer.get());
}

TEST_F(ParentTest, ParentThatIsNotTraversedEndsTheWalk) {
    outer->isTopLevel = true;
    outer->setCanBeTraversed(0);
    EXPECT_EQ(control->getFirstTopParent(0, 1), group.get());
    EXPECT_EQ(control->getFirstTopParent(0, 0), nullptr);
    EXPECT_EQ(control->getFirstTopParent(1, 0), outer.get());
}

TEST_F(PanelixTest, EndOfTheParentLeavesItsChildrenWithoutOne) {
    const Held<OpenPanelix> first, second, third;
    const Held<OpenPanelix> other;
    {
        const Held<OpenPanelix> parent;
        for (const Held<OpenPanelix>* child : {&first, &second, &third})
            (*child)->setParent(parent.get());
        second->setParent(other.get());
        EXPECT_EQ(first->getParent(), parent.get());
    }
    EXPECT_EQ(first->getParent(), nullptr);
    EXPECT_EQ(second->getParent(), other.get());
    EXPECT_EQ(third->getParent(), nullptr);
}

TEST_F(PanelixTest, ChildMayEndBeforeItsParent) {
    const Held<OpenPanelix> parent, stays;
    {
        const Held<OpenPanelix> first, last;
        first->setParent(parent.get());
        stays->setParent(parent.get());
        last->setParent(parent.get());
    }
    EXPECT_EQ(stays->getParent(), parent.get());
    stays->setParent(nullptr);
    EXPECT_EQ(stays->getParent(), nullptr);
}

class PlacementTest : public ComponentTest {
protected:
    PlacementTest() {
        component->build(0);
        auto* translation = new LuTranslation;
        translation->translation.setValue({1, 2, 3});
        auto* scale = new LuScale;
        scale->scaleFactor.setValue({10, 20, 30});
        auto* after = new LuTranslation;
        after->translation.setValue({0, 0, 0.5F});
        separator->addChild(translation);
        separator->addChild(scale);
        separator->addChild(new LuCube);
        separator->addChild(after);
    }
    Held<OpenPanelix> component;
    Held<LuSeparator> separator;
};

TEST_F(PlacementTest, UndoneTransformKeepsPlaceAndDropsScale) {
    const Held<LuTransform> transform;
    component->undoTransformMatrix(separator.get(), transform.get());
    EXPECT_EQ(transform->translation.getValue(), LvVec3f(1, 2, 18));
    EXPECT_EQ(transform->scaleFactor.getValue(), LvVec3f(1, 1, 1));
}

TEST_F(PlacementTest, DepthIsThePlaceInZ) { EXPECT_EQ(component->compute3DDepth(separator.get()), 18); }

TEST_F(PlacementTest, ParentOffsetStandsFirstInTheGeometry) {
    LvVec3f offset(7, 8, 9);
    component->set3DParentTranslation(offset);
    component->apply3DParentTranslation();
    auto* geometry = static_cast<LuGroup*>(component->getPart("geomSeparator", false));
    ASSERT_NE(geometry, nullptr);
    auto* node = static_cast<LuTranslation*>(geometry->getChild(0));
    EXPECT_EQ(node->translation.getValue(), LvVec3f(7, 8, 9));
    LvVec3f moved(1, 1, 1);
    component->set3DParentTranslation(moved);
    EXPECT_EQ(node->translation.getValue(), LvVec3f(1, 1, 1));
    EXPECT_EQ(component->get3DParentTranslation(), LvVec3f(1, 1, 1));
}

TEST_F(PlacementTest, ParentOffsetMayBeSetWhenItsGeometryHasGone) {
    component->apply3DParentTranslation();
    component->setPart("geomSeparator", nullptr);
    LvVec3f moved(1, 1, 1);
    component->set3DParentTranslation(moved);
    EXPECT_EQ(component->get3DParentTranslation(), LvVec3f(1, 1, 1));
}

TEST_F(PlacementTest, ShowBeforeThereIsGeometryDoesNothing) {
    component->show3D(1);
    EXPECT_EQ(component->getPart("geomSwitch", false), nullptr);
    component->getPart("geomSwitch", true);
    component->show3D(1);
    auto* geometry = static_cast<LuSwitch*>(component->getPart("geomSwitch", false));
    EXPECT_EQ(geometry->whichChild.getValue(), LuSwitch::SHOW_ALL);
    component->show3D(0);
    EXPECT_EQ(geometry->whichChild.getValue(), LuSwitch::SHOW_NONE);
}

} // namespace
