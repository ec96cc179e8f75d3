// SPDX-License-Identifier: MIT
#include "tests/layout/DialogTest.h"

namespace {

/// The fields that a class adds, in order, each with its default.
struct ClassRow {
    const char* type;
    const char* parent;
    std::vector<std::pair<const char*, const char*>> fields;
};

void PrintTo(const ClassRow& row, std::ostream* out) { *out << row.type; }

class LuLayoutClassesTest : public ComponentTest, public testing::WithParamInterface<ClassRow> {};

TEST_P(LuLayoutClassesTest, fields_haveTheirOrderAndDefaults) {
    const ClassRow& row = GetParam();
    const LuType type = LuType::fromName(row.type);
    ASSERT_FALSE(type.isBad());
    EXPECT_EQ(type.getParent(), LuType::fromName(row.parent));
    const Held<LuNode> untouched(static_cast<LuNode*>(type.createInstance()));
    const Held<LuNode> set(static_cast<LuNode*>(type.createInstance()));
    const LuFieldData& data = *untouched->getFieldData();
    const int first = data.getIndex(row.fields.front().first);
    std::string text;
    for (std::size_t i = 0; i < row.fields.size(); ++i) {
        const auto& [name, value] = row.fields[i];
        EXPECT_EQ(data.getFieldName(first + static_cast<int>(i)), LvName(name));
        text += std::string(name) + " " + value + " ";
    }
    ASSERT_TRUE(set->set(LvString(text)));
    EXPECT_TRUE(set->fieldsAreEqual(*untouched)) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Classes, LuLayoutClassesTest,
    testing::Values(ClassRow{"LuDialogComponent",
                             "LuTopComponent",
                             {{"width", "0"},
                              {"height", "0"},
                              {"fixedWidth", "FALSE"},
                              {"fixedHeight", "FALSE"},
                              {"minWidth", "0"},
                              {"minHeight", "0"},
                              {"maxWidth", "0"},
                              {"maxHeight", "0"},
                              {"labelVisibility", "TRUE"},
                              {"edgeStyle", "NONE"}}},
                    ClassRow{"LuDialogGroup",
                             "LuDialogComponent",
                             {{"windowResizedByChildren", "TRUE"},
                              {"margin", "0"},
                              {"vScrollVisibility", "AUTO"},
                              {"hScrollVisibility", "AUTO"}}},
                    ClassRow{"LuColumnDialog", "LuDialogGroup", {{"columnSpacing", "0"}}},
                    ClassRow{"LuRowDialog", "LuDialogGroup", {{"rowSpacing", "0"}}},
                    ClassRow{"LuTopLevelDialog",
                             "LuPanelix",
                             {{"width", "0"},
                              {"height", "0"},
                              {"position", "0 0"},
                              {"position3D", "0 0 0"},
                              {"resizable", "TRUE"},
                              {"minWidth", "0"},
                              {"minHeight", "0"},
                              {"maxWidth", "0"},
                              {"maxHeight", "0"},
                              {"margin", "0"},
                              {"rowSpacing", "0"},
                              {"modalFrame", "FALSE"},
                              {"hideChildren", "FALSE"},
                              {"minimized", "FALSE"},
                              {"minimized3DPosition", "0 0 0"},
                              {"independentMinimizedPosition", "TRUE"},
                              {"windowResizedByChildren", "FALSE"},
                              {"vScrollVisibility", "AUTO"},
                              {"hScrollVisibility", "AUTO"}}}),
    [](const testing::TestParamInfo<ClassRow>& row) { return std::string(row.param.type); });

/// A part that the classes of the layout add.
struct PartRow {
    const char* name;
    const char* type;
    const char* parent;
    bool isPublic;
};

void expectParts(const LuNodekitCatalog& catalog, const std::vector<PartRow>& rows) {
    for (const PartRow& row : rows) {
        const int number = catalog.getPartNumber(row.name);
        ASSERT_GE(number, 0) << row.name;
        const LuNodekitPart& part = catalog.getPart(number);
        EXPECT_EQ(part.type, LuType::fromName(row.type)) << row.name;
        EXPECT_EQ(part.parent, LvName(row.parent)) << row.name;
        EXPECT_EQ(part.isPublic, row.isPublic) << row.name;
        EXPECT_TRUE(part.nullByDefault) << row.name;
        EXPECT_EQ(part.rightSibling, LvName()) << row.name;
        EXPECT_FALSE(part.isList) << row.name;
    }
}

using LuLayoutPartsTest = ComponentTest;

TEST_F(LuLayoutPartsTest, edges_arePublicPartsOfAComponent) {
    const Held<LuDialogComponent> component;
    expectParts(*component->getNodekitCatalog(),
                {{"mainCptSeparator", "LuSeparator", "geomSwitch", false},
                 {"edgeStyleSwitch", "LuSwitch", "mainCptSeparator", false},
                 {"edgeStyleNone", "LuGroup", "edgeStyleSwitch", true},
                 {"edgeStyleShadowIn", "LuGroup", "edgeStyleSwitch", true},
                 {"edgeStyleShadowOut", "LuGroup", "edgeStyleSwitch", true}});
}

TEST_F(LuLayoutPartsTest, containers_addNoParts) {
    const int number = Held<LuDialogComponent>()->getNodekitCatalog()->getNumEntries();
    EXPECT_EQ(Held<LuDialogGroup>()->getNodekitCatalog()->getNumEntries(), number);
    EXPECT_EQ(Held<LuColumnDialog>()->getNodekitCatalog()->getNumEntries(), number);
    EXPECT_EQ(Held<LuRowDialog>()->getNodekitCatalog()->getNumEntries(), number);
}

} // namespace
