// SPDX-License-Identifier: MIT
#include "tests/platform/lumora/gl/GLTest.h"

namespace {

class LuOffscreenRendererTest : public GLTest {};

TEST_F(LuOffscreenRendererTest, firstPicture) {
    const LuPicture picture =
        draw("Material { diffuseColor 1 0 0 } Translation { translation -20 0 0 } Cube { width 40 height 40 "
             "depth 40 }"
             " Material { diffuseColor 0 1 0 specularColor 1 1 1 } Translation { translation 45 20 0 } "
             "Sphere { radius 15 } Translation { translation 0 -40 0 } Cone { bottomRadius 15 height 40 }"
             "Material { diffuseColor 1 1 1 } Translation { translation -70 0 30 } Font { size 22 } Text3 { "
             "string [\"Hello\" \"gyoW@\"] }");
    picture.writePng("/tmp/pics/first.png");
    EXPECT_EQ(colorAt(picture, -20, 0), "255 10 10");
}

} // namespace
