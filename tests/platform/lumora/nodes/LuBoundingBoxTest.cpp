// SPDX-License-Identifier: MIT
#include "platform/fonts/LuFontFace.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/host/ToolkitTest.h"

#include <cmath>
#include <numbers>

namespace {

using BoundingBoxTest = ToolkitTest;

LvBox3f measure(LuNode* node) {
    LuGetBoundingBoxAction action;
    action.apply(node);
    return action.getBoundingBox();
}

void expectBox(const LvBox3f& box, const LvVec3f& min, const LvVec3f& max) {
    for (int axis = 0; axis < 3; ++axis) {
        EXPECT_NEAR(box.min[axis], min[axis], 1e-4) << "minimum, axis " << axis;
        EXPECT_NEAR(box.max[axis], max[axis], 1e-4) << "maximum, axis " << axis;
    }
}

TEST_F(BoundingBoxTest, EmptyGroupHasAnEmptyBox) {
    const Held<LuSeparator> root;
    EXPECT_TRUE(measure(root.get()).isEmpty());
}

TEST_F(BoundingBoxTest, CubeSphereAndConeAreCentred) {
    const Held<LuCube> cube;
    cube->width.setValue(4);
    expectBox(measure(cube.get()), {-2, -1, -1}, {2, 1, 1});
    const Held<LuSphere> sphere;
    sphere->radius.setValue(3);
    expectBox(measure(sphere.get()), {-3, -3, -3}, {3, 3, 3});
    const Held<LuCone> cone;
    cone->height.setValue(5);
    expectBox(measure(cone.get()), {-1, -2.5F, -1}, {1, 2.5F, 1});
}

TEST_F(BoundingBoxTest, TransformsApplyInOrder) {
    const Held<LuSeparator> root;
    auto* translation = new LuTranslation;
    auto* scale = new LuScale;
    translation->translation.setValue({10, 0, 0});
    scale->scaleFactor.setValue({2, 3, 4});
    root->addChild(translation);
    root->addChild(scale);
    root->addChild(new LuCube);
    expectBox(measure(root.get()), {8, -3, -4}, {12, 3, 4});
}

TEST_F(BoundingBoxTest, RotationGivesTheBoxOfTheTurnedCorners) {
    const Held<LuGroup> root;
    auto* rotation = new LuRotation;
    rotation->rotation.setValue(LvRotation(LvVec3f(0, 0, 1), std::numbers::pi_v<float> / 4));
    root->addChild(rotation);
    root->addChild(new LuCube);
    const float side = std::sqrt(2.0F);
    expectBox(measure(root.get()), {-side, -side, -1}, {side, side, 1});
}

TEST_F(BoundingBoxTest, TransformTurnsAboutItsCenter) {
    const Held<LuGroup> root;
    auto* transform = new LuTransform;
    transform->center.setValue({1, 0, 0});
    transform->scaleFactor.setValue({2, 1, 1});
    transform->translation.setValue({0, 5, 0});
    root->addChild(transform);
    root->addChild(new LuCube);
    expectBox(measure(root.get()), {-3, 4, -1}, {1, 6, 1});
}

TEST_F(BoundingBoxTest, TransformDoesWhatItsMatrixDoes) {
    struct {
        LvVec3f translation;
        LvRotation rotation;
        LvVec3f scale;
        LvRotation orientation;
        LvVec3f center;
    } const cases[] = {
        {{1, 2, 3}, {}, {1, 1, 1}, {}, {}},
        {{1, 2, 3}, {}, {2, -3, 0}, {}, {}},
        {{1, 2, 3}, {}, {2, -3, 0}, {}, {4, 5, 6}},
        {{1, 2, 3}, LvRotation({1, 1, 0}, 0.5F), {2, 3, 1}, {}, {}},
        {{1, 2, 3}, {}, {2, 3, 1}, LvRotation({0, 0, 1}, 0.5F), {}},
    };
    for (const auto& each : cases) {
        const Held<LuGroup> root;
        auto* first = new LuRotation;
        first->rotation.setValue(LvRotation(LvVec3f(0, 1, 1), 0.3F));
        auto* transform = new LuTransform;
        transform->translation.setValue(each.translation);
        transform->rotation.setValue(each.rotation);
        transform->scaleFactor.setValue(each.scale);
        transform->scaleOrientation.setValue(each.orientation);
        transform->center.setValue(each.center);
        root->addChild(first);
        root->addChild(transform);
        root->addChild(new LuCube);
        const LvBox3f box = measure(root.get());

        auto* matrix = new LuMatrixTransform;
        matrix->matrix.setValue(transform->getMatrix());
        root->replaceChild(transform, matrix);
        const LvBox3f expected = measure(root.get());
        expectBox(box, expected.min, expected.max);
    }
}

TEST_F(BoundingBoxTest, SeparatorKeepsItsStateToItself) {
    const Held<LuGroup> root;
    auto* separator = new LuSeparator;
    auto* translation = new LuTranslation;
    translation->translation.setValue({100, 0, 0});
    separator->addChild(translation);
    root->addChild(separator);
    root->addChild(new LuCube);
    expectBox(measure(root.get()), {-1, -1, -1}, {1, 1, 1});
}

TEST_F(BoundingBoxTest, GroupHandsItsStateOn) {
    const Held<LuSeparator> root;
    auto* group = new LuGroup;
    auto* translation = new LuTranslation;
    translation->translation.setValue({100, 0, 0});
    group->addChild(translation);
    root->addChild(group);
    root->addChild(new LuCube);
    expectBox(measure(root.get()), {99, -1, -1}, {101, 1, 1});
}

TEST_F(BoundingBoxTest, SwitchShowsOneAllOrNone) {
    const Held<LuSwitch> root;
    auto* large = new LuCube;
    large->width.setValue(10);
    root->addChild(new LuCube);
    root->addChild(large);
    EXPECT_TRUE(measure(root.get()).isEmpty());
    root->whichChild.setValue(0);
    expectBox(measure(root.get()), {-1, -1, -1}, {1, 1, 1});
    root->whichChild.setValue(1);
    expectBox(measure(root.get()), {-5, -1, -1}, {5, 1, 1});
    root->whichChild.setValue(LuSwitch::SHOW_ALL);
    expectBox(measure(root.get()), {-5, -1, -1}, {5, 1, 1});
    root->whichChild.setValue(7);
    EXPECT_TRUE(measure(root.get()).isEmpty());
}

TEST_F(BoundingBoxTest, CachedBoxFollowsChangesFarBelow) {
    const Held<LuSeparator> root;
    auto* inner = new LuSeparator;
    auto* cube = new LuCube;
    root->addChild(inner);
    inner->addChild(cube);
    expectBox(measure(root.get()), {-1, -1, -1}, {1, 1, 1});
    cube->width.setValue(6);
    expectBox(measure(root.get()), {-3, -1, -1}, {3, 1, 1});
    inner->removeAllChildren();
    EXPECT_TRUE(measure(root.get()).isEmpty());
}

TEST_F(BoundingBoxTest, CachedBoxFollowsChangesMadeWithNotificationOff) {
    const Held<LuSeparator> root;
    auto* cube = new LuCube;
    root->addChild(cube);
    measure(root.get());
    cube->enableNotify(false);
    cube->width.setValue(6);
    expectBox(measure(root.get()), {-3, -1, -1}, {3, 1, 1});
}

/// A shape that widens another one when its box is asked for, as a component does that builds itself then.
class WideningCube : public LuCube {
public:
    explicit WideningCube(LuCube* other) : m_other(other) {}
    void getBoundingBox(LuGetBoundingBoxAction* action) override {
        m_other->width.setValue(m_other->width.getValue() + 2);
        LuCube::getBoundingBox(action);
    }

private:
    LuCube* m_other;
};

TEST_F(BoundingBoxTest, ChangeDuringATraversalIsSeenByTheNext) {
    const Held<LuSeparator> root;
    auto* inner = new LuSeparator;
    auto* cube = new LuCube;
    inner->addChild(cube);
    root->addChild(inner);
    root->addChild(new WideningCube(cube));
    expectBox(measure(root.get()), {-1, -1, -1}, {1, 1, 1});
    expectBox(measure(root.get()), {-2, -1, -1}, {2, 1, 1});
    cube->height.setValue(8);
    expectBox(measure(root.get()), {-3, -4, -1}, {3, 4, 1});
}

TEST_F(BoundingBoxTest, ChangeThatNobodyCameByForIsNotLost) {
    const Held<LuSeparator> root;
    auto* hidden = new LuSwitch;
    auto* cube = new LuCube;
    hidden->addChild(cube);
    root->addChild(hidden);
    hidden->whichChild.setValue(-1);
    EXPECT_TRUE(measure(root.get()).isEmpty());
    cube->width.setValue(4);
    cube->width.setValue(6);
    hidden->whichChild.setValue(0);
    expectBox(measure(root.get()), {-3, -1, -1}, {3, 1, 1});
    cube->width.setValue(8);
    expectBox(measure(root.get()), {-4, -1, -1}, {4, 1, 1});
}

TEST_F(BoundingBoxTest, SharedSeparatorHasItsBoxInEachPlace) {
    const Held<LuSeparator> root;
    auto* shared = new LuSeparator;
    auto* translation = new LuTranslation;
    translation->translation.setValue({10, 0, 0});
    shared->addChild(new LuCube);
    root->addChild(shared);
    root->addChild(translation);
    root->addChild(shared);
    expectBox(measure(root.get()), {-1, -1, -1}, {11, 1, 1});
}

TEST_F(BoundingBoxTest, FaceSetsBoxOnlyThePointsTheyUse) {
    const Held<LuSeparator> root;
    auto* coordinates = new LuCoordinate3;
    coordinates->point.setValues({{0, 0, 0}, {1, 0, 0}, {1, 2, 0}, {50, 50, 50}});
    auto* faces = new LuFaceSet;
    faces->numVertices.setValue(3);
    root->addChild(coordinates);
    root->addChild(faces);
    expectBox(measure(root.get()), {0, 0, 0}, {1, 2, 0});
    faces->numVertices.setValue(-1);
    expectBox(measure(root.get()), {0, 0, 0}, {50, 50, 50});
    faces->startIndex.setValue(1);
    faces->numVertices.setValue(2147483647);
    expectBox(measure(root.get()), {1, 0, 0}, {50, 50, 50});
}

TEST_F(BoundingBoxTest, IndexedFaceSetLeavesOutIndicesWithoutAPoint) {
    const Held<LuSeparator> root;
    auto* coordinates = new LuCoordinate3;
    coordinates->point.setValues({{0, 0, 0}, {1, 0, 0}, {1, 2, 0}});
    auto* faces = new LuIndexedFaceSet;
    faces->coordIndex.setValues({0, 1, 2, -1, 99, -7});
    root->addChild(coordinates);
    root->addChild(faces);
    expectBox(measure(root.get()), {0, 0, 0}, {1, 2, 0});
}

TEST_F(BoundingBoxTest, InheritedCoordinatesAreNotCachedInTheSeparatorThatUsesThem) {
    const Held<LuSeparator> root;
    auto* coordinates = new LuCoordinate3;
    coordinates->point.setValues({{0, 0, 0}, {1, 1, 0}});
    auto* inner = new LuSeparator;
    auto* faces = new LuFaceSet;
    faces->numVertices.setValue(2);
    inner->addChild(faces);
    root->addChild(coordinates);
    root->addChild(inner);
    expectBox(measure(root.get()), {0, 0, 0}, {1, 1, 0});
    coordinates->point.setValues({{0, 0, 0}, {3, 3, 0}});
    expectBox(measure(root.get()), {0, 0, 0}, {3, 3, 0});
}

/// Counts how often its box is computed.
class CountedText : public LuText3 {
public:
    mutable int count = 0;
    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override {
        ++count;
        LuText3::computeBBox(state, box);
    }
};

TEST_F(BoundingBoxTest, TextBehindItsOwnFontIsCached) {
    const Held<LuSeparator> root;
    auto* inner = new LuSeparator;
    auto* text = new CountedText;
    text->string.setValue(LvString("x"));
    inner->addChild(new LuFont);
    inner->addChild(text);
    root->addChild(inner);
    const LvBox3f box = measure(root.get());
    EXPECT_EQ(measure(root.get()), box);
    EXPECT_EQ(text->count, 1);
}

TEST_F(BoundingBoxTest, TextWithAnInheritedFontIsCachedWhereTheFontIsSet) {
    const Held<LuSeparator> root;
    auto* inner = new LuSeparator;
    auto* text = new CountedText;
    auto* font = new LuFont;
    text->string.setValue(LvString("x"));
    inner->addChild(text);
    root->addChild(font);
    root->addChild(inner);
    const LvBox3f box = measure(root.get());
    EXPECT_EQ(measure(root.get()), box);
    EXPECT_EQ(text->count, 1);
    font->size.setValue(20);
    EXPECT_NEAR(measure(root.get()).getSize().x, box.getSize().x * 2, 1e-3);
}

class TextBoxTest : public ToolkitTest {
protected:
    TextBoxTest() {
        root->addChild(font);
        root->addChild(text);
        font->size.setValue(20);
    }
    const LuGlyphMetrics& glyph(char32_t character) {
        return LuFontFace::find("Tahoma")->getGlyphMetrics(character);
    }

