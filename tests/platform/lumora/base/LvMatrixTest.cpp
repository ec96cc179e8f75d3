// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvMatrix.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

constexpr float PI = 3.14159265F;

struct Parts {
    LvVec3f translation;
    LvRotation rotation;
    LvVec3f scale;
    LvRotation scaleOrientation;

    explicit Parts(const LvMatrix& matrix) {
        matrix.getTransform(translation, rotation, scale, scaleOrientation);
    }
    LvMatrix compose() const {
        LvMatrix matrix;
        matrix.setTransform(translation, rotation, scale, scaleOrientation);
        return matrix;
    }
};

/// Largest difference of two entries, as a share of the largest entry of the turning part.
float getDifference(const LvMatrix& one, const LvMatrix& two) {
    float size = std::numeric_limits<float>::min();
    float difference = 0;
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 3; ++row) {
            size = std::max(size, std::abs(one.at(column, row)));
            const float here = std::abs(one.at(column, row) - two.at(column, row));
            // Not std::max, which would pass over a number that is none.
            difference = here <= difference ? difference : here;
        }
    }
    return difference / size;
}

float getLength(const LvRotation& r) { return std::sqrt(r.x * r.x + r.y * r.y + r.z * r.z + r.w * r.w); }

void expectComposesAgain(const LvMatrix& matrix, float tolerance = 1e-5F) {
    const Parts parts(matrix);
    EXPECT_NEAR(getLength(parts.rotation), 1, 1e-5);
    EXPECT_NEAR(getLength(parts.scaleOrientation), 1, 1e-5);
    EXPECT_EQ(parts.translation, matrix.getTranslation());
    EXPECT_LE(getDifference(matrix, parts.compose()), tolerance);
}

/// A matrix of arbitrary numbers: nearly all are sheared, and half of them mirror.
LvMatrix makeRandom(std::mt19937& generator) {
    std::uniform_real_distribution<float> number(-2, 2);
    LvMatrix matrix;
    for (int column = 0; column < 4; ++column)
        for (int row = 0; row < 3; ++row)
            matrix.at(column, row) = number(generator);
    return matrix;
}

float getDeterminant(const LvMatrix& m) {
    const LvVec3f columns[] = {m.transformDirection({1, 0, 0}), m.transformDirection({0, 1, 0}),
                               m.transformDirection({0, 0, 1})};
    return columns[0].dot(columns[1].cross(columns[2]));
}

TEST(LvMatrix, product_appliesTheRightFactorFirst) {
    const LvMatrix product = LvMatrix::translation({10, 0, 0}) * LvMatrix::scale({2, 2, 2});
    EXPECT_EQ(product.transformPoint({1, 1, 1}), LvVec3f(12, 2, 2));
    EXPECT_EQ(product.transformDirection({1, 1, 1}), LvVec3f(2, 2, 2));
}

TEST(LvMatrix, translateAndScaleBy_applyBeforeTheRest) {
    LvMatrix matrix = LvMatrix::scale({2, 3, 4});
    matrix.translateBy({1, 1, 1});
    EXPECT_EQ(matrix, LvMatrix::scale({2, 3, 4}) * LvMatrix::translation({1, 1, 1}));
    matrix.scaleBy({5, 6, 7});
    EXPECT_EQ(matrix,
              LvMatrix::scale({2, 3, 4}) * LvMatrix::translation({1, 1, 1}) * LvMatrix::scale({5, 6, 7}));
}

TEST(LvMatrix, rotation_turnsAgainstTheClock) {
    const LvVec3f turned = LvMatrix::rotation(LvRotation({0, 0, 1}, PI / 2)).transformPoint({1, 0, 0});
    EXPECT_NEAR(turned.x, 0, 1e-6);
    EXPECT_NEAR(turned.y, 1, 1e-6);
}

TEST(LvMatrix, rotationOfAnyLength_doesNotScale) {
    EXPECT_LE(getDifference(LvMatrix::rotation({2, 0, 0, 2}), LvMatrix::rotation({{1, 0, 0}, PI / 2})), 1e-6);
    EXPECT_EQ(LvMatrix::rotation({0, 0, 0, 0}), LvMatrix());
}

