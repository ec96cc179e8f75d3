// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogPushButton.h"
#include "platform/lumora/gl/LuOffscreenRenderer.h"
#include "tests/layout/DialogTest.h"

/// Draws a panel with what panels are made of, as the pictures of this folder show it.
class PanelPicture : public DialogTest {
protected:
    ~PanelPicture() override { LuPanelix::setSkin("default"); }

    static const char* getPanel() {
        return R"(
TopLevelDialog {
    label "A panel"
    width 240
    height 180
    margin 4
    rowSpacing 4
    DialogLabel { label "A text" }
    DialogPushButton { label "Released" buttonLabel "Press" }
    DialogPushButton { auditorID "pressed" label "Pressed" buttonLabel "Held" }
    DialogSeparator { }
    RowDialog {
        enable FALSE
        DialogPushButton { labelVisibility FALSE buttonLabel "Disabled" }
        DialogPushButton { labelVisibility FALSE edgeStyle SHADOW_IN buttonLabel "Sunk" }
    }
}
)";
    }

    /// What it is drawn with.
    virtual std::unique_ptr<LuGLContext> createContext() const { return LuGLContext::create(); }

    /// The panel from the front, a unit a pixel, on a dark blue.
    LuPicture drawFromFront(LuTopLevelDialog* dialog) {
        buildIn3D(dialog);
        LuOffscreenRenderer renderer(createContext());
        renderer.setSize(dialog->width.getValue(), dialog->height.getValue());
        renderer.setBackground({0.1F, 0.1F, 0.3F});
        renderer.lookFromFront(0, 0);
        LuPicture picture;
        EXPECT_TRUE(renderer.render(dialog, picture));
        return picture;
    }
    LuPicture drawPanel() {
        auto* const dialog = read<LuTopLevelDialog>(getPanel());
        buildIn3D(dialog);
        static_cast<LuDialogPushButton*>(dialog->searchForAuditorId("pressed"))->change3DButtonState(1);
        return drawFromFront(dialog);
    }
};
