// SPDX-License-Identifier: MIT
#include "tests/host/MessageLedger.h"

#include <algorithm>
#include <utility>

void MessageLedger::record(const LuDebugMessage& message) { m_messages.push_back(message); }

void MessageLedger::expect(std::string where, std::string text) {
    m_expectations.push_back({std::move(where), std::move(text), true});
}

void MessageLedger::expectContaining(std::string where, std::string part) {
    m_expectations.push_back({std::move(where), std::move(part), false});
}

std::vector<std::string> MessageLedger::getComplaints() const {
    std::vector<std::string> complaints;
    std::vector<Expectation> open = m_expectations;
    // The exact ones choose first, so that a part does not take the fault that an exact text needs.
    std::stable_partition(open.begin(), open.end(), [](const Expectation& e) { return e.isExact; });
    for (const LuDebugMessage& message : m_messages) {
        if (message.isInfo)
            continue;
        const auto met = std::find_if(open.begin(), open.end(), [&](const Expectation& e) {
            return e.where == message.where &&
                   (e.isExact ? e.text == message.text : message.text.find(e.text) != std::string::npos);
        });
        if (met == open.end())
            complaints.push_back("Unexpected message from " + message.where + ": " + message.text);
        else
            open.erase(met);
    }
    for (const Expectation& e : open)
        complaints.push_back("No message came from " + e.where + (e.isExact ? ": " : " with: ") + e.text);
    return complaints;
}

void MessageLedger::clear() {
    m_messages.clear();
    m_expectations.clear();
}
