// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/nodes/LuGroup.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct UnrefNode {
    void operator()(LuNode* node) const { node->unref(); }
};

/// A node that ends with the variable.
template <class Node>
using Held = std::unique_ptr<Node, UnrefNode>;

template <class Node>
Held<Node> hold(Node* node) {
    if (node)
        node->ref();
    return Held<Node>(node);
}

/// What came of reading one file.
struct Reading {
    Held<LuSeparator> root;
    std::vector<LuReadError> errors;

    /// "line:column: text" of the only fault; what is wrong with that otherwise.
    std::string getFault() const {
        if (root)
            return "it was read";
        if (errors.size() != 1)
            return std::to_string(errors.size()) + " faults";
        return std::to_string(errors[0].line) + ":" + std::to_string(errors[0].column) + ": " +
               errors[0].text.str();
    }
};

inline Reading readScene(std::string_view content) {
    LuDB::init();
    Reading reading;
    LuInput::setErrorHandler(
        [](const LuReadError& error, void* data) { static_cast<Reading*>(data)->errors.push_back(error); },
        &reading);
    {
        LuInput in;
        // A copy of its exact length: a step beyond the end is seen by the sanitizers.
        const std::vector<char> bytes(content.begin(), content.end());
        in.setBuffer(bytes.data(), bytes.size());
        reading.root = hold(LuDB::readAll(&in));
    }
    LuInput::setErrorHandler(nullptr, nullptr);
    LuDB::finish();
    return reading;
}

/// The content of a file that holds these nodes.
inline std::string writeScene(LuGroup* root, bool isBinary) {
    LuOutput out;
    out.setBinary(isBinary);
    LuWriteAction action(&out);
    for (int i = 0; i < root->getNumChildren(); ++i)
        action.apply(root->getChild(i));
    return out.getBuffer();
}

/// The numbers and texts of a binary file, put together by hand.
class BinaryScene {
public:
    explicit BinaryScene(const char* version = "2.0")
        : m_bytes("#Lumora V" + std::string(version) + " binary\n") {}

    BinaryScene& number(std::uint32_t value) {
        for (int shift = 24; shift >= 0; shift -= 8)
            m_bytes += static_cast<char>(static_cast<unsigned char>(value >> shift));
        return *this;
    }
    BinaryScene& text(std::string_view text) {
        number(static_cast<std::uint32_t>(text.size()));
        m_bytes += text;
        m_bytes.append((4 - text.size() % 4) % 4, '\0');
        return *this;
    }
    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};
