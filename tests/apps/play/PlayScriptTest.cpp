// SPDX-License-Identifier: MIT
#include "apps/play/PlayScript.h"
#include "tests/host/TestHost.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

std::vector<PlayStep> readGood(const char* text) {
    std::vector<PlayStep> steps;
    EXPECT_TRUE(readPlayScript(text, "test.play", steps));
    return steps;
}

void expectFault(const char* text, const char* message) {
    expectMessage("readPlayScript", message);
    std::vector<PlayStep> steps;
    EXPECT_FALSE(readPlayScript(text, "test.play", steps));
}

TEST(PlayScript, everyActionIsRead) {
    const auto steps = readGood("press dialog.minimise\n"
                                "release\n"
                                "drag volume 40 -3\n"
                                "key Tab\n"
                                "type \"1 \\\"2\\\" \\\\\"\n"
                                "resize 400 300\n"
                                "wait\n"
                                "wait 250\n"
                                "snapshot out/a.png\n");
    ASSERT_EQ(steps.size(), 9U);
    EXPECT_EQ(steps[0].action, PlayStep::PRESS);
    EXPECT_EQ(steps[0].target, "dialog.minimise");
    EXPECT_EQ(steps[1].action, PlayStep::RELEASE);
    EXPECT_EQ(steps[2].amount, LvVec2i32(40, -3));
    EXPECT_EQ(steps[3].key, LuKeyboardEvent::TAB);
    EXPECT_EQ(steps[4].text, "1 \"2\" \\");
    EXPECT_EQ(steps[5].amount, LvVec2i32(400, 300));
    EXPECT_EQ(steps[6].amount.x, 0);
    EXPECT_EQ(steps[7].amount.x, 250);
    EXPECT_EQ(steps[8].target, "out/a.png");
    EXPECT_EQ(steps[8].line, 9);
}

TEST(PlayScript, commentsAndEmptyLinesAreSkipped) {
    const auto steps = readGood("# a comment\r\n\r\n  release # at the end\r\nkey a");
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(steps[0].line, 3);
    EXPECT_EQ(steps[1].key, LuKeyboardEvent::A);
}

TEST(PlayScript, unknownAction_isToldWithItsPlace) {
    expectFault(
        "release\n  push ok\n",
        "test.play:2:3: error: \"push\" is no action; there are press, release, drag, key, type, resize, "
        "wait and snapshot");
}

TEST(PlayScript, missingWord_tellsHowItIsWritten) {
    expectFault("drag a 1", "test.play:1:1: error: it is written: drag ID DX DY");
}

TEST(PlayScript, numberThatIsNone_isToldWithItsColumn) {
    expectFault("resize 10 1e9", "test.play:1:11: error: \"1e9\" is no whole number from 1 to 100000");
    expectFault("drag a 5 99999999999",
                "test.play:1:10: error: \"99999999999\" is no whole number from -100000 "
                "to 100000");
}

TEST(PlayScript, textWithoutQuotesOrEnd_isAFault) {
    expectFault("type abc", "test.play:1:6: error: the text needs quotes");
    expectFault("type \"abc", "test.play:1:6: error: the text has no closing quote");
    expectFault("type \"abc\\", "test.play:1:6: error: the text has no closing quote");
}

TEST(PlayScript, unknownKey_isAFault) {
    expectFault("key Hyper", "test.play:1:5: error: \"Hyper\" is no key");
}

TEST(PlayScript, goodStepsAreThereBesideAFault) {
    expectMessage("readPlayScript", "test.play:1:5: error: \"Hyper\" is no key");
    std::vector<PlayStep> steps;
    EXPECT_FALSE(readPlayScript("key Hyper\nrelease\n", "test.play", steps));
    ASSERT_EQ(steps.size(), 1U);
}

TEST(PlayScript, emptyFile_hasNoSteps) {
    const std::string path = getTestOutputFolder() + "/PlayScriptTest-empty.play";
    ASSERT_TRUE(std::ofstream(path).is_open());
    std::vector<PlayStep> steps;
    EXPECT_TRUE(loadPlayScript(path, steps));
    EXPECT_TRUE(steps.empty());
}

TEST(PlayScript, file_isRead) {
    std::vector<PlayStep> steps;
    EXPECT_TRUE(loadPlayScript("tests/fuzz/seeds/playScript/everything.play", steps));
    EXPECT_FALSE(steps.empty());
}

TEST(PlayScript, folder_isReported) {
    expectMessage("readPlayScript", "tests can't be read.");
    std::vector<PlayStep> steps;
    EXPECT_FALSE(loadPlayScript("tests", steps));
}

TEST(PlayScript, fileThatIsNotThere_isReported) {
    expectMessage("readPlayScript", "no/such.play can't be read.");
    std::vector<PlayStep> steps;
    EXPECT_FALSE(loadPlayScript("no/such.play", steps));
}

} // namespace
