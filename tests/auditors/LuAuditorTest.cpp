// SPDX-License-Identifier: MIT
#include "auditors/LuAuditor.h"

#include "auditors/LuDialogAuditor.h"
#include "auditors/LuDialogPushButtonAuditor.h"
#include "auditors/LuMenuRadioButtonsAuditor.h"
#include "auditors/LuTabDialogAuditor.h"
#include "auditors/LuTopLevelAuditor.h"
#include "core/LuPanelix.h"

#include <gtest/gtest.h>

namespace {

class LuAuditorTest : public testing::Test {
protected:
    LuAuditorTest() { LuPanelix::init(); }
    ~LuAuditorTest() override { LuPanelix::finish(); }
};

TEST_F(LuAuditorTest, types_standBelowAuditorWithTheirWholeNames) {
    EXPECT_EQ(LuAuditor::getClassTypeId().getName(), LvName("Auditor"));
    EXPECT_TRUE(LuAuditor::getClassTypeId().getParent().isBad());
    for (const char* name :
         {"LuDialogAuditor", "LuDialogPushButtonAuditor", "LuDialogCheckBoxAuditor", "LuDialogChoiceAuditor",
          "LuDialogEditTextAuditor", "LuDialogIntegerSliderAuditor", "LuDialogRealSliderAuditor",
          "LuMenuCheckBoxAuditor", "LuMenuFileSelectionAuditor", "LuMenuPushButtonAuditor",
          "LuMenuRadioButtonsAuditor"}) {
        const LuType type = LuType::fromName(name);
        EXPECT_EQ(type.getName(), LvName(name));
        EXPECT_EQ(type.getParent(), LuAuditor::getClassTypeId()) << name;
        EXPECT_FALSE(type.canCreateInstance()) << name;
    }
}

TEST_F(LuAuditorTest, tabDialogAuditor_isRegisteredByItsUser) {
    EXPECT_TRUE(LuTabDialogAuditor::getClassTypeId().isBad());
    EXPECT_TRUE(LuType::fromName("LuTabDialogAuditor").isBad());
    LuTabDialogAuditor::initClass();
    EXPECT_EQ(LuTabDialogAuditor::getClassTypeId().getName(), LvName("LuTabDialogAuditor"));
    EXPECT_EQ(LuTabDialogAuditor::getClassTypeId().getParent(), LuAuditor::getClassTypeId());
    LuTabDialogAuditor::exitClass();
    EXPECT_TRUE(LuType::fromName("LuTabDialogAuditor").isBad());
}

TEST_F(LuAuditorTest, containersOwnAuditor_hasTheTypeOfADialogAuditor) {
    const LuTopLevelAuditor auditor;
    EXPECT_EQ(auditor.getTypeId(), LuDialogAuditor::getClassTypeId());
}

TEST(LuAuditorClassesTest, endOfTheLibrary_removesTheTypes) {
    LuPanelix::init();
    LuPanelix::finish();
    EXPECT_TRUE(LuAuditor::getClassTypeId().isBad());
    EXPECT_TRUE(LuDialogAuditor::getClassTypeId().isBad());
    EXPECT_TRUE(LuMenuRadioButtonsAuditor::getClassTypeId().isBad());
    EXPECT_TRUE(LuType::fromName("LuDialogPushButtonAuditor").isBad());
    EXPECT_TRUE(LuType::fromName("Auditor").isBad());
}

} // namespace
