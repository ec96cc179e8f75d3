// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvPList.h"

#include <gtest/gtest.h>

namespace {

class LvPListTest : public testing::Test {
protected:
    LvPListTest() {
        for (int& item : items)
            list.append(&item);
    }
    int items[3] = {};
    LvPList list;
};

TEST_F(LvPListTest, append_putsAtTheEnd) {
    EXPECT_EQ(list.getLength(), 3);
    EXPECT_EQ(list[2], &items[2]);
}

TEST_F(LvPListTest, find_givesTheFirstEqualEntry) {
    list.append(&items[1]);
    EXPECT_EQ(list.find(&items[1]), 1);
    EXPECT_EQ(list.find(&list), -1);
    EXPECT_EQ(LvPList().find(nullptr), -1);
}

TEST_F(LvPListTest, remove_closesTheGap) {
    list.remove(0);
    EXPECT_EQ(list.getLength(), 2);
    EXPECT_EQ(list[0], &items[1]);
    EXPECT_EQ(list[1], &items[2]);
}

TEST_F(LvPListTest, removeOutside_doesNothing) {
    list.remove(-1);
    list.remove(3);
    EXPECT_EQ(list.getLength(), 3);
}

TEST_F(LvPListTest, insert_opensAGap) {
    list.insert(&list, 1);
    EXPECT_EQ(list.getLength(), 4);
    EXPECT_EQ(list[1], &list);
    EXPECT_EQ(list[2], &items[1]);
}

TEST_F(LvPListTest, insertOutside_isMovedToTheEnds) {
    list.insert(&list, -5);
    EXPECT_EQ(list[0], &list);
    list.insert(&items, 100);
    EXPECT_EQ(list.getLength(), 5);
    EXPECT_EQ(list[4], &items);
}

TEST_F(LvPListTest, truncate_onlyShortens) {
    list.truncate(5);
    EXPECT_EQ(list.getLength(), 3);
    list.truncate(1);
    EXPECT_EQ(list.getLength(), 1);
    EXPECT_EQ(list[0], &items[0]);
    list.truncate(-2);
    EXPECT_EQ(list.getLength(), 0);
}

TEST_F(LvPListTest, indexBeyondTheEnd_growsWithNulls) {
    list[5] = &list;
    EXPECT_EQ(list.getLength(), 6);
    EXPECT_EQ(list[2], &items[2]);
    EXPECT_EQ(list[3], nullptr);
    EXPECT_EQ(list[4], nullptr);
    EXPECT_EQ(list[5], &list);
}

TEST_F(LvPListTest, indexAtTheLength_growsByOne) {
    EXPECT_EQ(list[3], nullptr);
    EXPECT_EQ(list.getLength(), 4);
}

TEST_F(LvPListTest, negativeIndex_belongsToNoEntry) {
    list[-1] = &list;
    EXPECT_EQ(list.getLength(), 3);
    EXPECT_EQ(list[-1], nullptr);
    EXPECT_EQ(list.find(&list), -1);
}

TEST(LvStringList, texts_areKeptByPointer) {
    LvString one = "one";
    LvString two = "two";
    LvStringList list;
    list.append(&one);
    list.append(&two);
    two += "!";
    EXPECT_EQ(list.getLength(), 2);
    EXPECT_EQ(list[0], &one);
    EXPECT_EQ(*list[1], "two!");
    list.truncate(1);
    EXPECT_EQ(list.getLength(), 1);
}

} // namespace
