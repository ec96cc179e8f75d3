// SPDX-License-Identifier: MIT
// OpenGL ES draws the panels of the reference pictures too.
#include "tests/pictures/PanelPicture.h"
#include "tests/pictures/Reference.h"

namespace {

class EsPanelPictureTest : public PanelPicture {
protected:
    std::unique_ptr<LuGLContext> createContext() const override { return LuGLContext::createEs(); }
};

TEST_F(EsPanelPictureTest, panelOfTheDefaultSkin_looksAsInItsPicture) {
    EXPECT_EQ(compareWithReference(drawPanel(), "panel-default"), "");
}

TEST_F(EsPanelPictureTest, panelOfTheSlateSkin_looksAsInItsPicture) {
    LuPanelix::setSkin("slate");
    EXPECT_EQ(compareWithReference(drawPanel(), "panel-slate"), "");
}

} // namespace
