// SPDX-License-Identifier: MIT
#include "platform/lumora/cluster/CrInitModuleCmd.h"
#include "tests/platform/lumora/io/SceneReading.h"

#include <gtest/gtest.h>

namespace {

TEST(LuDB, initAndFinish_areCounted) {
    const int before = LuDB::getInitCount();
    LuDB::init();
    LuDB::init();
    EXPECT_EQ(LuDB::getInitCount(), before + 2);
    LuDB::finish();
    LuDB::finish();
    EXPECT_EQ(LuDB::getInitCount(), before);
    LuInteraction::init();
    LuNodeKit::init();
    EXPECT_EQ(LuInteraction::getInitCount(), 1);
    EXPECT_EQ(LuNodeKit::getInitCount(), 1);
    LuInteraction::finish();
    LuNodeKit::finish();
}

TEST(LuDB, classes_areKnownAfterInit) {
    LuDB::init();
    for (const char* name : {"Separator", "Switch", "Transform", "Text3", "BaseKit", "Dragger", "LuCube"})
        EXPECT_FALSE(LuType::fromName(name).isBad()) << name;
    LuDB::finish();
}

TEST(LuDB, readAll_givesARootWithoutAReference) {
    LuDB::init();
    LuInput in;
    in.setBuffer("Cube {}", 7);
    LuSeparator* const root = LuDB::readAll(&in);
    EXPECT_EQ(root->getRefCount(), 0);
    hold(root);
    LuDB::finish();
}

TEST(CrInitModuleCmd, names_areKept) {
    const std::size_t before = CrInitModuleCmd::Instance()->getNames().size();
    CrInitModuleCmd::Instance()->serialize("SomeModule");
    ASSERT_EQ(CrInitModuleCmd::Instance()->getNames().size(), before + 1);
    EXPECT_EQ(CrInitModuleCmd::Instance()->getNames().back(), "SomeModule");
}

} // namespace