TEST(LvMatrix, setTransform_scalesThenTurnsThenMoves) {
    LvMatrix matrix;
    matrix.setTransform({10, 0, 0}, LvRotation({0, 0, 1}, PI / 2), {2, 1, 1});
    const LvVec3f point = matrix.transformPoint({1, 0, 0});
    EXPECT_NEAR(point.x, 10, 1e-5);
    EXPECT_NEAR(point.y, 2, 1e-5);
}

TEST(LvMatrix, scaleOrientation_turnsTheAxesOfTheScale) {
    LvMatrix matrix;
    matrix.setTransform({}, {}, {3, 1, 1}, LvRotation({0, 0, 1}, PI / 4));
    const LvVec3f along = matrix.transformPoint({1, 1, 0});
    EXPECT_NEAR(along.x, 3, 1e-5);
    EXPECT_NEAR(along.y, 3, 1e-5);
    const LvVec3f across = matrix.transformPoint({1, -1, 0});
    EXPECT_NEAR(across.x, 1, 1e-5);
    EXPECT_NEAR(across.y, -1, 1e-5);
}

TEST(LvMatrix, plainScaleAndTranslation_comeBackExactly) {
    LvMatrix matrix;
    matrix.setTransform({0.1F, -7.3F, 1e6F}, {}, {0.3F, 123.7F, 1e-6F});
    const Parts parts(matrix);
    EXPECT_EQ(parts.translation, LvVec3f(0.1F, -7.3F, 1e6F));
    EXPECT_EQ(parts.rotation, LvRotation(0, 0, 0, 1));
    EXPECT_EQ(parts.scale, LvVec3f(0.3F, 123.7F, 1e-6F));
    EXPECT_EQ(parts.scaleOrientation, LvRotation(0, 0, 0, 1));
    EXPECT_EQ(parts.compose(), matrix);
}

TEST(LvMatrix, turnedScale_comesBackWithoutScaleOrientation) {
    std::mt19937 generator(7);
    std::uniform_real_distribution<float> number(-1, 1);
    for (int i = 0; i < 1000; ++i) {
        const LvRotation rotation({number(generator), number(generator), number(generator)},
                                  3 * number(generator));
        const LvVec3f scale(200, i % 2 ? 200.0F : 30.0F, 0.5F);
        LvMatrix matrix;
        matrix.setTransform({1, 2, 3}, rotation, scale);
        const Parts parts(matrix);
        EXPECT_EQ(parts.scaleOrientation, LvRotation());
        EXPECT_LE((parts.scale - scale).length(), 1e-5F * scale.length());
        EXPECT_NEAR(std::abs(parts.rotation.x * rotation.x + parts.rotation.y * rotation.y +
                             parts.rotation.z * rotation.z + parts.rotation.w * rotation.w),
                    1, 1e-5);
    }
}

TEST(LvMatrix, halfTurns_comeBackAsRotations) {
    for (const LvVec3f& axis : {LvVec3f(1, 0, 0), LvVec3f(0, 1, 0), LvVec3f(0, 0, 1)}) {
        const LvMatrix matrix = LvMatrix::rotation({axis.x, axis.y, axis.z, 0});
        const Parts parts(matrix);
        EXPECT_EQ(parts.scale, LvVec3f(1, 1, 1));
        EXPECT_EQ(std::abs(axis.dot({parts.rotation.x, parts.rotation.y, parts.rotation.z})), 1);
        EXPECT_EQ(parts.compose(), matrix);
    }
}

TEST(LvMatrix, randomShearedAndMirroredMatrices_composeAgain) {
    std::mt19937 generator(1);
    int mirrored = 0;
    for (int i = 0; i < 1000; ++i) {
        const LvMatrix matrix = makeRandom(generator);
        expectComposesAgain(matrix);
        const LvVec3f scale = Parts(matrix).scale;
        if (std::abs(getDeterminant(matrix)) < 1e-3)
            continue;
        const bool isMirrored = getDeterminant(matrix) < 0;
        mirrored += isMirrored ? 1 : 0;
        EXPECT_EQ(scale.x * scale.y * scale.z < 0, isMirrored);
    }
    EXPECT_GT(mirrored, 300);
}

