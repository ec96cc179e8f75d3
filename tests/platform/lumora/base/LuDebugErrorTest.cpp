// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuDebugError.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// Puts its own handler in the place of the test host's, which comes back with the next test.
class LuDebugErrorTest : public testing::Test {
protected:
    LuDebugErrorTest() {
        LuDebugError::setHandler(
            [](const LuDebugMessage& message, void* data) {
                static_cast<LuDebugErrorTest*>(data)->messages.push_back(message);
            },
            this);
    }
    ~LuDebugErrorTest() override { LuDebugError::setHandler(nullptr, nullptr); }

    std::vector<LuDebugMessage> messages;
};

TEST_F(LuDebugErrorTest, fault_reachesTheHandler) {
    LuDebugError::post("LuThing::load", "%d of %s", 3, "many");
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_FALSE(messages[0].isInfo);
    EXPECT_EQ(messages[0].where, "LuThing::load");
    EXPECT_EQ(messages[0].text, "3 of many");
}

TEST_F(LuDebugErrorTest, information_isMarked) {
    LuDebugError::postInfo("LuThing::load", "%s", "done");
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages[0].isInfo);
    EXPECT_EQ(messages[0].text, "done");
}

TEST_F(LuDebugErrorTest, longText_comesWhole) {
    const std::string text(100000, 'x');
    LuDebugError::post("LuThing::load", "<%s>", text.c_str());
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "<" + text + ">");
}

TEST_F(LuDebugErrorTest, textAsArgument_isNotAFormat) {
    LuDebugError::post("LuThing::load", "%s", "100 %s");
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "100 %s");
}

TEST_F(LuDebugErrorTest, emptyText_isAMessageToo) {
    LuDebugError::post("LuThing::load", "%s", "");
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "");
}

TEST_F(LuDebugErrorTest, withoutHandler_textGoesToTheErrorStream) {
    LuDebugError::setHandler(nullptr, nullptr);
    testing::internal::CaptureStderr();
    LuDebugError::post("LuThing::load", "no file of %d", 3);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "LuThing::load: no file of 3\n");
    EXPECT_TRUE(messages.empty());
}

} // namespace
