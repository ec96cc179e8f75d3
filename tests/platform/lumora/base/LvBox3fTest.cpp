// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvBox3f.h"

#include "platform/lumora/base/LvMatrix.h"

#include <gtest/gtest.h>
#include <random>

namespace {

TEST(LvBox3f, newBox_isEmpty) {
    EXPECT_TRUE(LvBox3f().isEmpty());
    EXPECT_EQ(LvBox3f().getSize(), LvVec3f());
}

TEST(LvBox3f, makeEmpty_emptiesAgain) {
    LvBox3f box({0, 0, 0}, {1, 1, 1});
    box.makeEmpty();
    EXPECT_TRUE(box.isEmpty());
    EXPECT_EQ(box, LvBox3f());
}

TEST(LvBox3f, point_isABoxWithoutSize) {
    LvBox3f box;
    box.extendBy(LvVec3f(1, -2, 3));
    EXPECT_FALSE(box.isEmpty());
    EXPECT_EQ(box.getSize(), LvVec3f());
    EXPECT_EQ(box.getCenter(), LvVec3f(1, -2, 3));
}

TEST(LvBox3f, extendBy_takesInPointsAndBoxes) {
    LvBox3f box({0, 0, 0}, {1, 1, 1});
    box.extendBy(LvVec3f(-1, 0.5F, 2));
    EXPECT_EQ(box, LvBox3f({-1, 0, 0}, {1, 1, 2}));
    box.extendBy(LvBox3f({0, -5, 0}, {0, 5, 0}));
    EXPECT_EQ(box, LvBox3f({-1, -5, 0}, {1, 5, 2}));
    EXPECT_EQ(box.getSize(), LvVec3f(2, 10, 2));
}

TEST(LvBox3f, emptyBox_extendsNothing) {
    LvBox3f box({0, 0, 0}, {1, 1, 1});
    box.extendBy(LvBox3f());
    EXPECT_EQ(box, LvBox3f({0, 0, 0}, {1, 1, 1}));
    LvBox3f empty;
    empty.extendBy(LvBox3f());
    EXPECT_TRUE(empty.isEmpty());
}

TEST(LvBox3f, emptyBox_staysEmptyThroughAMatrix) {
    LvBox3f box;
    box.transform(LvMatrix::translation({1, 2, 3}));
    EXPECT_EQ(box, LvBox3f());
}

TEST(LvBox3f, translationAndScale_moveTheEnds) {
    LvBox3f box({-1, 0, 1}, {1, 2, 3});
    box.transform(LvMatrix::translation({10, 20, 30}) * LvMatrix::scale({2, -1, 0}));
    EXPECT_EQ(box, LvBox3f({8, 18, 30}, {12, 20, 30}));
}

TEST(LvBox3f, numbersThatAreNotFinite_spoilNoOtherBox) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    const LvBox3f unit({0, 0, 0}, {1, 1, 1});

    LvBox3f noNumber({none, 0, 0}, {none, 1, 1});
    noNumber.transform(LvMatrix::translation({1, 2, 3}));
    LvBox3f box = unit;
    box.extendBy(noNumber);
    EXPECT_EQ(box, unit);

    // Nothing times infinity is no number: the other axes say nothing.
    LvBox3f endless({-infinity, 0, 0}, {infinity, 1, 1});
    endless.transform(LvMatrix::translation({1, 2, 3}));
    box.extendBy(endless);
    EXPECT_EQ(box, LvBox3f({-infinity, 0, 0}, {infinity, 1, 1}));
}

TEST(LvBox3f, randomMatrices_giveTheBoxRoundTheCorners) {
    std::mt19937 generator(5);
    std::uniform_real_distribution<float> number(-3, 3);
    for (int i = 0; i < 1000; ++i) {
        LvMatrix matrix;
        for (int column = 0; column < 4; ++column)
            for (int row = 0; row < 3; ++row)
                matrix.at(column, row) = number(generator);
        LvBox3f box;
        box.extendBy(LvVec3f(number(generator), number(generator), number(generator)));
        box.extendBy(LvVec3f(number(generator), number(generator), number(generator)));

        LvBox3f round;
        for (int corner = 0; corner < 8; ++corner)
            round.extendBy(
                matrix.transformPoint({corner & 1 ? box.max.x : box.min.x, corner & 2 ? box.max.y : box.min.y,
                                       corner & 4 ? box.max.z : box.min.z}));
        box.transform(matrix);
        EXPECT_LE((box.min - round.min).length(), 1e-5);
        EXPECT_LE((box.max - round.max).length(), 1e-5);
    }
}

} // namespace
