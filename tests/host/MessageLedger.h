// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuDebugError.h"

#include <string>
#include <vector>

/// What was posted through the error channel, held against what was expected.
///
/// One expectation stands for one fault: a fault that comes twice is expected twice. The order is free.
/// Information is kept, never judged.
class MessageLedger {
public:
    void record(const LuDebugMessage& message);

    /// Expects a fault with exactly this text.
    void expect(std::string where, std::string text);

    /// Expects a fault whose text holds this part.
    void expectContaining(std::string where, std::string part);

    /// A sentence for each fault that nobody expected, then one for each expectation that nothing met. Empty
    /// when all is well.
    std::vector<std::string> getComplaints() const;

    /// All messages in the order in which they came.
    const std::vector<LuDebugMessage>& getMessages() const { return m_messages; }

    void clear();

private:
    struct Expectation {
        std::string where;
        std::string text;
        bool isExact;
    };

    std::vector<LuDebugMessage> m_messages;
    std::vector<Expectation> m_expectations;
};
