// SPDX-License-Identifier: MIT
// Scenes are drawn by OpenGL ES 3.0 as by OpenGL 3.3 core.
#include "tests/pictures/Reference.h"
#include "tests/platform/lumora/gl/GLTest.h"

// With the prototypes of exactly ES 3.0.
#include <GLES3/gl3.h>

#include "platform/lumora/gl/LuGLFunctions.h"

#define EGL_NO_X11
#include <EGL/egl.h>

#include <cstdlib>
#include <iostream>
#include <type_traits>

namespace {

// What is not in ES 3.0, or another function there, doesn't compile.
#define EXPECT_IN_ES(name, Type) static_assert(std::is_same_v<decltype(&gl##name), Type>);
LU_GL_FUNCTIONS(EXPECT_IN_ES)
#undef EXPECT_IN_ES

std::string getVersion(const LuGLContext& context) {
    return reinterpret_cast<const char*>(context.getFunctions().GetString(GL_VERSION));
}

class EsContextTest : public GLTest {
protected:
    /// A picture of 200 by 200 pixels in which OpenGL found no fault.
    LuPicture drawBy(std::unique_ptr<LuGLContext> context, LuNode* scene, float headlight) {
        LuOffscreenRenderer renderer(std::move(context));
        renderer.setSize(200, 200);
        renderer.setHeadlight(headlight);
        LuPicture picture;
        EXPECT_TRUE(renderer.render(scene, picture));
        const auto getError = reinterpret_cast<PFNGLGETERRORPROC>(eglGetProcAddress("glGetError"));
        EXPECT_EQ(getError(), static_cast<GLenum>(GL_NO_ERROR));
        return picture;
    }

    void expectAsByCore(const std::string& text, float headlight, const std::string& name) {
        LuSeparator* const scene =
            read("PerspectiveCamera { position 0 0 100 nearDistance 1 farDistance 300 }" + text);
        const LuPicture core = drawBy(LuGLContext::createCore(), scene, headlight);
        const auto lit =
            std::count_if(core.getPixels().begin(), core.getPixels().end(),
                          [](const LuPicture::Pixel& pixel) { return pixel != LuPicture::Pixel(); });
        EXPECT_GT(lit, 1000);
        expectLikePicture(drawBy(LuGLContext::createEs(), scene, headlight), core, name);
    }
};

TEST_F(EsContextTest, context_isOfEs) {
    const std::unique_ptr<LuGLContext> context = LuGLContext::createEs();
    ASSERT_TRUE(context);
    EXPECT_EQ(getVersion(*context).substr(0, 12), "OpenGL ES 3.");
}

TEST_F(EsContextTest, systemWithOpenGL_isDrawnWithByThat) {
    const std::unique_ptr<LuGLContext> context = LuGLContext::create();
    ASSERT_TRUE(context);
    EXPECT_NE(getVersion(*context).substr(0, 9), "OpenGL ES");
}

TEST_F(EsContextTest, versionThatThereIsNot_givesNoContext) {
    expectMessageContaining("LuGLContext::create", "no ES context of version 9.9");
    EXPECT_EQ(LuGLContext::createEs(9, 9), nullptr);
}

TEST_F(EsContextTest, materialsAndLights_lookAsByCore) {
    const char* const text = R"(
Separator {
    Translation { translation -18 15 0 }
    DirectionalLight { direction -1 -1 -1 color 1 0.5 0 }
    Material { diffuseColor 1 1 1 specularColor 1 1 1 shininess 0.4 }
    Sphere { radius 12 }
}
Separator {
    Translation { translation 18 15 0 }
    PointLight { location 0 0 20 color 0 1 1 }
    Material { diffuseColor 1 0 0 }
    BaseColor { rgb 1 1 0.5 }
    Sphere { radius 12 }
}
Separator {
    Translation { translation -18 -15 0 }
    Material { emissiveColor 0 0.4 0.1 }
    Cube { width 20 height 20 depth 20 }
}
Separator { Translation { translation 22 -15 0 } DirectionalLight { } Cube { width 8 height 18 depth 8 } }
Separator {
    Translation { translation 14 -15 10 }
    Material { diffuseColor 0 0 1 emissiveColor 0.2 0 0 transparency 0.4 }
    Cone { bottomRadius 8 height 18 }
})";
    expectAsByCore(text, 0.3F, "es-materials");
}

TEST_F(EsContextTest, clipPlanes_lookAsByCore) {
    const char* const text = R"(
Separator {
    Translation { translation -15 0 0 }
    ClipPlane { plane 1 0.3 0 0 }
    ClipPlane { plane 0.2 -1 0 -8 }
    Sphere { radius 20 }
}
Separator {
    Translation { translation 10 0 0 }
    Rotation { rotation 0.48 0.36 0 0.8 }
    ClipPlane { plane -1 0 1 0 }
    Cube { width 20 height 30 depth 20 }
})";
    expectAsByCore(text, 1, "es-clip-planes");
}

TEST_F(EsContextTest, manyBoxesAndTexts_lookAsByCore) {
    std::string text = "Translation { translation -35 -30 -40 } DEF Box Cube { width 5 height 5 depth 5 }";
    for (int i = 0; i < 60; ++i) {
        text += "Material { diffuseColor 0." + std::to_string(i % 3) + " 0." + std::to_string(i % 7) + " 1 }";
        text += i % 10 == 9 ? "Translation { translation -63 10 1 }" : "Translation { translation 7 0 1 }";
        text += "USE Box ";
    }
    text += R"(
Translation { translation 20 -50 10 }
Material { diffuseColor 1 1 1 }
Font { size 10 }
Text3 { string [ "Sage &", "Onions" ] parts ALL })";
    expectAsByCore(text, 1, "es-boxes");
}

TEST_F(EsContextTest, facesAndTheirHoles_lookAsByCore) {
    const char* const text = R"(
Rotation { rotation 0 0.28 0 0.96 }
Coordinate3 {
    point [ -30 -30 0, 30 -30 0, 30 30 0, 10 30 0, 10 -10 0, -10 -10 0, -10 30 0, -30 30 0 ]
}
IndexedFaceSet { coordIndex [ 0 1 2 3 4 5 6 7 -1 ] })";
    expectAsByCore(text, 1, "es-faces");
}

/// In a process that finds no OpenGL 3.3; 0 when it draws.
int drawWithoutCore() {
    setenv("MESA_GL_VERSION_OVERRIDE", "2.1", 1);
    LuDB::init();
    std::unique_ptr<LuGLContext> context = LuGLContext::create();
    if (!context)
        return 1;
    std::cerr << getVersion(*context) << '\n';
    LuOffscreenRenderer renderer(std::move(context));
    LuPicture picture;
    return renderer.render(nullptr, picture) && !picture.isEmpty() ? 0 : 2;
}

TEST(EsContextFallBackTest, systemWithoutCore_isDrawnWithByEs) {
    // EGL reads its settings once in a process.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(drawWithoutCore()), testing::ExitedWithCode(0), "OpenGL ES 3.");
}

} // namespace
