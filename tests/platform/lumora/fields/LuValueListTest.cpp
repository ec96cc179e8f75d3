// SPDX-License-Identifier: MIT
#include "platform/lumora/fields/LuValueList.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using List = LuValueList<std::string>;
using Strings = std::vector<std::string>;

List makeList(const Strings& values) {
    List list;
    list.assignAll(values);
    return list;
}

bool standsInPlace(const List& list) {
    const auto* const place = reinterpret_cast<const char*>(list.data());
    const auto* const start = reinterpret_cast<const char*>(&list);
    return place >= start && place < start + sizeof(List);
}

TEST(ValueListTest, NewListIsEmpty) { EXPECT_EQ(List().size(), 0U); }

TEST(ValueListTest, OneValueStandsInTheList) {
    const List list("a");
    EXPECT_EQ(list, Strings{"a"});
    EXPECT_TRUE(standsInPlace(list));
}

TEST(ValueListTest, SeveralValuesStandInARow) {
    const List list = makeList({"a", "b", "c"});
    EXPECT_EQ(list, (Strings{"a", "b", "c"}));
    EXPECT_EQ(&list[2], list.data() + 2);
}

TEST(ValueListTest, GrownListKeepsItsValuesAndAddsDefaults) {
    List list("a");
    list.resize(3);
    EXPECT_EQ(list, (Strings{"a", "", ""}));
}

TEST(ValueListTest, ShortenedAndGrownAgainHasDefaultsBehind) {
    List list = makeList({"a", "b", "c"});
    list.resize(1);
    list.resize(3);
    EXPECT_EQ(list, (Strings{"a", "", ""}));
}

TEST(ValueListTest, SingleValueDroppedAndAddedAgainIsTheDefault) {
    List list("a");
    list.resize(0);
    list.resize(1);
    EXPECT_EQ(list, Strings{""});
}

TEST(ValueListTest, AssignedOneOfItsOwnValuesHoldsThatAlone) {
    List list = makeList({"a", "b", "c"});
    list.assign(list[1]);
    EXPECT_EQ(list, Strings{"b"});
    EXPECT_TRUE(standsInPlace(list));
}

TEST(ValueListTest, AssignedAllOfItselfStaysTheSame) {
    List list = makeList({"a", "b"});
    list.assignAll(list);
    EXPECT_EQ(list, (Strings{"a", "b"}));
}

TEST(ValueListTest, SpaceInTheMiddleMovesWhatIsBehind) {
    List list = makeList({"a", "b", "c"});
    list.insertSpace(1, 1);
    EXPECT_EQ(list, (Strings{"a", "", "b", "c"}));
}

TEST(ValueListTest, SpaceLongerThanWhatIsBehindIsAllDefault) {
    List list = makeList({"a", "b"});
    list.insertSpace(1, 3);
    EXPECT_EQ(list, (Strings{"a", "", "", "", "b"}));
}

TEST(ValueListTest, SpaceAtTheEndAddsDefaults) {
    List list("a");
    list.insertSpace(1, 2);
    EXPECT_EQ(list, (Strings{"a", "", ""}));
}

TEST(ValueListTest, ErasedValuesLeaveNoGap) {
    List list = makeList({"a", "b", "c", "d"});
    list.erase(1, 2);
    EXPECT_EQ(list, (Strings{"a", "d"}));
    list.erase(0, 2);
    EXPECT_EQ(list, Strings());
}

TEST(ValueListTest, ListsOfOtherValuesOrLengthsAreNotEqual) {
    EXPECT_FALSE(makeList({"a", "b"}) == makeList({"a"}));
    EXPECT_FALSE(makeList({"a", "b"}) == makeList({"a", "c"}));
    EXPECT_TRUE(makeList({"a", "b"}) == makeList({"a", "b"}));
}

} // namespace
