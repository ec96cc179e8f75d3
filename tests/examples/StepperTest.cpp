// SPDX-License-Identifier: MIT
#include "examples/custom-control/Stepper.h"

#include "examples/custom-control/StepperAuditor.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"
#include "tests/controls/ControlTest.h"
#include "tests/host/SceneHost.h"

#include <limits>

namespace {

using Lines = std::vector<std::string>;

class StepCounter : public StepperAuditor {
public:
    void stepper(Stepper* stepper) override { m_values.push_back(stepper->value.getValue()); }
    std::vector<int> m_values;
};

/// The class is the program's: the library doesn't start and end it.
class StepperClassTest : public ControlTest {
protected:
    StepperClassTest() { Stepper::initClass(); }
    ~StepperClassTest() override { Stepper::exitClass(); }
};

class StepperTest : public StepperClassTest {
protected:
    StepperTest() {
        m_stepper->label = "Sailors";
        m_stepper->addAuditor(&m_counter);
        m_dialog->width = 300;
        m_dialog->addChild(m_stepper.get());
    }
    void click(HWND button) { SendMessageA(button, BM_CLICK, 0, 0); }
    Lines getValue3D() { return getLines(*getChildAs<LuText3>(*m_stepper, "valueSep", -1)); }

    Held<LuTopLevelDialog> m_dialog;
    Held<Stepper> m_stepper;
    StepCounter m_counter;
};

TEST_F(StepperTest, buttonsOfTheWindow_stepAndTell) {
    buildWindows(*m_stepper);
    click(m_stepper->getPlusWidget());
    click(m_stepper->getPlusWidget());
    click(m_stepper->getMinusWidget());
    EXPECT_EQ(m_counter.m_values, (std::vector<int>{1, 2, 1}));
    EXPECT_EQ(getText(m_stepper->getValueWidget()), "1");
}

TEST_F(StepperTest, buttonsInTheScene_stepAndTell) {
    SceneHost scene(m_dialog.get());
    scene.click(*m_stepper, "plus");
    scene.click(*m_stepper, "plus");
    scene.click(*m_stepper, "minus");
    EXPECT_EQ(m_counter.m_values, (std::vector<int>{1, 2, 1}));
    EXPECT_EQ(getValue3D(), Lines({"1"}));
}

TEST_F(StepperTest, pressOnTheNumberOrTheLabel_doesNothing) {
    SceneHost scene(m_dialog.get());
    scene.click(*m_stepper, "valueSep");
    scene.click(*m_stepper, "labelSep");
    EXPECT_TRUE(m_counter.m_values.empty());
}

TEST_F(StepperTest, stepInOneRendition_showsInTheOther) {
    SceneHost scene(m_dialog.get());
    buildWindows(*m_stepper);
    scene.click(*m_stepper, "plus");
    EXPECT_EQ(getText(m_stepper->getValueWidget()), "1");
    click(m_stepper->getPlusWidget());
    EXPECT_EQ(getValue3D(), Lines({"2"}));
}

TEST_F(StepperTest, valueFromTheProgram_isShownWithoutAnAuditor) {
    buildBoth(*m_stepper);
    m_stepper->value = 7;
    EXPECT_EQ(getText(m_stepper->getValueWidget()), "7");
    EXPECT_EQ(getValue3D(), Lines({"7"}));
    EXPECT_TRUE(m_counter.m_values.empty());
}

TEST_F(StepperTest, atItsEnd_aStepTellsNobody) {
    buildWindows(*m_stepper);
    click(m_stepper->getMinusWidget());
    EXPECT_TRUE(m_counter.m_values.empty());
    m_stepper->maxValue = std::numeric_limits<int>::max();
    m_stepper->value = std::numeric_limits<int>::max();
    m_stepper->step(1);
    EXPECT_TRUE(m_counter.m_values.empty());
    EXPECT_EQ(m_stepper->value.getValue(), std::numeric_limits<int>::max());
}

TEST_F(StepperTest, disabled_takesNoInput) {
    m_stepper->enable = false;
    buildWindows(*m_stepper);
    EXPECT_FALSE(IsWindowEnabled(m_stepper->getPlusWidget()));
    EXPECT_FALSE(IsWindowEnabled(m_stepper->getLabelWidget()));
    m_stepper->enable = true;
    EXPECT_TRUE(IsWindowEnabled(m_stepper->getPlusWidget()));
}

TEST_F(StepperTest, windows_fillTheRoomBesideTheLabel) {
    m_stepper->labelVisibility = false;
    buildWindows(*m_stepper, {200, 40});
    EXPECT_EQ(getPlace(m_stepper->getMinusWidget()), Place(3, 3, 24, 34));
    EXPECT_EQ(getPlace(m_stepper->getPlusWidget()), Place(3 + 194 - 24, 3, 24, 34));
}

TEST_F(StepperTest, windowsDestroyed_leaveNoHandles) {
    buildWindows(*m_stepper);
    const HWND plus = m_stepper->getPlusWidget();
    m_stepper->destroyWidget();
    EXPECT_FALSE(IsWindow(plus));
    EXPECT_EQ(m_stepper->getPlusWidget(), nullptr);
}

TEST_F(StepperClassTest, dialogFile_holdsSteppersWithTheirLooks) {
    const char text[] = "Stepper { value 3 maxValue 5 minus DEF Mine Group { Sphere { } } }";
    LuInput in;
    in.setBuffer(text, sizeof text - 1);
    const Held<LuSeparator> root(LuDB::readAll(&in));
    ASSERT_EQ(root->getNumChildren(), 1);
    ASSERT_TRUE(root->getChild(0)->isOfType(Stepper::getClassTypeId()));
    auto* const stepper = static_cast<Stepper*>(root->getChild(0));
    EXPECT_EQ(stepper->value.getValue(), 3);
    build3D(*stepper);
    EXPECT_EQ(stepper->getPart("minus", false), LuNode::getByName("Mine"));
    EXPECT_NE(stepper->getPart("plus", false), nullptr);
}

} // namespace
