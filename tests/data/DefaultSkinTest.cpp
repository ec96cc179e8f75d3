// SPDX-License-Identifier: MIT
#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"

#include <cstring>
#include <gtest/gtest.h>
#include <ostream>
#include <set>
#include <string>

namespace {

constexpr float NOTHING = -1.0F;

/// What a group of the default skin is to be: the z range of its geometry, and how far it lifts what follows.
struct Look {
    const char* skin;
    const char* group;
    float back, front, lift;
};

std::ostream& operator<<(std::ostream& out, const Look& look) { return out << look.group; }

constexpr Look LOOKS[] = {
    {"TextProperties", "DialogTextProperties", NOTHING, NOTHING, 0.1F},
    {"DialogCheckBox", "DialogCheckBoxFrame", 0, 1, 1},
    {"DialogCheckBox", "DialogCheckBoxStateOff", 0, 1, 0.5F},
    {"DialogCheckBox", "DialogCheckBoxStateOn", 0, 1, 0.5F},
    {"DialogComboBox", "DialogComboBoxFrame", 0, 1, 1},
    {"DialogComboBox", "DialogComboBoxItemFrame", 0, 1, 1},
    {"DialogComboBox", "DialogComboBoxButtonReleased", 0.1F, 0.2F, 0},
    {"DialogComboBox", "DialogComboBoxButtonPressed", 0.1F, 0.2F, 0},
    {"DialogComponent", "DialogComponentEdgeStyleNone", 0, 1, 1},
    {"DialogComponent", "DialogComponentEdgeStyleShadowIn", 0, 1, 1},
    {"DialogComponent", "DialogComponentEdgeStyleShadowOut", 0, 1, 1},
    {"DialogEditText", "DialogEditTextFrame", 0, 1, 1},
    {"DialogEditText", "DialogEditTextEditingFrame", 0, 1, 1},
    {"DialogEditText", "DialogEditTextDownButtonPressed", 0, 0.5F, 0.5F},
    {"DialogEditText", "DialogEditTextDownButtonReleased", 0, 1, 1},
    {"DialogEditText", "DialogEditTextUpButtonPressed", 0, 0.5F, 0.5F},
    {"DialogEditText", "DialogEditTextUpButtonReleased", 0, 1, 1},
    {"DialogEditText", "DialogEditTextScrollFrame", 0, 1, 1},
    {"DialogEditText", "DialogEditTextCursorFrame", 0, 1, 1},
    {"DialogEditText", "DialogEditTextCaretFrame", 0, 0.5F, 0.5F},
    {"DialogPushButton", "DialogPushButtonReleased", 0.5F, 1.5F, 2},
    {"DialogPushButton", "DialogPushButtonPressed", 0, 1, 1},
    {"DialogRadioButtons", "DialogRadioButtonsFrame", 0, 1, 1},
    {"DialogRadioButtons", "DialogRadioButtonsItemFrame", 0, 1, 1},
    {"DialogRadioButtons", "DialogRadioButtonsStateOff", -0.5F, 0.5F, 0},
    {"DialogRadioButtons", "DialogRadioButtonsStateOn", -0.5F, 0.6F, 0.4F},
    {"DialogSeparator", "DialogSeparatorVertical", 0, 1, 0.5F},
    {"DialogSeparator", "DialogSeparatorHorizontal", 0, 1, 0.5F},
    {"DialogSlider", "DialogSliderFrame", 0, 1, 0.5F},
    {"DialogSlider", "DialogSliderCursor", 0, 1, 0.5F},
    {"MenuBar", "MenuBarFrame", 0, 1, 1},
    {"MenuCheckBox", "MenuCheckBoxStateOn", 0, 1, 0.5F},
    {"MenuCheckBox", "MenuCheckBoxStateOff", 0, 1, 0.5F},
    {"MenuItem", "MenuItemFrame", 0, 1, 1},
    {"MenuPopup", "MenuPopupPressedFrame", 0, 0.5F, 0.5F},
    {"MenuPopup", "MenuPopupReleasedFrame", 0, 1, 1},
    {"MenuPopup", "MenuPopupReleasedShape", 0, 1, 0},
    {"MenuPopup", "MenuPopupPressedShape", -0.2F, 0.8F, 0},
    {"MenuPushButton", "MenuPushButtonReleased", 0, 1, 1},
    {"MenuPushButton", "MenuPushButtonPressed", 0, 0.5F, 0.5F},
    {"MenuRadioButtons", "MenuRadioButtonsStateOn", 0, 1.2F, 1},
    {"MenuRadioButtons", "MenuRadioButtonsStateOff", 0, 1, 0.5F},
    {"MenuSeparator", "MenuSeparatorFrame", 0, 1, 0.5F},
    {"TabDialog", "TabDialogSelectedTabFrame", 0, 1, 1},
    {"TabDialog", "TabDialogUnselectedTabFrame", 0, 0.8F, 0.8F},
    {"TabDialog", "TabDialogLeftButtonPressed", 0.1F, 0.2F, 0},
    {"TabDialog", "TabDialogLeftButtonReleased", 0.1F, 0.2F, 0},
    {"TabDialog", "TabDialogRightButtonPressed", 0.1F, 0.2F, 0},
    {"TabDialog", "TabDialogRightButtonReleased", 0.1F, 0.2F, 0},
    {"TabDialog", "TabDialogFrame", 0, 1, 1},
    {"TopLevelDialog", "TopLevelDialogFrame", 0, 1, 1},
    {"TopLevelDialog", "TopLevelDialogMinReleased", 0.1F, 0.2F, 0},
    {"TopLevelDialog", "TopLevelDialogMinPressed", 0.1F, 0.2F, 0},
};

const char* findText(const std::string& skin) {
    for (const LuEmbeddedSkin* row = LuEmbeddedSkins; row->name; ++row)
        if (skin == row->name)
            return row->text;
    return nullptr;
}

/// A skin that is read for the life of this object.
class ReadSkin {
public:
    explicit ReadSkin(const char* text) {
        LuDB::init();
        LuInput input;
        input.setBuffer(text, std::strlen(text));
        m_root = LuDB::readAll(&input);
        if (m_root)
            m_root->ref();
    }
    ReadSkin(const ReadSkin&) = delete;
    ReadSkin& operator=(const ReadSkin&) = delete;
    ~ReadSkin() {
        if (m_root)
            m_root->unref();
        LuDB::finish();
    }

