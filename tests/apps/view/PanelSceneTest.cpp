// SPDX-License-Identifier: MIT
// What panelix-view --scene shows.
#include "apps/view/PanelScene.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "tests/layout/DialogTest.h"
#include "tests/pictures/Reference.h"

#include <fstream>

namespace {

constexpr int WIDTH = 300;
constexpr int HEIGHT = 200;

class PanelSceneTest : public DialogTest {
protected:
    LuPicture draw(PanelScene& scene, const char* name) {
        const std::string path = getTestOutputFolder() + "/PanelSceneTest-" + name + ".png";
        EXPECT_TRUE(scene.writePicture(path));
        return readPng(path);
    }

    /// The columns and rows of what is neither the background nor what a frame's edge makes of it.
    struct Extent {
        int left = WIDTH, right = -1, top = HEIGHT, bottom = -1;
    };
    static Extent getExtent(const LuPicture& picture) {
        const LuPicture::Pixel background = picture.at(0, 0);
        Extent extent;
        for (int y = 0; y < picture.getHeight(); ++y) {
            for (int x = 0; x < picture.getWidth(); ++x) {
                if (picture.at(x, y) == background)
                    continue;
                extent.left = std::min(extent.left, x);
                extent.right = std::max(extent.right, x);
                extent.top = std::min(extent.top, y);
                extent.bottom = std::max(extent.bottom, y);
            }
        }
        return extent;
    }
};

TEST_F(PanelSceneTest, panelFromTheFront_standsInTheMiddleAPixelAUnit) {
    PanelScene scene({WIDTH, HEIGHT});
    scene.add(read<LuTopLevelDialog>("TopLevelDialog { width 120 height 80 DialogLabel { label \"A\" } }"));
    scene.look(PanelScene::FRONT);
    const LuPicture picture = draw(scene, "front");
    ASSERT_EQ(picture.getWidth(), WIDTH);
    ASSERT_EQ(picture.getHeight(), HEIGHT);
    const Extent extent = getExtent(picture);
    EXPECT_EQ(extent.right - extent.left + 1, 120);
    EXPECT_EQ(extent.bottom - extent.top + 1, 80);
    EXPECT_NEAR(extent.left, (WIDTH - 120) / 2, 1);
    EXPECT_NEAR(extent.top, (HEIGHT - 80) / 2, 1);
}

TEST_F(PanelSceneTest, tiltedPanel_fillsThePictureAndIsSeenWhole) {
    for (const char* size : {"width 120 height 80", "width 1000 height 200", "width 100 height 900"}) {
        PanelScene scene({WIDTH, HEIGHT});
        scene.add(read<LuTopLevelDialog>(
            (std::string("TopLevelDialog { ") + size + " DialogLabel { label \"A\" } }").c_str()));
        scene.look(PanelScene::TILTED);
        const Extent extent = getExtent(draw(scene, "tilted"));
        EXPECT_GT(extent.left, 0) << size;
        EXPECT_GT(extent.top, 0) << size;
        EXPECT_LT(extent.right, WIDTH - 1) << size;
        EXPECT_LT(extent.bottom, HEIGHT - 1) << size;
        EXPECT_TRUE(extent.right - extent.left > WIDTH / 2 || extent.bottom - extent.top > HEIGHT / 2)
            << size;
    }
}

TEST_F(PanelSceneTest, severalPanels_standSideBySideWithTheirTopsInLine) {
    PanelScene scene({WIDTH, HEIGHT});
    const Held<LuTopLevelDialog> first, second;
    first->width.setValue(100);
    first->height.setValue(50);
    second->width.setValue(120);
    second->height.setValue(90);
    scene.add(first.get());
    scene.add(second.get());
    LuGetBoundingBoxAction action;
    action.apply(scene.getRoot());
    EXPECT_EQ(action.getBoundingBox().max.x - action.getBoundingBox().min.x, 100 + 20 + 120);
    EXPECT_EQ(action.getBoundingBox().max.y - action.getBoundingBox().min.y, 90);
}

TEST_F(PanelSceneTest, nothingToShow_isAnEmptyPicture) {
    PanelScene scene({WIDTH, HEIGHT});
    for (const auto view : {PanelScene::FRONT, PanelScene::TILTED}) {
        scene.look(view);
        EXPECT_EQ(getExtent(draw(scene, "empty")).right, -1);
    }
}

TEST_F(PanelSceneTest, pictureThatCannotBeWritten_isReported) {
    PanelScene scene({WIDTH, HEIGHT});
    scene.look(PanelScene::FRONT);
    expectMessageContaining("LuPicture::writePng", "no/such/folder/picture.png");
    EXPECT_FALSE(scene.writePicture("no/such/folder/picture.png"));
}

} // namespace
