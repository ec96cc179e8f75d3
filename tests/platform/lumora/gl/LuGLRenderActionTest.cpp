// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuLights.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/platform/lumora/gl/GLTest.h"

#include <limits>

namespace {

/// The action keeps lists without OpenGL.
class LuGLRenderActionTest : public ToolkitTest {
protected:
    /// A part that is large enough to be kept by itself: a translation and as many cubes.
    static LuSeparator* makePart(int cubes = 30) {
        auto* const part = new LuSeparator;
        part->addChild(new LuTranslation);
        for (int i = 0; i < cubes; ++i)
            part->addChild(new LuCube);
        return part;
    }

    void apply() { m_action.apply(m_scene.get()); }
    int getRecords() { return static_cast<int>(m_action.getDrawList().records.getCount()); }
    int getPieces() {
        std::size_t count = 0;
        for (const LuPieceList& list : m_action.getDrawList().pieces)
            count += list.getSize();
        return static_cast<int>(count);
    }

    /// The x of the n-th cube's place in the world.
    float getPlace(int number) {
        LuDrawList& list = m_action.getDrawList();
        const LuPieceList& cubes = list.pieces[LuMeshStore::getSizeClass(36)];
        return list.records.get(cubes.getPieces()[static_cast<std::size_t>(number)].record)->w;
    }

    /// The first texel, the diffuse colour, of the n-th cube's material.
    LuTexel getMaterial(int number) {
        LuDrawList& list = m_action.getDrawList();
        const LuPieceList& cubes = list.pieces[LuMeshStore::getSizeClass(36)];
        const LuTexel* const record =
            list.records.get(cubes.getPieces()[static_cast<std::size_t>(number)].record);
        return list.materials.get(static_cast<std::uint32_t>(record[3].x))[0];
    }

    const LuGLRenderAction::Statistics& getStatistics() { return m_action.getStatistics(); }

