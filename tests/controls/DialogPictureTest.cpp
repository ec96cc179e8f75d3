// SPDX-License-Identifier: MIT
// Dialogs in 3D as they are seen.
#include "controls/LuDialogPushButton.h"
#include "platform/lumora/gl/LuOffscreenRenderer.h"
#include "tests/layout/DialogTest.h"

#include <algorithm>

namespace {

class DialogPictureTest : public DialogTest {
protected:
    /// The dialog from the front, one unit for a pixel, its frame's corner in the picture's, on black.
    LuPicture draw(LuTopLevelDialog* dialog) {
        buildIn3D(dialog);
        m_renderer.setSize(dialog->width.getValue(), dialog->height.getValue());
        m_renderer.lookFromFront(0, 0);
        LuPicture picture;
        EXPECT_TRUE(m_renderer.render(dialog, picture));
        return picture;
    }

    static int countDifferences(const LuPicture& left, const LuPicture& right) {
        int count = 0;
        for (std::size_t i = 0; i < left.getPixels().size(); ++i)
            count += left.getPixels()[i] == right.getPixels()[i] ? 0 : 1;
        return count;
    }
    static int countDark(const LuPicture& picture) {
        return static_cast<int>(
            std::count_if(picture.getPixels().begin(), picture.getPixels().end(),
                          [](const LuPicture::Pixel& pixel) { return pixel.green < 60; }));
    }

    /// Rows of ten push buttons, each with a text of its own.
    static std::string makePanel(int buttons) {
        std::string text = "TopLevelDialog { width 1000 height 1000 ColumnDialog { ";
        for (int i = 0; i < buttons; ++i) {
            if (i % 10 == 0)
                text += i > 0 ? "} RowDialog { " : "RowDialog { ";
            const auto number = std::to_string(i);
            text += "DialogPushButton { labelVisibility FALSE auditorID \"b" + number +
                    "\" buttonLabel \"Button " + number + "\" } ";
        }
        return text + "} } }";
    }

    LuOffscreenRenderer m_renderer;
};

TEST_F(DialogPictureTest, dialog_showsItsFrameButtonsAndTexts) {
    auto* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { width 200 height 100 margin 10"
                               " DialogPushButton { labelVisibility FALSE buttonLabel \"Press\" } }");
    const LuPicture picture = draw(dialog);
    // The skin's colours, with the light that is everywhere.
    EXPECT_EQ(picture.at(2, 50), (LuPicture::Pixel{189, 189, 255, 255}));
    EXPECT_EQ(picture.at(30, 60), (LuPicture::Pixel{189, 189, 189, 255}));
    EXPECT_GT(countDark(picture), 20);
}

TEST_F(DialogPictureTest, newLabel_changesThePictureAndBack) {
    auto* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { width 200 height 100"
                               " DialogPushButton { auditorID \"b\" buttonLabel \"Press\" } }");
    auto* const button = static_cast<LuDialogPushButton*>(dialog->searchForAuditorId("b"));
    const LuPicture before = draw(dialog);
    button->buttonLabel.setValue("Something else");
    EXPECT_GT(countDifferences(before, draw(dialog)), 20);
    button->buttonLabel.setValue("Press");
    EXPECT_EQ(countDifferences(before, draw(dialog)), 0);
}

TEST_F(DialogPictureTest, disabledButton_hasAGreyText) {
    auto* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { width 200 height 100"
                               " DialogPushButton { auditorID \"b\" buttonLabel \"Press\" } }");
    const int dark = countDark(draw(dialog));
    LuPanelix* const button = dialog->searchForAuditorId("b");
    button->enable.setValue(false);
    button->change3DEnable();
    EXPECT_LT(countDark(draw(dialog)), dark / 2);
}

TEST_F(DialogPictureTest, picturesAfterChanges_areThoseOfAFreshScene) {
    auto* const dialog = read<LuTopLevelDialog>(makePanel(40).c_str());
    draw(dialog);
    for (const char* id : {"b3", "b17", "b39"}) {
        auto* const button = static_cast<LuDialogPushButton*>(dialog->searchForAuditorId(id));
        button->buttonLabel.setValue("A new text");
        button->change3DButtonState(1);
    }
    dialog->position3D.setValue({0, 0, 3});
    const LuPicture kept = draw(dialog);
    LuOffscreenRenderer fresh;
    fresh.setSize(1000, 1000);
    fresh.lookFromFront(0, 0);
    LuPicture picture;
    ASSERT_TRUE(fresh.render(dialog, picture));
    EXPECT_EQ(countDifferences(kept, picture), 0);
}

TEST_F(DialogPictureTest, panelOfAThousandButtons_isAFewDrawCalls) {
    auto* const dialog = read<LuTopLevelDialog>(makePanel(1000).c_str());
    buildIn3D(dialog);
    m_renderer.setSize(100, 100);
    ASSERT_TRUE(m_renderer.render(dialog));
    EXPECT_GE(m_renderer.getAction().getDrawList().records.getCount(), 2000U);
    EXPECT_LE(m_renderer.getDrawer()->getDrawCalls(), 16);

    ASSERT_TRUE(m_renderer.render(dialog));
    EXPECT_EQ(m_renderer.getAction().getStatistics().visitedNodes, 0);
    EXPECT_EQ(m_renderer.getDrawer()->getSentBytes(), 0U);

    auto* const button = static_cast<LuDialogPushButton*>(dialog->searchForAuditorId("b500"));
    // With characters that have been seen.
    button->buttonLabel.setValue("Butter 7");
    ASSERT_TRUE(m_renderer.render(dialog));
    button->buttonLabel.setValue("Button 77");
    ASSERT_TRUE(m_renderer.render(dialog));
    EXPECT_LT(m_renderer.getAction().getStatistics().visitedNodes, 400);
    EXPECT_LT(m_renderer.getDrawer()->getSentBytes(), 10000U);
}

} // namespace
