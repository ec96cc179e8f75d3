// SPDX-License-Identifier: MIT
#include "tests/platform/lumora/gl/GLTest.h"

namespace {

class LuOffscreenRendererTest : public GLTest {};

// A surface lit straight from the eye has its diffuse colour, and 10 of 255 from the light that is
// everywhere.

TEST_F(LuOffscreenRendererTest, cubeSeenFromTheFront_coversWhatItMeasures) {
    const LuPicture picture = draw("Material { diffuseColor 1 0 0 } Cube { width 40 height 20 depth 10 }");
    EXPECT_EQ(colorAt(picture, 0, 0), "255 10 10");
    EXPECT_EQ(colorAt(picture, 19, 9), "255 10 10");
    EXPECT_EQ(colorAt(picture, 20, 9), "0 0 0");
    EXPECT_EQ(colorAt(picture, -20, -10), "255 10 10");
    EXPECT_EQ(colorAt(picture, -21, -10), "0 0 0");
    EXPECT_EQ(colorAt(picture, 0, 10), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, picture_isOpaqueEverywhere) {
    const LuPicture picture = draw("Material { transparency 0.5 } Sphere { radius 30 }");
    for (const LuPicture::Pixel& pixel : picture.getPixels())
        ASSERT_EQ(pixel.alpha, 255);
}

TEST_F(LuOffscreenRendererTest, slantedEdge_isSmooth) {
    const LuPicture picture = draw("Rotation { rotation 0 0 0.1 0.995 } Material { diffuseColor 1 1 1 }"
                                   " Cube { width 50 height 50 depth 1 }");
    EXPECT_GT(countShades(picture), 100);
}

TEST_F(LuOffscreenRendererTest, nearerShape_hidesTheFarther) {
    const LuPicture picture = draw("Material { diffuseColor 1 0 0 } Cube { width 40 height 40 depth 40 }"
                                   " Material { diffuseColor 0 1 0 } Cube { width 20 height 20 depth 10 }");
    EXPECT_EQ(colorAt(picture, 0, 0), "255 10 10");
}

TEST_F(LuOffscreenRendererTest, sphere_darkensTowardsItsEdge) {
    const LuPicture picture = draw("Material { diffuseColor 1 1 1 } Sphere { radius 40 }");
    EXPECT_GE(at(picture, 0, 0).red, 254);
    EXPECT_NEAR(at(picture, 28, 0).red, 10 + 0.7 * 255, 8);
    EXPECT_EQ(colorAt(picture, 42, 0), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, unevenScale_keepsNormalsUpright) {
    // Flattened, the ball faces the eye nearly everywhere.
    const LuPicture picture =
        draw("Material { diffuseColor 1 1 1 } Scale { scaleFactor 1 1 0.01 } Sphere { radius 40 }");
    EXPECT_GE(at(picture, 28, 0).red, 250);
}

TEST_F(LuOffscreenRendererTest, mirroringScale_keepsTheFrontTowardsTheEye) {
    const LuPicture picture =
        draw("Material { diffuseColor 1 1 1 transparency 0.5 } Scale { scaleFactor -1 1 1 }"
             " Cube { width 40 height 40 depth 40 }");
    // A transparent cube shows its front once, and not its inside.
    EXPECT_NEAR(at(picture, 0, 0).red, 128, 2);
}

TEST_F(LuOffscreenRendererTest, scaleOfNothing_showsNothing) {
    EXPECT_TRUE(isBlack(draw("Scale { scaleFactor 0 0 0 } Cube { } Sphere { } Text3 { string \"W\" }")));
    EXPECT_TRUE(isBlack(draw("Scale { scaleFactor 0 1 1 } Cube { width 40 height 40 depth 40 }")));
}

TEST_F(LuOffscreenRendererTest, flattenedCube_isAFace) {
    const LuPicture picture = draw("Scale { scaleFactor 1 1 0 } Material { diffuseColor 0 0 1 }"
                                   " Cube { width 40 height 40 depth 40 }");
    EXPECT_EQ(colorAt(picture, 0, 0), "10 10 255");
}

TEST_F(LuOffscreenRendererTest, numbersBeyondAllMeasure_showNothing) {
    EXPECT_TRUE(isBlack(draw("Scale { scaleFactor 1e38 1e38 1e38 } Scale { scaleFactor 1e38 1e38 1e38 }"
                             " Cube { }")));
}

TEST_F(LuOffscreenRendererTest, emptyScene_isTheBackground) {
    m_renderer.setBackground({0, 0, 1});
    const LuPicture picture = draw("Separator { }");
    EXPECT_EQ(colorAt(picture, 0, 0), "0 0 255");
    EXPECT_EQ(colorAt(draw(static_cast<LuNode*>(nullptr)), 0, 0), "0 0 255");
}

TEST_F(LuOffscreenRendererTest, material_reachesWhatComesAfterItWithinItsSeparator) {
    const LuPicture picture =
        draw("Material { diffuseColor 1 0 0 }"
             "Separator { Material { diffuseColor 0 1 0 } Translation { translation -30 0 0 } "
             " Cube { width 20 height 20 depth 20 } }"
             "Group { Translation { translation 30 0 0 } }"
             "Cube { width 20 height 20 depth 20 }");
    EXPECT_EQ(colorAt(picture, -30, 0), "10 255 10");
    EXPECT_EQ(colorAt(picture, 30, 0), "255 10 10");
    EXPECT_EQ(colorAt(picture, 0, 0), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, baseColor_changesTheDiffuseColorAlone) {
    const LuPicture picture = draw("Material { diffuseColor 1 1 1 emissiveColor 0 0 0.5 ambientColor 0 0 0 }"
                                   "BaseColor { rgb 0 0 0 } Cube { width 20 height 20 depth 20 }");
    EXPECT_EQ(colorAt(picture, 0, 0), "0 0 128");
}

TEST_F(LuOffscreenRendererTest, emissiveColor_showsWithoutLights) {
    m_renderer.setHeadlight(0);
    const LuPicture picture =
        draw("Material { diffuseColor 1 1 1 ambientColor 0 0 0 emissiveColor 0.5 0.5 0.5 }"
             " Cube { width 20 height 20 depth 20 }");
    EXPECT_EQ(colorAt(picture, 0, 0), "128 128 128");
}

TEST_F(LuOffscreenRendererTest, ignoredField_isNotTaken) {
    LuSeparator* const scene = read("Material { diffuseColor 1 0 0 } DEF M Material { diffuseColor 0 1 0 }"
                                    " Cube { width 20 height 20 depth 20 }");
    scene->getChild(1)->getField("diffuseColor")->setIgnored(true);
    EXPECT_EQ(colorAt(draw(scene), 0, 0), "255 10 10");
}

TEST_F(LuOffscreenRendererTest, specularColor_glitters) {
    const LuPicture picture = draw("Material { diffuseColor 0 0 0 ambientColor 0 0 0 specularColor 1 1 1"
                                   " shininess 0.5 } Sphere { radius 40 }");
    EXPECT_GE(at(picture, 0, 0).red, 250);
    EXPECT_LE(at(picture, 28, 0).red, 20);
}

TEST_F(LuOffscreenRendererTest, switch_showsWhatItSays) {
    LuSeparator* const scene =
        read("Material { diffuseColor 1 1 1 } Switch {"
             " Group { Translation { translation -20 0 0 } Cube { width 20 height 20 depth 20 } }"
             " Group { Translation { translation 20 0 0 } Cube { width 20 height 20 depth 20 } } }");
    auto* const choice = static_cast<LuSwitch*>(scene->getChild(1));
    EXPECT_TRUE(isBlack(draw(scene)));
    choice->whichChild.setValue(0);
    EXPECT_EQ(colorAt(draw(scene), -20, 0), "255 255 255");
    choice->whichChild.setValue(1);
    LuPicture picture = draw(scene);
    EXPECT_EQ(colorAt(picture, -20, 0), "0 0 0");
    EXPECT_EQ(colorAt(picture, 20, 0), "255 255 255");
    choice->whichChild.setValue(LuSwitch::SHOW_ALL);
    picture = draw(scene);
    EXPECT_EQ(colorAt(picture, -20, 0), "255 255 255");
    EXPECT_EQ(colorAt(picture, 0, 0), "255 255 255");
    choice->whichChild.setValue(7);
    EXPECT_TRUE(isBlack(draw(scene)));
}

TEST_F(LuOffscreenRendererTest, clipPlane_cutsTheSideItsNormalPointsAwayFrom) {
    const LuPicture picture =
        draw("Material { diffuseColor 1 1 1 }"
             "Separator { ClipPlane { plane 1 0 0 5 } Cube { width 40 height 40 depth 1 } }"
             "Translation { translation 0 -30 0 } Cube { width 40 height 10 depth 1 }");
    EXPECT_EQ(colorAt(picture, 6, 0), "255 255 255");
    EXPECT_EQ(colorAt(picture, 4, 0), "0 0 0");
    // Behind the separator there is no plane.
    EXPECT_EQ(colorAt(picture, -10, -30), "255 255 255");
}

TEST_F(LuOffscreenRendererTest, clipPlanes_cutTogether) {
    const LuPicture picture = draw("Material { diffuseColor 1 1 1 } Translation { translation 10 0 0 }"
                                   "ClipPlane { plane 1 0 0 0 } Scale { scaleFactor 2 2 2 }"
                                   "ClipPlane { plane 0 1 0 -5 } ClipPlane { on FALSE plane 0 -1 0 0 }"
                                   "Cube { width 20 height 20 depth 1 }");
    EXPECT_EQ(colorAt(picture, 12, 0), "255 255 255");
    EXPECT_EQ(colorAt(picture, 8, 0), "0 0 0");
    EXPECT_EQ(colorAt(picture, 12, -9), "255 255 255");
    EXPECT_EQ(colorAt(picture, 12, -12), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, slantedClipPlane_givesASmoothEdge) {
    const LuPicture picture = draw("Material { diffuseColor 1 1 1 } ClipPlane { plane 1 0.3 0 0 }"
                                   " Cube { width 80 height 80 depth 1 }");
    EXPECT_GT(countShades(picture), 40);
}

TEST_F(LuOffscreenRendererTest, movedClipPlane_cutsAtItsNewPlace) {
    LuSeparator* const scene = read("Translation { } Separator { Material { diffuseColor 1 1 1 }"
                                    " ClipPlane { plane 1 0 0 0 } Cube { width 40 height 40 depth 1 } }");
    EXPECT_EQ(colorAt(draw(scene), 5, 0), "255 255 255");
    scene->getChild(0)->set("translation 20 0 0");
    const LuPicture picture = draw(scene);
    EXPECT_EQ(colorAt(picture, 5, 0), "0 0 0");
    EXPECT_EQ(colorAt(picture, 25, 0), "255 255 255");
}

TEST_F(LuOffscreenRendererTest, transparentShapes_areDrawnFromTheBack) {
    // Whatever their order in the scene: blue behind, green half over it, red half over both.
    const char* const shapes[] = {
        "Separator { Material { diffuseColor 0 0 1 ambientColor 0 0 0 } Translation { translation 0 0 -20 }"
        " Cube { width 40 height 40 depth 1 } }",
        "Separator { Material { diffuseColor 0 1 0 ambientColor 0 0 0 transparency 0.5 }"
        " Cube { width 40 height 40 depth 1 } }",
        "Separator { Material { diffuseColor 1 0 0 ambientColor 0 0 0 transparency 0.5 }"
        " Translation { translation 0 0 20 } Sphere { radius 20 } }"};
    for (const auto& order : {std::array{0, 1, 2}, std::array{2, 1, 0}, std::array{1, 2, 0}}) {
        std::string text;
        for (const int number : order)
            text += shapes[number];
        const LuPicture::Pixel pixel = at(draw(text), 0, 0);
        EXPECT_NEAR(pixel.red, 128, 2);
        EXPECT_NEAR(pixel.green, 64, 2);
        EXPECT_NEAR(pixel.blue, 64, 2);
    }
}

TEST_F(LuOffscreenRendererTest, transparentShapeThatMoves_isSortedAgain) {
    LuSeparator* const scene = read("Separator { Material { diffuseColor 0 1 0 ambientColor 0 0 0 "
                                    "transparency 0.5 } Cube { width 40 height 40 depth 1 } }"
                                    "Separator { Translation { translation 0 0 5 } Material { diffuseColor 1 "
                                    "0 0 ambientColor 0 0 0 transparency 0.5 }"
                                    " Cube { width 40 height 40 depth 1 } }");
    EXPECT_GT(at(draw(scene), 0, 0).red, at(draw(scene), 0, 0).green);
    static_cast<LuGroup*>(scene->getChild(1))->getChild(0)->set("translation 0 0 -5");
    const LuPicture picture = draw(scene);
    EXPECT_LT(at(picture, 0, 0).red, at(picture, 0, 0).green);
}

TEST_F(LuOffscreenRendererTest, faceSet_isLitOnBothSides) {
    const LuPicture picture =
        draw("Material { diffuseColor 1 1 1 } Coordinate3 { point ["
             " -40 -10 0, -20 -10 0, -20 10 0, -40 10 0,"
             " 40 -10 0, 20 -10 0, 20 10 0, 40 10 0 ] } FaceSet { numVertices [ 4, 4 ] }");
    EXPECT_EQ(colorAt(picture, -30, 0), "255 255 255");
    EXPECT_EQ(colorAt(picture, 30, 0), "255 255 255");
    EXPECT_EQ(colorAt(picture, 0, 0), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, concaveFace_staysOpenWhereItIs) {
    // A U, open at the top.
    const LuPicture picture = draw(
        "Material { diffuseColor 1 1 1 } Coordinate3 { point [ -30 -30 0, 30 -30 0, 30 30 0, 10 30 0,"
        " 10 -10 0, -10 -10 0, -10 30 0, -30 30 0 ] } IndexedFaceSet { coordIndex [ 0 1 2 3 4 5 6 7 -1 ] }");
    EXPECT_EQ(colorAt(picture, 0, 10), "0 0 0");
    EXPECT_EQ(colorAt(picture, 0, -20), "255 255 255");
    EXPECT_EQ(colorAt(picture, 20, 20), "255 255 255");
}

TEST_F(LuOffscreenRendererTest, changedCoordinates_changeFacesInSeparatorsAfterThem) {
    LuSeparator* const scene =
        read("Material { diffuseColor 1 1 1 } Coordinate3 { point [ 0 0 0, 20 0 0, 20 20 0, 0 20 0 ] }"
             " Separator { FaceSet { numVertices 4 } }");
    EXPECT_EQ(colorAt(draw(scene), 10, 10), "255 255 255");
    scene->getChild(1)->set("point [ 0 0 0, -20 0 0, -20 -20 0, 0 -20 0 ]");
    const LuPicture picture = draw(scene);
    EXPECT_EQ(colorAt(picture, 10, 10), "0 0 0");
    EXPECT_EQ(colorAt(picture, -10, -10), "255 255 255");
}

TEST_F(LuOffscreenRendererTest, directionalLight_lightsWhatFacesIt) {
    m_renderer.setHeadlight(0);
    const LuPicture picture = draw("Material { diffuseColor 1 1 1 ambientColor 0 0 0 }"
                                   "DirectionalLight { direction -1 0 0 color 1 0 0 } Sphere { radius 40 }");
    EXPECT_GE(at(picture, 37, 0).red, 200);
    EXPECT_EQ(at(picture, 37, 0).green, 0);
    EXPECT_EQ(colorAt(picture, -30, 0), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, light_staysInItsSeparatorAndTurnsWithItsSpace) {
    m_renderer.setHeadlight(0);
    const LuPicture picture =
        draw("Material { diffuseColor 1 1 1 ambientColor 0 0 0 }"
             "Separator { Rotation { rotation 0 1 0 0 } DirectionalLight { direction 0 0 1 intensity 0.5 }"
             " Translation { translation 30 0 0 } Cube { width 20 height 20 depth 20 } }"
             "Translation { translation 30 0 0 } Cube { width 20 height 20 depth 20 }");
    // Half a turn about y takes the cube to the left, and the light towards its face.
    EXPECT_EQ(colorAt(picture, -30, 0), "128 128 128");
    EXPECT_EQ(colorAt(picture, 30, 0), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, pointLight_shinesToAllSides) {
    m_renderer.setHeadlight(0);
    const LuPicture picture = draw("Material { diffuseColor 1 1 1 ambientColor 0 0 0 }"
                                   "PointLight { location 0 0 20 } Cube { width 80 height 80 depth 2 }");
    EXPECT_GE(at(picture, 0, 0).red, 250);
    // 35 to the side of a light 19 above.
    EXPECT_NEAR(at(picture, 35, 0).red, 255 * 19 / 39.8, 6);
    EXPECT_NEAR(at(picture, -35, 0).red, 255 * 19 / 39.8, 6);
}

TEST_F(LuOffscreenRendererTest, lightThatIsOff_lightsNothing) {
    m_renderer.setHeadlight(0);
    EXPECT_TRUE(
        isBlack(draw("Material { ambientColor 0 0 0 } DirectionalLight { on FALSE } PointLight { on FALSE }"
                     " Cube { width 40 height 40 depth 2 }")));
}

TEST_F(LuOffscreenRendererTest, cameraOfTheScene_isLookedThrough) {
    LuSeparator* const scene = read("OrthographicCamera { position 100 0 10 height 20 farDistance 20 }"
                                    " Material { diffuseColor 1 1 1 } Translation { translation 100 0 0 } "
                                    "Cube { width 10 height 10 depth 1 }");
    m_renderer.setSize(100, 100);
    m_renderer.lookByCamera();
    LuPicture picture;
    ASSERT_TRUE(m_renderer.render(scene, picture));
    EXPECT_EQ(colorAt(picture, 24, 24), "255 255 255");
    EXPECT_EQ(colorAt(picture, 26, 0), "0 0 0");
    scene->getChild(0)->set("height 40");
    ASSERT_TRUE(m_renderer.render(scene, picture));
    EXPECT_EQ(colorAt(picture, 11, 11), "255 255 255");
    EXPECT_EQ(colorAt(picture, 14, 0), "0 0 0");
}

TEST_F(LuOffscreenRendererTest, otherSize_givesAnotherPicture) {
    LuSeparator* const scene = read("Cube { width 1000 height 1000 }");
    LuPicture picture;
    for (const int size : {7, 300, 20}) {
        m_renderer.setSize(size, size * 2);
        ASSERT_TRUE(m_renderer.render(scene, picture));
        EXPECT_EQ(picture.getWidth(), size);
        EXPECT_EQ(picture.getHeight(), size * 2);
    }
}

TEST_F(LuOffscreenRendererTest, impossibleSize_isReported) {
    LuPicture picture;
    m_renderer.setSize(0, 10);
    expectMessage("LuGLFramebuffer::setSize", "There can't be a picture of 0 by 10 pixels.");
    EXPECT_FALSE(m_renderer.render(nullptr, picture));
    EXPECT_TRUE(picture.isEmpty());
    m_renderer.setSize(10, 1 << 24);
    expectMessage("LuGLFramebuffer::setSize", "There can't be a picture of 10 by 16777216 pixels.");
    EXPECT_FALSE(m_renderer.render(nullptr, picture));
    m_renderer.setSize(10, 10);
    EXPECT_TRUE(m_renderer.render(nullptr, picture));
}

TEST_F(LuOffscreenRendererTest, systemWithoutOpenGL_isReported) {
    LuOffscreenRenderer renderer(nullptr);
    LuPicture picture(3, 3);
    expectMessage("LuOffscreenRenderer::render", "There is no picture: this system has no OpenGL.");
    EXPECT_FALSE(renderer.render(read("Cube { }"), picture));
    EXPECT_TRUE(picture.isEmpty());
    renderer.finish();
}

TEST_F(LuOffscreenRendererTest, versionThatThereIsNot_givesNoContext) {
    expectMessageContaining("LuGLContext::create", "no core context of version 9.9");
    EXPECT_EQ(LuGLContext::createCore(9, 9), nullptr);
}

TEST_F(LuOffscreenRendererTest, severalRenderers_doNotDisturbEachOther) {
    LuOffscreenRenderer other;
    other.setSize(100, 100);
    other.lookFromFront(-50, 50);
    LuPicture picture;
    ASSERT_TRUE(other.render(read("Material { diffuseColor 1 0 0 } Cube { width 40 height 40 }"), picture));
    EXPECT_EQ(colorAt(picture, 0, 0), "255 10 10");
    EXPECT_EQ(colorAt(draw("Material { diffuseColor 0 1 0 } Cube { width 40 height 40 }"), 0, 0),
              "10 255 10");
    EXPECT_EQ(other.readPicture().getPixels(), picture.getPixels());
}

} // namespace
