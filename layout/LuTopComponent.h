// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuPanelix.h"

class LuMenuBar;

/// What may stand directly in a top-level dialog.
class LuTopComponent : public LuPanelix {
    LU_KIT_HEADER(LuTopComponent)

    LuTopComponent();

    /// The size wished for and its limits, in pixels. Empty at this level.
    virtual void getSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize);

    /// This component if it is a menu bar, which a top-level dialog lays out by itself; else null.
    virtual LuMenuBar* asMenuBar() { return nullptr; }

    /// Shows or hides what the component has opened in 3D.
    virtual void show3DChildren(int) {}

    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void destroyWidget() override;
    void updateFromSensor(LuSensor* sensor) override;

    /// Moves the component by a node in front of its geometry. If the parent's offset stands there already,
    /// it takes the node's translation, and the node is not used; otherwise the node itself goes there.
    void addTranslation(LuTranslation* node);
};
