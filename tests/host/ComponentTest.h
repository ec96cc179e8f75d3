// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuPanelix.h"
#include "platform/lumora/base/LuPreferences.h"
#include "tests/host/ToolkitTest.h"

/// A test that needs the component classes. The skins are those of the source tree, in which the tests run.
class ComponentTest : public testing::Test {
protected:
    ComponentTest() {
        LuPreferences::setString("PANELIX_SKINS_DIR", "data/Panelix/skins");
        LuPanelix::init();
    }
    ~ComponentTest() override { LuPanelix::finish(); }

    /// Builds the 3D rendition as a viewer does, and gives the box round it.
    static LvBox3f traverse(LuNode* node) {
        LuGetBoundingBoxAction action;
        action.apply(node);
        return action.getBoundingBox();
    }
};
