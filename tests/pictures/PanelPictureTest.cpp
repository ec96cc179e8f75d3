// SPDX-License-Identifier: MIT
// How panels look: seen from the front as in the pictures of this folder, and close up.
#include "tests/pictures/PanelPicture.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "tests/pictures/Reference.h"

#include <algorithm>
#include <set>

namespace {

class PanelPictureTest : public PanelPicture {};

TEST_F(PanelPictureTest, panelOfTheDefaultSkin_looksAsInItsPicture) {
    expectLikeReference(drawPanel(), "panel-default");
}

TEST_F(PanelPictureTest, panelOfTheSlateSkin_looksAsInItsPicture) {
    LuPanelix::setSkin("slate");
    expectLikeReference(drawPanel(), "panel-slate");
}

TEST_F(PanelPictureTest, skinChangedWhileItIsShown_looksAsIfItHadAlwaysBeenThere) {
    auto* const dialog = read<LuTopLevelDialog>(getPanel());
    buildIn3D(dialog);
    static_cast<LuDialogPushButton*>(dialog->searchForAuditorId("pressed"))->change3DButtonState(1);
    LuOffscreenRenderer renderer(createContext());
    renderer.setSize(dialog->width.getValue(), dialog->height.getValue());
    renderer.setBackground({0.1F, 0.1F, 0.3F});
    renderer.lookFromFront(0, 0);
    for (const char* skin : {"default", "slate", "default"}) {
        LuPanelix::setSkin(skin);
        LuPicture picture;
        ASSERT_TRUE(renderer.render(dialog, picture));
        EXPECT_EQ(compareWithReference(picture, std::string("panel-") + skin), "");
    }
}

int getBrightness(const LuPicture::Pixel& pixel) { return (pixel.red + pixel.green + pixel.blue) / 3; }

TEST_F(PanelPictureTest, disabledButtonOfTheSlateSkin_isHatchedAndHardlyBrighter) {
    LuPanelix::setSkin("slate");
    const auto draw = [this](const std::string& enable) {
        const std::string text = "TopLevelDialog { width 160 height 60 RowDialog { enable " + enable +
                                 " DialogPushButton { labelVisibility FALSE buttonLabel \"Sage\" } } }";
        return drawFromFront(read<LuTopLevelDialog>(text.c_str()));
    };
    const LuPicture enabled = draw("TRUE");
    const LuPicture disabled = draw("FALSE");
    ASSERT_EQ(enabled.getPixels().size(), disabled.getPixels().size());
    const LuPicture::Pixel face = enabled.at(20, 45);
    int numFace = 0, numSame = 0, numHatched = 0;
    for (std::size_t i = 0; i < enabled.getPixels().size(); ++i) {
        const int glow = getBrightness(disabled.getPixels()[i]) - getBrightness(enabled.getPixels()[i]);
        ASSERT_GE(glow, 0);
        // Also where the text is, which stays as readable.
        ASSERT_LT(glow, 30);
        if (enabled.getPixels()[i] != face)
            continue;
        ++numFace;
        numSame += glow == 0 ? 1 : 0;
        numHatched += glow > 10 ? 1 : 0;
    }
    ASSERT_GT(numFace, 1000);
    EXPECT_GT(numSame, numFace / 3);
    EXPECT_GT(numHatched, numFace / 3);
}

TEST_F(PanelPictureTest, minimisedPanel_looksAsInItsPicture) {
    auto* const dialog = read<LuTopLevelDialog>(getPanel());
    buildIn3D(dialog);
    dialog->minimized = true;
    LuPicture picture = drawFromFront(dialog);
    // The strip and a little below it.
    LuPicture strip(picture.getWidth(), 30);
    std::copy_n(picture.getPixels().begin(), strip.getPixels().size(), strip.getPixels().begin());
    expectLikeReference(strip, "panel-minimised");
}

TEST_F(PanelPictureTest, referenceOfAnotherPanel_isNotTakenForThisOne) {
    // What the comparison is worth: the two skins differ by more than it forgives.
    const LuPicture slate = readPng("tests/pictures/panel-slate.png");
    ASSERT_FALSE(slate.isEmpty());
    EXPECT_NE(compareWithReference(slate, "panel-default").find("pixels are not those of"),
              std::string::npos);
}

/// The levels of green that a picture has between the dark of a text and the light of what it stands on.
std::set<int> getMiddleLevels(const LuPicture& picture) {
    constexpr int DARK = 30, LIGHT = 100;
    std::set<int> levels;
    for (const LuPicture::Pixel& pixel : picture.getPixels()) {
        if (pixel.green > DARK && pixel.green < LIGHT)
            levels.insert(pixel.green);
    }
    return levels;
}

TEST_F(PanelPictureTest, tiltedTextCloseUp_hasSmoothOutlines) {
    const Held<LuSeparator> scene;
    auto* const camera = new LuPerspectiveCamera;
    scene->addChild(camera);
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { width 120 height 60 DialogPushButton { "
                                                "labelVisibility FALSE buttonLabel \"Sage\" } }");
    scene->addChild(dialog);
    buildIn3D(scene.get());
    // From below and from the left, a few units away from the text.
    camera->position.setValue({45, -60, 24});
    camera->pointAt({60, -39, 3});
    camera->nearDistance.setValue(1);
    camera->farDistance.setValue(500);
    const auto draw = [&](int samples) {
        LuOffscreenRenderer renderer;
        renderer.setSize(300, 300);
        renderer.setSamples(samples);
        LuPicture picture;
        EXPECT_TRUE(renderer.render(scene.get(), picture));
        return picture;
    };
    // With one sample a pixel is the text or what it stands on.
    EXPECT_EQ(getMiddleLevels(draw(1)).size(), 0U);
    EXPECT_GE(getMiddleLevels(draw(4)).size(), 3U);
}

} // namespace