TEST(LvMatrix, flatMatrices_composeAgain) {
    std::mt19937 generator(2);
    for (int i = 0; i < 300; ++i) {
        LvMatrix matrix = makeRandom(generator);
        for (int row = 0; row < 3; ++row) {
            if (i % 3 == 0)
                matrix.at(1, row) = matrix.at(0, row);
            else if (i % 3 == 1)
                matrix.at(2, row) = 0;
            else
                matrix.at(1, row) = matrix.at(2, row) = -matrix.at(0, row);
        }
        expectComposesAgain(matrix);
        const LvVec3f scale = Parts(matrix).scale;
        const float least = std::min({std::abs(scale.x), std::abs(scale.y), std::abs(scale.z)});
        EXPECT_LE(least, 1e-5F * scale.length());
    }
}

TEST(LvMatrix, turnedFlatScale_givesAScaleOfZero) {
    LvMatrix matrix = LvMatrix::rotation(LvRotation({1, 2, 3}, 1)) * LvMatrix::scale({2, 3, 0});
    EXPECT_EQ(Parts(matrix).scale.z, 0);
    expectComposesAgain(matrix);
}

TEST(LvMatrix, zeroMatrix_givesAScaleOfZero) {
    LvMatrix matrix = LvMatrix::scale({0, 0, 0});
    EXPECT_EQ(Parts(matrix).scale, LvVec3f());
    EXPECT_EQ(Parts(matrix).compose(), matrix);
}

TEST(LvMatrix, mirrors_composeAgain) {
    for (const LvVec3f& scale :
         {LvVec3f(-1, 1, 1), LvVec3f(1, -2, 1), LvVec3f(-1, -1, -3), LvVec3f(0, -1, 1)})
        expectComposesAgain(LvMatrix::scale(scale));
}

TEST(LvMatrix, veryDifferentScales_keepTheirDigits) {
    LvMatrix matrix = LvMatrix::rotation(LvRotation({1, 1, 0}, 0.7F)) * LvMatrix::scale({1e6F, 1, 1e-6F});
    const LvVec3f scale = Parts(matrix).scale;
    EXPECT_NEAR(scale.x, 1e6, 1);
    EXPECT_NEAR(scale.y, 1, 1e-5);
    EXPECT_NEAR(scale.z * 1e6, 1, 1e-5);
}

TEST(LvMatrix, hugeAndTinyNumbers_composeAgain) {
    std::mt19937 generator(3);
    for (const float factor : {1e-30F, 1e30F}) {
        LvMatrix matrix = makeRandom(generator);
        matrix.scaleBy({factor, factor, factor});
        expectComposesAgain(matrix);
    }
}

TEST(LvMatrix, numbersThatAreNotFinite_giveTheIdentity) {
    for (const float number :
         {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        for (int column = 0; column < 4; ++column) {
            LvMatrix matrix;
            matrix.at(column, 1) = number;
            EXPECT_EQ(Parts(matrix).compose(), LvMatrix());
        }
    }
}

TEST(LvMatrix, inverse_undoesTheMatrix) {
    std::mt19937 generator(4);
    for (int i = 0; i < 100; ++i) {
        const LvMatrix matrix = makeRandom(generator);
        if (std::abs(getDeterminant(matrix)) < 0.05)
            continue;
        const LvVec3f back = matrix.inverse().transformPoint(matrix.transformPoint({1, 2, 3}));
        EXPECT_LE((back - LvVec3f(1, 2, 3)).length(), 1e-3);
    }
}

TEST(LvMatrix, tinyScale_hasAnInverse) {
    const LvMatrix inverse = LvMatrix::scale({1e-15F, 1e-15F, 1e-15F}).inverse();
    EXPECT_FLOAT_EQ(inverse.at(0, 0), 1e15F);
}

TEST(LvMatrix, matrixWithoutInverse_givesTheIdentity) {
    EXPECT_EQ(LvMatrix::scale({1, 0, 1}).inverse(), LvMatrix());
    EXPECT_EQ(LvMatrix::scale({std::numeric_limits<float>::quiet_NaN(), 1, 1}).inverse(), LvMatrix());
}

TEST(LvMatrix, projection_dividesByTheFourthCoordinate) {
    LvMatrix matrix;
    matrix.at(2, 3) = 1;
    matrix.at(3, 3) = 0;
    EXPECT_EQ(matrix.transformPoint({2, 4, 2}), LvVec3f(1, 2, 1));
    EXPECT_EQ(matrix.transformPoint({2, 4, 0}), LvVec3f(2, 4, 0));
}

} // namespace