    bool isRead() const { return m_root != nullptr; }

    std::set<std::string> getGroupNames() const {
        std::set<std::string> names;
        for (int i = 0; i < m_root->getNumChildren(); ++i)
            names.insert(std::string(m_root->getChild(i)->getName().view()));
        return names;
    }

    /// The top-level group with the name, or null.
    LuGroup* find(const char* name) const {
        for (int i = 0; i < m_root->getNumChildren(); ++i)
            if (m_root->getChild(i)->getName() == LvName(name))
                return static_cast<LuGroup*>(m_root->getChild(i));
        return nullptr;
    }

private:
    LuSeparator* m_root = nullptr;
};

/// How far a group moves what comes after it.
LvVec3f getLift(LuGroup* group) {
    LuGetMatrixAction action;
    auto* holder = new LuSeparator;
    auto* next = new LuGroup;
    holder->addChild(group);
    holder->addChild(next);
    LuPath path(holder);
    path.append(next, 1);
    action.apply(path);
    return action.getMatrix().getTranslation();
}

class DefaultSkinTest : public testing::TestWithParam<Look> {};

} // namespace

TEST_P(DefaultSkinTest, groupHasUnitSizeAndTheDepthOfItsLook) {
    const Look& look = GetParam();
    const char* text = findText(look.skin);
    ASSERT_NE(text, nullptr);
    const ReadSkin skin(text);
    ASSERT_TRUE(skin.isRead());
    LuGroup* group = skin.find(look.group);
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getTypeId(), LuGroup::getClassTypeId());

    LuGetBoundingBoxAction action;
    action.apply(group);
    const LvBox3f box = action.getBoundingBox();
    if (look.front == NOTHING) {
        EXPECT_TRUE(box.isEmpty());
    } else {
        EXPECT_NEAR(box.min.z, look.back, 1e-6);
        EXPECT_NEAR(box.max.z, look.front, 1e-6);
        EXPECT_LE(box.getSize().x, 1.000001F);
        EXPECT_LE(box.getSize().y, 1.000001F);
    }
    EXPECT_NEAR(getLift(group).z, look.lift, 1e-6);
}

TEST(DefaultSkin, holdsNoGroupThatTheTableOfLooksLeavesOut) {
    std::set<std::string> expected = {"_TabDialogButtonPressed_", "_TabDialogButtonReleased_"};
    for (const Look& look : LOOKS)
        expected.insert(look.group);
    std::set<std::string> found;
    for (const LuEmbeddedSkin* row = LuEmbeddedSkins; row->name; ++row) {
        const ReadSkin skin(row->text);
        ASSERT_TRUE(skin.isRead()) << row->name;
        found.merge(skin.getGroupNames());
    }
    EXPECT_EQ(found, expected);
}

TEST(DefaultSkin, symbolsFillTheUnitSquare) {
    const ReadSkin skin(findText("TopLevelDialog"));
    ASSERT_TRUE(skin.isRead());
    LuGetBoundingBoxAction action;
    action.apply(skin.find("TopLevelDialogMinReleased"));
    const LvBox3f box = action.getBoundingBox();
    EXPECT_NEAR(box.min.x, -0.5F, 1e-6);
    EXPECT_NEAR(box.min.y, -0.5F, 1e-6);
    EXPECT_NEAR(box.max.x, 0.5F, 1e-6);
    EXPECT_NEAR(box.max.y, 0.5F, 1e-6);
}

TEST(DefaultSkin, anUnselectedTabLiesLower) {
    const ReadSkin skin(findText("TabDialog"));
    ASSERT_TRUE(skin.isRead());
    LuGetBoundingBoxAction action;
    action.apply(skin.find("TabDialogUnselectedTabFrame"));
    EXPECT_NEAR(action.getBoundingBox().max.y, 0.3F, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Looks, DefaultSkinTest, testing::ValuesIn(LOOKS),
                         [](const auto& row) { return std::string(row.param.group); });