    Held<LuSeparator> m_scene;
    LuGLRenderAction m_action;
};

TEST_F(LuGLRenderActionTest, nothingChanged_nothingIsTraversed) {
    m_scene->addChild(makePart());
    apply();
    EXPECT_GT(getStatistics().visitedNodes, 30);
    apply();
    EXPECT_EQ(getStatistics().visitedNodes, 0);
    EXPECT_EQ(getStatistics().collectedParts, 0);
    EXPECT_EQ(getRecords(), 30);
}

TEST_F(LuGLRenderActionTest, oneChange_collectsItsPartAndThoseAbove) {
    for (int i = 0; i < 10; ++i)
        m_scene->addChild(makePart());
    apply();
    static_cast<LuTranslation*>(static_cast<LuGroup*>(m_scene->getChild(3))->getChild(0))
        ->translation.setValue({7, 0, 0});
    apply();
    // The part, the scene, and what the action holds the scene in.
    EXPECT_LE(getStatistics().collectedParts, 3);
    EXPECT_EQ(getStatistics().keptParts, 9);
    EXPECT_EQ(getStatistics().visitedNodes, 2 + 10 + 31);
    EXPECT_EQ(getPlace(3 * 30), 7);
    EXPECT_EQ(getPlace(0), 0);
}

TEST_F(LuGLRenderActionTest, movedPart_keepsWhatIsBelow) {
    auto* const place = new LuTranslation;
    m_scene->addChild(place);
    m_scene->addChild(makePart());
    m_scene->addChild(makePart());
    apply();
    place->translation.setValue({5, 0, 0});
    apply();
    EXPECT_EQ(getStatistics().movedParts, 2);
    EXPECT_LT(getStatistics().visitedNodes, 10);
    EXPECT_EQ(getPlace(0), 5);
    EXPECT_EQ(getPlace(59), 5);
}

TEST_F(LuGLRenderActionTest, changedMaterialInFront_reachesPartsAfterIt) {
    auto* const material = new LuMaterial;
    m_scene->addChild(material);
    m_scene->addChild(makePart());
    apply();
    EXPECT_EQ(m_action.getDrawList().materials.getTable().getCount(), 1U);
    material->diffuseColor.setValue({1, 0, 0});
    apply();
    EXPECT_EQ(getStatistics().keptParts, 0);
    EXPECT_EQ(m_action.getDrawList().materials.getTable().getCount(), 1U);
    EXPECT_EQ(getMaterial(0).y, 0);
}

TEST_F(LuGLRenderActionTest, removedPart_freesItsSlots) {
    m_scene->addChild(makePart(30));
    m_scene->addChild(makePart(40));
    m_scene->addChild(makePart(5));
    apply();
    EXPECT_EQ(getRecords(), 75);
    EXPECT_EQ(getPieces(), 75);
    m_scene->removeChild(0);
    apply();
    EXPECT_EQ(getRecords(), 45);
    EXPECT_EQ(getPieces(), 45);
    m_scene->removeAllChildren();
    apply();
    EXPECT_EQ(getRecords(), 0);
    EXPECT_EQ(getPieces(), 0);
    EXPECT_EQ(m_action.getDrawList().materials.getTable().getCount(), 0U);
}

TEST_F(LuGLRenderActionTest, slotsOfWhatWent_areUsedAgain) {
    m_scene->addChild(makePart(50));
    apply();
    const std::size_t texels = m_action.getDrawList().records.getTexels().size();
    for (int i = 0; i < 20; ++i) {
        m_scene->replaceChild(0, makePart(50));
        apply();
    }
    EXPECT_EQ(m_action.getDrawList().records.getTexels().size(), 2 * texels);
    EXPECT_EQ(getRecords(), 50);
}

TEST_F(LuGLRenderActionTest, sharedPart_hasItsOwnDrawsAtEachPlace) {
    LuSeparator* const shared = makePart();
    for (const float x : {1.0F, 2.0F, 3.0F}) {
        auto* const holder = new LuSeparator;
        auto* const place = new LuTranslation;
        place->translation.setValue({x, 0, 0});
        holder->addChild(place);
        holder->addChild(shared);
        m_scene->addChild(holder);
    }
    apply();
    EXPECT_EQ(getRecords(), 90);
    EXPECT_EQ(getPlace(0), 1);
    EXPECT_EQ(getPlace(89), 3);

    static_cast<LuTranslation*>(shared->getChild(0))->translation.setValue({10, 0, 0});
    apply();
    EXPECT_EQ(getRecords(), 90);
    EXPECT_EQ(getPlace(0), 11);
    EXPECT_EQ(getPlace(89), 13);

    m_scene->removeChild(1);
    apply();
    EXPECT_EQ(getRecords(), 60);
}

TEST_F(LuGLRenderActionTest, partTwiceInOneParent_isKeptTwice) {
    LuSeparator* const shared = makePart();
    auto* const between = new LuTranslation;
    between->translation.setValue({4, 0, 0});
    m_scene->addChild(shared);
    m_scene->addChild(between);
    m_scene->addChild(shared);
    apply();
    EXPECT_EQ(getPlace(0), 0);
    EXPECT_EQ(getPlace(59), 4);
    between->translation.setValue({6, 0, 0});
    apply();
    EXPECT_EQ(getStatistics().keptParts, 1);
    EXPECT_EQ(getStatistics().movedParts, 1);
    EXPECT_EQ(getPlace(0), 0);
    EXPECT_EQ(getPlace(59), 6);
}

TEST_F(LuGLRenderActionTest, childrenInAnotherOrder_areFoundAgain) {
    std::vector<LuSeparator*> parts;
    for (int i = 0; i < 12; ++i) {
        parts.push_back(makePart());
        m_scene->addChild(parts.back());
    }
    apply();
    LuSeparator* const last = parts.back();
    last->ref();
    m_scene->removeChild(last);
    m_scene->insertChild(last, 0);
    last->unref();
    apply();
    EXPECT_EQ(getStatistics().keptParts, 12);
    EXPECT_EQ(getRecords(), 12 * 30);
}

TEST_F(LuGLRenderActionTest, partThatGrowsAndShrinks_keepsTheRightDraws) {
    LuSeparator* const part = makePart(3);
    m_scene->addChild(part);
    m_scene->addChild(makePart());
    apply();
    EXPECT_EQ(getRecords(), 33);
    for (int i = 0; i < 40; ++i)
        part->addChild(new LuCube);
    apply();
    EXPECT_EQ(getRecords(), 73);
    while (part->getNumChildren() > 2)
        part->removeChild(2);
    apply();
    EXPECT_EQ(getRecords(), 31);
    EXPECT_EQ(getPieces(), 31);
}

TEST_F(LuGLRenderActionTest, nestedParts_passChangesThrough) {
    // Ten by ten by ten, as dialogs nest their groups.
    LuTranslation* place = nullptr;
    for (int i = 0; i < 10; ++i) {
        auto* const middle = new LuSeparator;
        for (int j = 0; j < 10; ++j) {
            LuSeparator* const part = makePart();
            if (i == 4 && j == 7)
                place = static_cast<LuTranslation*>(part->getChild(0));
            middle->addChild(part);
        }
        m_scene->addChild(middle);
    }
    apply();
    place->translation.setValue({1, 0, 0});
    apply();
    EXPECT_LT(getStatistics().visitedNodes, 80);
    EXPECT_EQ(getStatistics().keptParts, 18);
    EXPECT_EQ(getPlace((4 * 10 + 7) * 30), 1);
}

TEST_F(LuGLRenderActionTest, mutedNode_isCollectedAllTheSame) {
    LuSeparator* const part = makePart();
    m_scene->addChild(part);
    apply();
    part->enableNotify(false);
    static_cast<LuTranslation*>(part->getChild(0))->translation.setValue({2, 0, 0});
    part->enableNotify(true);
    apply();
    EXPECT_EQ(getPlace(0), 2);
}

TEST_F(LuGLRenderActionTest, otherScene_takesThePlaceOfTheFirst) {
    m_scene->addChild(makePart());
    apply();
    Held<LuCube> cube;
    m_action.apply(cube.get());
    EXPECT_EQ(getRecords(), 1);
    EXPECT_EQ(m_scene->getRefCount(), 1);
    m_action.apply(nullptr);
    EXPECT_EQ(getRecords(), 0);
    EXPECT_EQ(cube->getRefCount(), 1);
}

TEST_F(LuGLRenderActionTest, facesOfOneNode_haveOneMesh) {
    auto* const points = new LuCoordinate3;
    points->point.setValues({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    auto* const faces = new LuFaceSet;
    faces->numVertices.setValue(3);
    m_scene->addChild(points);
    m_scene->addChild(faces);
    m_scene->addChild(faces);
    apply();
    LuMeshStore& meshes = m_action.getDrawList().meshes;
    EXPECT_EQ(getRecords(), 2);
    EXPECT_EQ(meshes.getNumFaceMeshes(), 1);

    points->point.set1Value(0, {0, 0, 1});
    apply();
    EXPECT_EQ(meshes.getNumFaceMeshes(), 1);
    const std::size_t vertices = meshes.getVertices().size();
    for (int i = 0; i < 10; ++i) {
        points->point.set1Value(0, {0, 0, static_cast<float>(i)});
        apply();
    }
    EXPECT_EQ(meshes.getVertices().size(), vertices);
    m_scene->removeAllChildren();
    apply();
    EXPECT_EQ(meshes.getNumFaceMeshes(), 0);
}

TEST_F(LuGLRenderActionTest, hugeFaceSet_isCutIntoPieces) {
    auto* const points = new LuCoordinate3;
    points->point.setValues({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    auto* const faces = new LuIndexedFaceSet;
    std::vector<std::int32_t> indices;
    constexpr int COUNT = 30000;
    for (int i = 0; i < COUNT; ++i)
        indices.insert(indices.end(), {0, 1, 2, -1});
    faces->coordIndex.setValues(indices);
    m_scene->addChild(points);
    m_scene->addChild(faces);
    apply();
    EXPECT_EQ(getRecords(), 1);
    EXPECT_EQ(getPieces(), 2);
}

TEST_F(LuGLRenderActionTest, changedText_changesNothingButItsPieces) {
    auto* const text = new LuText3;
    text->string.setValue("Hello world");
    m_scene->addChild(makePart());
    m_scene->addChild(text);
    apply();
    EXPECT_EQ(getRecords(), 31);
    EXPECT_EQ(getPieces(), 30 + 10);
    text->string.setValue("Hi");
    apply();
    EXPECT_EQ(getRecords(), 31);
    EXPECT_EQ(getPieces(), 30 + 2);
    text->string.setValue("");
    apply();
    EXPECT_EQ(getRecords(), 30);
    EXPECT_EQ(getPieces(), 30);
}

TEST_F(LuGLRenderActionTest, manyClipPlanes_areFewerThanTheLimit) {
    for (int i = 0; i < 20; ++i) {
        auto* const plane = new LuClipPlane;
        plane->plane.setValue(LvPlane({1, 0, 0}, -static_cast<float>(i)));
        m_scene->addChild(plane);
    }
    m_scene->addChild(new LuCube);
    apply();
    EXPECT_EQ(getRecords(), 1);
    m_scene->removeAllChildren();
    apply();
    // The empty set stays.
    EXPECT_EQ(m_action.getDrawList().clipSets.getTable().getCount(), 1U);
}

TEST_F(LuGLRenderActionTest, lightInNestedParts_standsInTheWorld) {
    LuGroup* inner = m_scene.get();
    for (const float x : {1.0F, 10.0F, 100.0F}) {
        auto* const place = new LuTranslation;
        place->translation.setValue({x, 0, 0});
        inner->addChild(place);
        auto* const next = new LuSeparator;
        inner->addChild(next);
        inner = next;
    }
    auto* const light = new LuPointLight;
    light->location.setValue({0, 5, 0});
    inner->addChild(light);
    inner->addChild(new LuCube);
    apply();
    LuDrawList& list = m_action.getDrawList();
    const std::uint32_t record = list.pieces[LuMeshStore::getSizeClass(36)].getPieces()[0].record;
    const auto lights = list.lightSets.get(static_cast<std::uint32_t>(list.records.get(record)[3].z));
    EXPECT_EQ(lights[1].x, 111);
    EXPECT_EQ(lights[1].y, 5);
    EXPECT_EQ(getPlace(0), 111);

    static_cast<LuTranslation*>(m_scene->getChild(0))->translation.setValue({2, 0, 0});
    apply();
    const auto moved = list.lightSets.get(static_cast<std::uint32_t>(list.records.get(record)[3].z));
    EXPECT_EQ(moved[1].x, 112);
    EXPECT_EQ(getPlace(0), 112);
}

TEST_F(LuGLRenderActionTest, partBelowSmallOnes_isKeptAtItsPlace) {
    // The small ones are kept with the scene; what stands below them is kept by itself.
    auto* const outer = new LuSeparator;
    auto* const middle = new LuSeparator;
    auto* const place = new LuTranslation;
    place->translation.setValue({3, 0, 0});
    auto* const shift = new LuTranslation;
    shift->translation.setValue({20, 0, 0});
    outer->addChild(place);
    outer->addChild(middle);
    middle->addChild(shift);
    middle->addChild(makePart());
    m_scene->addChild(outer);
    m_scene->addChild(makePart());
    apply();
    EXPECT_EQ(getPlace(0), 23);
    place->translation.setValue({4, 0, 0});
    apply();
    EXPECT_EQ(getStatistics().movedParts, 1);
    EXPECT_EQ(getPlace(0), 24);
    EXPECT_EQ(getPlace(30), 0);
}

TEST_F(LuGLRenderActionTest, placeWithoutEnd_isDrawnAsAPoint) {
    const float endless = std::numeric_limits<float>::infinity();
    for (const float x : {endless, std::numeric_limits<float>::quiet_NaN(), 3e38F}) {
        auto* const part = new LuSeparator;
        auto* const place = new LuTranslation;
        place->translation.setValue({x, 0, 0});
        part->addChild(place);
        part->addChild(new LuCube);
        m_scene->addChild(part);
    }
    apply();
    EXPECT_EQ(getPlace(0), 0);
    EXPECT_EQ(getPlace(1), 0);
    EXPECT_EQ(getPlace(2), 3e38F);
}

TEST_F(LuGLRenderActionTest, sizeClasses_holdWhatTheyAreFor) {
    for (const std::uint32_t count : {1U, 6U, 7U, 36U, 37U, 1000U, 73728U}) {
        const int sizeClass = LuMeshStore::getSizeClass(count);
        EXPECT_GE(LuMeshStore::getClassSize(sizeClass), count);
        if (sizeClass > 0) {
            EXPECT_LT(LuMeshStore::getClassSize(sizeClass - 1), count);
        }
    }
    for (int i = 0; i < LuMeshStore::NUM_SIZE_CLASSES; ++i)
        EXPECT_EQ(LuMeshStore::getClassSize(i) % 3, 0U);
}

} // namespace
