// SPDX-License-Identifier: MIT
#include "layout/LuDialogComponent.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LuPreferences.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "tests/host/ToolkitTest.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr char EXPECTED[] =
    "Panelix::readDefaultSkinsParts|The skin file : <TextProperties.lum> cannot be found."
    "\nIMPORTANT : Internal Panelix component skin is loaded to prevent from your application to exit."
    "\nFor loading your own Panelix skins, please verify the PANELIX_SKINS_DIR environment variable.\n"
    "Panelix::readDefaultSkinsParts|The skin file : <DialogComponent.lum> cannot be found.\n";

/// The look that the library has with it.
bool hasStoredLook() {
    LuNode* const node = LuNode::getByName("DialogComponentEdgeStyleShadowIn");
    if (!node || !node->isOfType(LuGroup::getClassTypeId()))
        return false;
    LuNode* const first = static_cast<LuGroup*>(node)->getChild(0);
    return first && first->isOfType(LuMaterial::getClassTypeId()) &&
           static_cast<LuMaterial*>(first)->diffuseColor[0] == LvVec3f(0.5F, 0.5F, 0.5F);
}

/// Builds the first component of the process, then a second one, with no setting that leads to a skin. The
/// result is the exit status.
int buildWithoutSettings() {
    // The host's listeners are not at work in the process of a death test.
    std::string posted;
    LuDebugError::setHandler(
        [](const LuDebugMessage& message, void* data) {
            *static_cast<std::string*>(data) += message.where + "|" + message.text + "\n";
        },
        &posted);
    // As if not set, whatever the environment has.
    LuPreferences::setString("LUMORAHOME", "");
    LuPreferences::setString("PANELIX_SKINS_DIR", "");
    LuPreferences::setString("PANELIX_SKIN", "default");
    LuPanelix::init();
    bool isShown = true;
    for (int i = 0; i < 2; ++i) {
        const Held<LuDialogComponent> component;
        component->width.setValue(80);
        component->height.setValue(20);
        LuGetBoundingBoxAction action;
        action.apply(component.get());
        isShown = isShown && !action.getBoundingBox().isEmpty();
    }
    const bool isLookStored = hasStoredLook();
    LuPanelix::finish();
    LuDebugError::setHandler(nullptr, nullptr);
    if (posted == EXPECTED && isShown && isLookStored)
        return 0;
    std::fprintf(stderr, "shown: %d, stored look: %d, messages:\n%s", isShown, isLookStored, posted.c_str());
    return 1;
}

// What has been read once is not missed again, so only a process of its own sees a first build, whatever ran
// before in this one.
TEST(LuPanelixFirstSkinDeathTest, noSkinSettings_costAMessageForEachFileTheLongPartOnce) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(buildWithoutSettings()), testing::ExitedWithCode(0), "");
}

} // namespace
