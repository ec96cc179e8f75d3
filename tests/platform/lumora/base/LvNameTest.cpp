// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvName.h"

#include <gtest/gtest.h>
#include <unordered_set>

namespace {

TEST(LvName, equalTexts_areEqualAndShareTheirCopy) {
    const LvName one("LvNameTest.same");
    const LvName two(std::string("LvNameTest.") + "same");
    EXPECT_EQ(one, two);
    EXPECT_EQ(one.getString(), two.getString());
    EXPECT_EQ(std::hash<LvName>()(one), std::hash<LvName>()(two));
}

TEST(LvName, differentTexts_differ) {
    EXPECT_NE(LvName("label"), LvName("Label"));
    EXPECT_NE(LvName("label"), LvName("labels"));
    EXPECT_NE(LvName("label"), LvName());
}

TEST(LvName, anotherTextAtTheSamePlace_isAnotherName) {
    char text[] = "LvNameTest.first";
    const LvName first(text);
    text[11] = 'F';
    EXPECT_STREQ(LvName(text).getString(), "LvNameTest.First");
    text[11] = 'f';
    EXPECT_EQ(LvName(text), first);
    EXPECT_STREQ(LvName(std::string_view(text, 10)).getString(), "LvNameTest");
}

TEST(LvName, emptyText_isTheEmptyName) {
    EXPECT_TRUE(LvName().isEmpty());
    EXPECT_EQ(LvName(""), LvName());
    EXPECT_EQ(LvName(LvString()), LvName());
    EXPECT_STREQ(LvName().getString(), "");
    EXPECT_EQ(LvName().getLength(), 0);
}

TEST(LvName, text_isKept) {
    const LvName name(LvString("geomSwitch"));
    EXPECT_STREQ(name.getString(), "geomSwitch");
    EXPECT_EQ(name.view(), "geomSwitch");
    EXPECT_EQ(name.getLength(), 10);
    EXPECT_FALSE(name.isEmpty());
}

TEST(LvName, findExisting_addsNothing) {
    EXPECT_TRUE(LvName::findExisting("LvNameTest.never interned").isEmpty());
    EXPECT_TRUE(LvName::findExisting("LvNameTest.never interned").isEmpty());
    const LvName name("LvNameTest.interned");
    EXPECT_EQ(LvName::findExisting("LvNameTest.interned"), name);
    EXPECT_TRUE(LvName::findExisting("").isEmpty());
}

TEST(LvName, manyNames_keepTheirPlace) {
    const LvName first("LvNameTest.first");
    const char* const place = first.getString();
    std::unordered_set<LvName> names;
    for (int i = 0; i < 5000; ++i)
        names.insert(LvName("LvNameTest." + std::to_string(i)));
    EXPECT_EQ(names.size(), 5000u);
    EXPECT_EQ(LvName("LvNameTest.first").getString(), place);
    EXPECT_STREQ(place, "LvNameTest.first");
}

} // namespace
