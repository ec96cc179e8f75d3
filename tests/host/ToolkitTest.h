// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/io/LuDB.h"

#include <gtest/gtest.h>

/// A test that needs the toolkit's classes.
class ToolkitTest : public testing::Test {
protected:
    ToolkitTest() { LuDB::init(); }
    ~ToolkitTest() override { LuDB::finish(); }
};

/// Holds a node for the length of a scope.
template <class Node>
class Held {
public:
    explicit Held(Node* node = new Node) : m_node(node) { m_node->ref(); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held() { m_node->unref(); }

    Node* get() const { return m_node; }
    Node* operator->() const { return m_node; }
    Node& operator*() const { return *m_node; }

private:
    Node* m_node;
};
