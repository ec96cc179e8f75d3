// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/LuViewer.h"

#include "tests/host/TestHost.h"
#include "tests/host/ToolkitTest.h"

#include <cstdlib>

namespace {

class LuViewerTest : public ToolkitTest {};

TEST_F(LuViewerTest, noDisplay_givesNoneAndAMessage) {
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");
    expectMessageContaining("LuViewer::create", "there is no display");
    EXPECT_EQ(LuViewer::create("Tested", 100, 100), nullptr);
}

TEST_F(LuViewerTest, nothingShown_isNothingToWaitFor) { EXPECT_FALSE(LuViewer::waitForEvents()); }

} // namespace
