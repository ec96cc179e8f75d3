// SPDX-License-Identifier: MIT
#include "tests/host/TestHost.h"

#include "tests/host/MessageLedger.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

MessageLedger s_ledger;

class MessageListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        s_ledger.clear();
        LuDebugError::setHandler([](const LuDebugMessage& message, void*) { s_ledger.record(message); },
                                 nullptr);
    }

    // Google Test tells the listeners in reverse order here, so the printer, which came first, sees our
    // verdict.
    void OnTestEnd(const testing::TestInfo&) override {
        checkMessages();
        LuDebugError::setHandler(nullptr, nullptr);
    }
};

} // namespace

void expectMessage(const std::string& where, const std::string& text) { s_ledger.expect(where, text); }

void expectMessageContaining(const std::string& where, const std::string& part) {
    s_ledger.expectContaining(where, part);
}

void checkMessages() {
    for (const std::string& complaint : s_ledger.getComplaints())
        ADD_FAILURE() << complaint;
    s_ledger.clear();
}

std::vector<LuDebugMessage> getPostedMessages() { return s_ledger.getMessages(); }

std::vector<LuDebugMessage> getPostedInfos() {
    std::vector<LuDebugMessage> infos;
    for (const LuDebugMessage& message : s_ledger.getMessages())
        if (message.isInfo)
            infos.push_back(message);
    return infos;
}

std::string getTestOutputFolder() {
    std::filesystem::create_directories(PANELIX_TEST_OUTPUT);
    return PANELIX_TEST_OUTPUT;
}

void startTestHost() {
    // Google Test deletes it.
    testing::UnitTest::GetInstance()->listeners().Append(new MessageListener);
}
