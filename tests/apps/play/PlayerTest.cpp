// SPDX-License-Identifier: MIT
// What players say to what can't be done; what they do is tested by the twins.
#include "apps/play/ScenePlayer.h"
#include "apps/play/WindowPlayer.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "tests/layout/DialogTest.h"

namespace {

constexpr const char* DIALOG = "TopLevelDialog { auditorID \"dialog\" width 300 height 200"
                               " DialogPushButton { auditorID \"ok\" buttonLabel \"OK\" }"
                               " DialogIntegerSlider { auditorID \"steps\" } }";

class PlayerTest : public DialogTest {
protected:
    static std::vector<PlayStep> readSteps(const char* script) {
        std::vector<PlayStep> steps;
        EXPECT_TRUE(readPlayScript(script, "test.play", steps));
        return steps;
    }

    bool playToWindows(const char* script, WindowPlayer player = WindowPlayer()) {
        auto* const dialog = read<LuTopLevelDialog>(DIALOG);
        dialog->buildDialog(nullptr, 0);
        dialog->show();
        return player.play(readSteps(script), {dialog});
    }

    bool playToScene(const char* script, ScenePlayer::Snapshot snapshot = {}) {
        auto* const dialog = read<LuTopLevelDialog>(DIALOG);
        const Held<LuSeparator> root;
        auto* const camera = new LuOrthographicCamera;
        root->addChild(camera);
        root->addChild(dialog);
        ScenePlayer player(root.get(), camera, LvViewportRegion(400, 400), std::move(snapshot));
        return player.play(readSteps(script), {dialog});
    }
};

TEST_F(PlayerTest, unknownComponent_isToldWithItsLine) {
    for (const char* id : {"nobody", "nobody.minimise"}) {
        const std::string script = std::string("release\ndrag ") + id + " 1 1\n";
        expectMessage("Player::play",
                      std::string("Line 2: there is no component with the auditorID \"") + id + "\".");
        EXPECT_FALSE(playToScene(script.c_str())) << id;
        checkMessages();
    }
}

TEST_F(PlayerTest, unknownPart_isToldInEitherRendition) {
    for (const char* id : {"dialog.minimize", "ok.minimise", "steps.thumb"}) {
        const std::string script = std::string("wait\npress ") + id + "\n";
        const std::string message =
            std::string("Line 2: there is nothing to press for \"") + id + "\" in the ";
        expectMessage("Player::play", message + "scene.");
        EXPECT_FALSE(playToScene(script.c_str())) << id;
        expectMessage("Player::play", message + "windows.");
        EXPECT_FALSE(playToWindows(script.c_str())) << id;
        checkMessages();
    }
}

TEST_F(PlayerTest, partsThatWindowsHave_areTakenInBoth) {
    const char* const script =
        "press dialog.frame\nrelease\npress ok.frame\nrelease\npress steps.cursor\nrelease\n"
        "press steps.frame\nrelease\npress steps.check\nrelease\npress steps.value\nrelease\n";
    EXPECT_TRUE(playToScene(script));
    EXPECT_TRUE(playToWindows(script));
}

TEST_F(PlayerTest, stepThatFails_endsThePlay) {
    int numSnapshots = 0;
    const auto snapshot = [&numSnapshots](const std::string&) { return ++numSnapshots < 2; };
    EXPECT_FALSE(playToScene("snapshot a\nsnapshot b\nsnapshot c\n", snapshot));
    EXPECT_EQ(numSnapshots, 2);
    numSnapshots = 0;
    EXPECT_FALSE(playToWindows("snapshot a\nsnapshot b\nsnapshot c\n", WindowPlayer(snapshot)));
    EXPECT_EQ(numSnapshots, 2);
}

TEST_F(PlayerTest, snapshotWithoutACamera_isReported) {
    expectMessage("ScenePlayer", "No picture can be taken here: a.png");
    EXPECT_FALSE(playToScene("snapshot a.png\n"));
    expectMessage("WindowPlayer", "No picture can be taken here: a.png");
    EXPECT_FALSE(playToWindows("snapshot a.png\n"));
}

} // namespace
