// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/sensors/LuSensor.h"
#include "tests/host/TestHost.h"
#include "tests/host/ToolkitTest.h"

namespace {

using FieldTest = ToolkitTest;

/// A node that holds another in a field, and tells of its end.
class OwnerNode : public LuNode {
public:
    OwnerNode() { node.setContainer(this); }
    LuType getTypeId() const override { return getClassTypeId(); }

    LuSFNode node;
    bool* isEnded = nullptr;

protected:
    ~OwnerNode() override {
        if (isEnded)
            *isEnded = true;
    }
};

void countCall(void* data, LuSensor*) { ++*static_cast<int*>(data); }

TEST_F(FieldTest, FreshFieldIsDefaultAndSettingClearsTheFlag) {
    const Held<LuTranslation> node;
    EXPECT_TRUE(node->translation.isDefault());
    node->translation.setValue(LvVec3f());
    EXPECT_FALSE(node->translation.isDefault());
    node->translation.setDefault(true);
    EXPECT_TRUE(node->translation.isDefault());
}

TEST_F(FieldTest, FieldsAreFoundByName) {
    const Held<LuScale> node;
    EXPECT_EQ(node->getField(LvName("scaleFactor")), &node->scaleFactor);
    EXPECT_EQ(node->getField(LvName("scale")), nullptr);
    EXPECT_EQ(node->getFieldName(&node->scaleFactor), LvName("scaleFactor"));
}

TEST_F(FieldTest, NearestFieldNameIsFound) {
    const Held<LuTransform> node;
    EXPECT_EQ(node->getFieldData()->findNearestName("translaton"), LvName("translation"));
    EXPECT_TRUE(node->getFieldData()->findNearestName("whatever").isEmpty());
}

TEST_F(FieldTest, InstancesShareTheTableOfTheirClass) {
    const Held<LuTransform> first;
    const Held<LuTransform> second;
    EXPECT_EQ(first->getFieldData(), second->getFieldData());
    EXPECT_EQ(first->getNumFields(), 5);
    EXPECT_NE(first->getField(0), second->getField(0));
}

TEST_F(FieldTest, EnumKnowsItsNames) {
    const Held<LuPickStyle> node;
    int value = -1;
    ASSERT_TRUE(node->style.getEnums()->findValue("UNPICKABLE", value));
    EXPECT_EQ(value, 2);
    LvName name;
    ASSERT_TRUE(node->style.getEnums()->findName(1, name));
    EXPECT_EQ(name, LvName("BOUNDING_BOX"));
    EXPECT_FALSE(node->style.getEnums()->findName(7, name));
}

TEST_F(FieldTest, ConnectedFieldTakesTheValueNowAndLater) {
    const Held<LuTranslation> master;
    const Held<LuTranslation> slave;
    master->translation.setValue({1, 2, 3});
    ASSERT_TRUE(slave->translation.connectFrom(&master->translation));
    EXPECT_EQ(slave->translation.getValue(), LvVec3f(1, 2, 3));
    master->translation.setValue({4, 5, 6});
    EXPECT_EQ(slave->translation.getValue(), LvVec3f(4, 5, 6));
}

TEST_F(FieldTest, ConnectionIsOneWay) {
    const Held<LuTranslation> master;
    const Held<LuTranslation> slave;
    slave->translation.connectFrom(&master->translation);
    slave->translation.setValue({7, 7, 7});
    EXPECT_EQ(master->translation.getValue(), LvVec3f());
}

TEST_F(FieldTest, ValueThatASensorMustNotHearIsToldToAllOthers) {
    const Held<LuTranslation> node;
    const Held<LuTranslation> slave;
    int deafCalls = 0;
    int calls = 0;
    int nodeCalls = 0;
    LuFieldSensor deaf(countCall, &deafCalls);
    LuFieldSensor other(countCall, &calls);
    LuNodeSensor above(countCall, &nodeCalls);
    for (LuFieldSensor* sensor : {&deaf, &other}) {
        sensor->setPriority(0);
        sensor->attach(&node->translation);
    }
    above.setPriority(0);
    above.attach(node.get());
    slave->translation.connectFrom(&node->translation);
    node->translation.setDefault(true);
    node->translation.setValueUnheardBy(&deaf, LvVec3f(1, 2, 3));
    EXPECT_EQ(deafCalls, 0);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(nodeCalls, 1);
    EXPECT_EQ(slave->translation.getValue(), LvVec3f(1, 2, 3));
    EXPECT_FALSE(node->translation.isDefault());
}

TEST_F(FieldTest, ValueThatTheOnlySensorMustNotHearIsToldToTheNode) {
    const Held<LuTranslation> node;
    int deafCalls = 0;
    int nodeCalls = 0;
    LuFieldSensor deaf(countCall, &deafCalls);
    LuNodeSensor above(countCall, &nodeCalls);
    deaf.setPriority(0);
    deaf.attach(&node->translation);
    above.setPriority(0);
    above.attach(node.get());
    node->translation.setValueUnheardBy(&deaf, LvVec3f(1, 2, 3));
    EXPECT_EQ(deafCalls, 0);
    EXPECT_EQ(nodeCalls, 1);
    node->translation.setValueUnheardBy(nullptr, LvVec3f(4, 5, 6));
    EXPECT_EQ(deafCalls, 1);
    EXPECT_EQ(nodeCalls, 2);
}

TEST_F(FieldTest, DisconnectedFieldKeepsItsValue) {
    const Held<LuTranslation> master;
    const Held<LuTranslation> slave;
    slave->translation.connectFrom(&master->translation);
    slave->translation.disconnect();
    EXPECT_FALSE(slave->translation.isConnected());
    master->translation.setValue({1, 1, 1});
    EXPECT_EQ(slave->translation.getValue(), LvVec3f());
}

TEST_F(FieldTest, CircleOfConnectionsEnds) {
    const Held<LuTranslation> first;
    const Held<LuTranslation> second;
    first->translation.connectFrom(&second->translation);
    second->translation.connectFrom(&first->translation);
    first->translation.setValue({1, 2, 3});
    EXPECT_EQ(second->translation.getValue(), LvVec3f(1, 2, 3));
    second->translation.setValue({3, 2, 1});
    EXPECT_EQ(first->translation.getValue(), LvVec3f(3, 2, 1));
}

TEST_F(FieldTest, FieldsOfDifferentKindsDoNotConnect) {
    expectMessage("LuField::connectFrom",
                  "A field of type SFFloat can't be connected from one of type SFVec3f.");
    const Held<LuTranslation> master;
    const Held<LuFont> slave;
    EXPECT_FALSE(slave->size.connectFrom(&master->translation));
}

TEST_F(FieldTest, MasterMayEndFirst) {
    const Held<LuTranslation> slave;
    {
        const Held<LuTranslation> master;
        slave->translation.connectFrom(&master->translation);
    }
    EXPECT_FALSE(slave->translation.isConnected());
}

TEST_F(FieldTest, MultipleValuesGrowOnDemand) {
    const Held<LuCoordinate3> node;
    node->point.set1Value(2, {1, 1, 1});
    EXPECT_EQ(node->point.getNum(), 3);
    EXPECT_EQ(node->point[0], LvVec3f());
    node->point.insertSpace(1, 2);
    EXPECT_EQ(node->point.getNum(), 5);
    EXPECT_EQ(node->point[4], LvVec3f(1, 1, 1));
    node->point.deleteValues(0, 4);
    EXPECT_EQ(node->point.getNum(), 1);
    node->point.set1Value(-1, {9, 9, 9});
    EXPECT_EQ(node->point.getNum(), 1);
}

TEST_F(FieldTest, ValueOfTheListItselfMayMakeItGrow) {
    LuMFString field(LvString("a text that is too long to stand within the string"));
    field.set1Value(100, field[0]);
    EXPECT_EQ(field[100], field[0]);
}

TEST_F(FieldTest, CountMinusOneDeletesToTheEnd) {
    LuMFString field;
    field.setValues({"a", "b", "c"});
    field.deleteValues(1, -1);
    EXPECT_EQ(field.getValues(), std::vector<LvString>{"a"});
    field.deleteValues(5, -1);
    EXPECT_EQ(field.getNum(), 1);
}

TEST_F(FieldTest, NodeThatKeptTheFieldsOwnerMayBeReplaced) {
    auto* const kit = new OwnerNode;
    auto* const keeper = new LuGroup;
    kit->node.setValue(keeper);
    keeper->addChild(kit);
    bool isEnded = false;
    kit->isEnded = &isEnded;
    kit->node.setValue(nullptr);
    EXPECT_TRUE(isEnded);
}

TEST_F(FieldTest, FieldHoldsItsNodeByReference) {
    LuSFNode field;
    auto* node = new LuScale;
    field.setValue(node);
    EXPECT_EQ(node->getRefCount(), 1);
    field.setValue(node);
    EXPECT_EQ(node->getRefCount(), 1);
    field.setValue(nullptr);
}

TEST_F(FieldTest, ChangeInAHeldNodeCountsAsAChangeOfTheField) {
    LuSFNode field;
    auto* node = new LuScale;
    field.setValue(node);
    int calls = 0;
    LuFieldSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(&field);
    node->scaleFactor.setValue({2, 2, 2});
    EXPECT_EQ(calls, 1);
}

} // namespace
