// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPool.h"

#include <vector>

class LuAction;
class LuNode;

/// The children of a node, each held with a reference. The node is told of every change in the list or below.
class LuChildList {
public:
    explicit LuChildList(LuNode* owner) : m_owner(owner) {}
    ~LuChildList();
    LuChildList(const LuChildList&) = delete;
    LuChildList& operator=(const LuChildList&) = delete;

    int getLength() const { return static_cast<int>(m_children.size()); }

    /// Null for an index outside the list.
    LuNode* operator[](int index) const;
    LuNode* get(int index) const { return (*this)[index]; }

    /// Index of the child, or -1.
    int find(const LuNode* child) const;

    void append(LuNode* child) { insert(child, getLength()); }

    /// An index outside the list is moved to its nearer end; null is ignored.
    void insert(LuNode* child, int index);

    /// Replaces the child at an index within the list.
    void set(int index, LuNode* child);
    void remove(int index);
    void truncate(int length);

    /// Lets the action traverse the children from `first` to `last`, both included, in its direction, and as
    /// its path asks: all of them, or, towards the path, only those that matter to it.
    void traverse(LuAction* action, int first, int last) const;
    void traverse(LuAction* action) const { traverse(action, 0, getLength() - 1); }

private:
    void connect(LuNode* child);

    LuNode* m_owner;
    std::vector<LuNode*, LuPoolAllocator<LuNode*>> m_children;
};