    Held<LuSeparator> root;
    LuFont* font = new LuFont;
    LuText3* text = new LuText3;
};

TEST_F(TextBoxTest, NoTextHasAnEmptyBox) {
    EXPECT_TRUE(measure(root.get()).isEmpty());
    text->string.setValue(LvString("   "));
    EXPECT_TRUE(measure(root.get()).isEmpty());
}

TEST_F(TextBoxTest, BoxIsThatOfTheOutlines) {
    text->string.setValue(LvString("og"));
    const float second = glyph('o').advance;
    expectBox(measure(root.get()), {glyph('o').minX * 20, glyph('g').minY * 20, 0},
              {(second + glyph('g').maxX) * 20, std::max(glyph('o').maxY, glyph('g').maxY) * 20, 0});
}

TEST_F(TextBoxTest, FurtherLinesStandBelow) {
    text->string.setValues({"x", "x"});
    const LvBox3f box = measure(root.get());
    EXPECT_NEAR(box.min.y, (glyph('x').minY - 1) * 20, 1e-4);
    text->spacing.setValue(2);
    EXPECT_NEAR(measure(root.get()).min.y, (glyph('x').minY - 2) * 20, 1e-4);
}

TEST_F(TextBoxTest, JustificationMovesEachLine) {
    text->string.setValue(LvString("x"));
    const LvBox3f left = measure(root.get());
    text->justification.setValue(LuText3::RIGHT);
    EXPECT_NEAR(measure(root.get()).max.x, left.max.x - glyph('x').advance * 20, 1e-4);
    text->justification.setValue(LuText3::CENTER);
    EXPECT_NEAR(measure(root.get()).max.x, left.max.x - glyph('x').advance * 10, 1e-4);
}

TEST_F(TextBoxTest, SidesReachBack) {
    text->string.setValue(LvString("x"));
    text->parts.setValue(LuText3::ALL);
    EXPECT_EQ(measure(root.get()).min.z, -1);
    EXPECT_EQ(measure(root.get()).max.z, 0);
}

TEST_F(TextBoxTest, BoxFollowsTheInheritedFont) {
    text->string.setValue(LvString("x"));
    const float before = measure(root.get()).getSize().x;
    font->size.setValue(40);
    EXPECT_NEAR(measure(root.get()).getSize().x, before * 2, 1e-3);
}

} // namespace
