// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPool.h"

#include <cstddef>
#include <utility>
#include <vector>

class LuNode;

/// A way down a graph: a head node, then a child of it, and so on. It holds references to its nodes.
class LuPath {
public:
    LuPath() = default;
    explicit LuPath(LuNode* head) { append(head, -1); }

    /// The first way down from one node to another, through the children of all nodes, kits among them, be
    /// they shown or not. Empty when there is none.
    static LuPath find(LuNode* from, const LuNode* to);

    LuPath(const LuPath& other) { *this = other; }
    LuPath& operator=(const LuPath& other);

    /// The other path is empty afterwards.
    LuPath(LuPath&& other) noexcept { swap(other); }
    LuPath& operator=(LuPath&& other) noexcept {
        LuPath(std::move(other)).swap(*this);
        return *this;
    }
    ~LuPath() { truncate(0); }

    /// Makes room for so many nodes at once.
    void reserve(std::size_t length) { m_steps.reserve(length); }

    /// Adds a node; `index` is its place in the node before it.
    void append(LuNode* node, int index);

    /// Drops the nodes from `length` on.
    void truncate(int length);

    /// The number of nodes, up to where setNumPublic has cut.
    int getLength() const {
        return m_numPublic >= 0 && m_numPublic < getFullLength() ? m_numPublic : getFullLength();
    }
    int getFullLength() const { return static_cast<int>(m_steps.size()); }
    LuNode* getHead() const { return getNode(0); }
    LuNode* getTail() const { return getNode(getLength() - 1); }

    /// Null outside the path.
    LuNode* getNode(int depth) const {
        return depth >= 0 && depth < getLength() ? m_steps[static_cast<std::size_t>(depth)].node : nullptr;
    }

    /// The place of a node in the one before it.
    int getIndex(int depth) const { return m_steps[static_cast<std::size_t>(depth)].index; }
    bool containsNode(const LuNode* node) const;

    /// Hides the nodes behind the first `count` from all operations but getFullLength.
    void setNumPublic(int count) { m_numPublic = count; }

private:
    void swap(LuPath& other) noexcept {
        m_steps.swap(other.m_steps);
        std::swap(m_numPublic, other.m_numPublic);
    }
    bool extendTo(LuNode* node, int index, const LuNode* target);

    struct Step {
        LuNode* node;
        int index;
    };
    std::vector<Step, LuPoolAllocator<Step>> m_steps;
    int m_numPublic = -1;
};

/// Paths in the order in which they were found.
class LuPathList {
public:
    void append(LuPath path) { m_paths.push_back(std::move(path)); }
    int getLength() const { return static_cast<int>(m_paths.size()); }
    LuPath& operator[](int index) { return m_paths[static_cast<std::size_t>(index)]; }
    const LuPath& operator[](int index) const { return m_paths[static_cast<std::size_t>(index)]; }
    void clear() { m_paths.clear(); }

private:
    std::vector<LuPath> m_paths;
};
