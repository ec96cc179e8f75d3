// SPDX-License-Identifier: MIT
#include "tests/host/TestHost.h"

#include "tests/host/MessageLedger.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

const LuDebugMessage s_fault{false, "LuThing::load", "no such file"};
const LuDebugMessage s_info{true, "LuThing::load", "took a while"};

TEST(MessageLedger, nothingPostedAndNothingExpected_isWell) {
    EXPECT_TRUE(MessageLedger().getComplaints().empty());
}

TEST(MessageLedger, unexpectedFault_isNamed) {
    MessageLedger ledger;
    ledger.record(s_fault);
    ASSERT_EQ(ledger.getComplaints().size(), 1u);
    EXPECT_EQ(ledger.getComplaints()[0], "Unexpected message from LuThing::load: no such file");
}

TEST(MessageLedger, expectedFaultThatDoesNotCome_isNamed) {
    MessageLedger ledger;
    ledger.expect("LuThing::load", "no such file");
    ASSERT_EQ(ledger.getComplaints().size(), 1u);
    EXPECT_EQ(ledger.getComplaints()[0], "No message came from LuThing::load: no such file");
}

TEST(MessageLedger, expectedFault_isWell) {
    MessageLedger ledger;
    ledger.expect("LuThing::load", "no such file");
    ledger.record(s_fault);
    EXPECT_TRUE(ledger.getComplaints().empty());
}

TEST(MessageLedger, faultOfTwiceTheSame_isExpectedTwice) {
    MessageLedger ledger;
    ledger.expect("LuThing::load", "no such file");
    ledger.record(s_fault);
    ledger.record(s_fault);
    EXPECT_EQ(ledger.getComplaints().size(), 1u);
    ledger.expect("LuThing::load", "no such file");
    EXPECT_TRUE(ledger.getComplaints().empty());
}

TEST(MessageLedger, rightTextFromAnotherOperation_doesNotCount) {
    MessageLedger ledger;
    ledger.expect("LuThing::save", "no such file");
    ledger.record(s_fault);
    EXPECT_EQ(ledger.getComplaints().size(), 2u);
}

TEST(MessageLedger, partOfTheText_countsOnlyWhereAPartIsExpected) {
    MessageLedger exact;
    exact.expect("LuThing::load", "no such");
    exact.record(s_fault);
    EXPECT_EQ(exact.getComplaints().size(), 2u);

    MessageLedger part;
    part.expectContaining("LuThing::load", "no such");
    part.record(s_fault);
    EXPECT_TRUE(part.getComplaints().empty());
}

TEST(MessageLedger, partExpectedFirst_leavesTheExactTextItsFault) {
    MessageLedger ledger;
    ledger.expectContaining("LuThing::load", "file");
    ledger.expect("LuThing::load", "no such file");
    ledger.record(s_fault);
    ledger.record({false, "LuThing::load", "file too long"});
    EXPECT_TRUE(ledger.getComplaints().empty());
}

TEST(MessageLedger, information_isKeptAndNotJudged) {
    MessageLedger ledger;
    ledger.record(s_info);
    EXPECT_TRUE(ledger.getComplaints().empty());
    EXPECT_EQ(ledger.getMessages().size(), 1u);
}

TEST(MessageLedger, information_meetsNoExpectation) {
    MessageLedger ledger;
    ledger.expect("LuThing::load", "took a while");
    ledger.record(s_info);
    EXPECT_EQ(ledger.getComplaints().size(), 1u);
}

TEST(TestHost, expectedMessage_passes) {
    expectMessage("LuThing::load", "no file of 3");
    LuDebugError::post("LuThing::load", "no file of %d", 3);
}

TEST(TestHost, unexpectedMessage_failsTheTest) {
    LuDebugError::post("LuThing::load", "no such file");
    EXPECT_NONFATAL_FAILURE(checkMessages(), "Unexpected message from LuThing::load: no such file");
}

TEST(TestHost, messageThatDoesNotCome_failsTheTest) {
    expectMessageContaining("LuThing::load", "no such");
    EXPECT_NONFATAL_FAILURE(checkMessages(), "No message came from LuThing::load with: no such");
}

TEST(TestHost, information_canBeAskedFor) {
    LuDebugError::postInfo("LuThing::load", "read %s", "all");
    ASSERT_EQ(getPostedInfos().size(), 1u);
    EXPECT_EQ(getPostedInfos()[0].text, "read all");
    EXPECT_EQ(getPostedInfos()[0].where, "LuThing::load");
}

TEST(TestHost, outputFolder_canBeWrittenTo) {
    const std::string path = getTestOutputFolder() + "/TestHostTest.txt";
    std::ofstream(path) << "text";
    EXPECT_EQ(std::filesystem::file_size(path), 4u);
    std::filesystem::remove(path);
}

} // namespace
