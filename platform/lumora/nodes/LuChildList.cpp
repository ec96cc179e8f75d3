// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuChildList.h"

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/nodes/LuNode.h"

#include <algorithm>
#include <utility>

namespace {

/// Most nodes with children have a few.
constexpr std::size_t USUAL_LENGTH = 4;

} // namespace

LuChildList::~LuChildList() {
    for (LuNode* child : m_children) {
        child->removeObserver(LuObserver(static_cast<LuBase*>(m_owner)));
        child->unref();
    }
}

LuNode* LuChildList::operator[](int index) const {
    return index >= 0 && index < getLength() ? m_children[static_cast<std::size_t>(index)] : nullptr;
}

int LuChildList::find(const LuNode* child) const {
    const auto found = std::find(m_children.begin(), m_children.end(), child);
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

void LuChildList::connect(LuNode* child) {
    child->ref();
    child->addObserver(LuObserver(static_cast<LuBase*>(m_owner)));
}

void LuChildList::insert(LuNode* child, int index) {
    if (!child)
        return;
    connect(child);
    if (m_children.empty())
        m_children.reserve(USUAL_LENGTH);
    if (index >= getLength())
        m_children.push_back(child);
    else
        m_children.insert(m_children.begin() + std::max(index, 0), child);
    m_owner->startNotify();
}

// The end of a child may be the end of this list too, when the child was what kept its owner alive. So each
// operation lets go of children last, and touches nothing of its own after that.

void LuChildList::set(int index, LuNode* child) {
    if (!child || index < 0 || index >= getLength())
        return;
    connect(child);
    LuNode* const before = std::exchange(m_children[static_cast<std::size_t>(index)], child);
    before->removeObserver(LuObserver(static_cast<LuBase*>(m_owner)));
    m_owner->startNotify();
    before->unref();
}

void LuChildList::remove(int index) {
    if (index < 0 || index >= getLength())
        return;
    LuNode* const child = m_children[static_cast<std::size_t>(index)];
    m_children.erase(m_children.begin() + index);
    child->removeObserver(LuObserver(static_cast<LuBase*>(m_owner)));
    m_owner->startNotify();
    child->unref();
}

void LuChildList::truncate(int length) {
    if (length < 0 || length >= getLength())
        return;
    const std::vector<LuNode*> dropped(m_children.begin() + length, m_children.end());
    m_children.resize(static_cast<std::size_t>(length));
    for (LuNode* child : dropped)
        child->removeObserver(LuObserver(static_cast<LuBase*>(m_owner)));
    m_owner->startNotify();
    for (auto child = dropped.rbegin(); child != dropped.rend(); ++child)
        (*child)->unref();
}

void LuChildList::traverse(LuAction* action, int first, int last) const {
    // A traversal may build what it meets, so the length is read anew each time.
    if (action->goesBackwards()) {
        for (int i = last; i >= first && !action->hasTerminated(); --i) {
            if (LuNode* const child = get(i))
                action->traverseChild(child, i);
        }
        return;
    }
    for (int i = first; i <= last && i < getLength() && !action->hasTerminated(); ++i) {
        const auto index = static_cast<std::size_t>(i);
        // Nodes lie all over the memory: the next one is fetched while this one works.
        if (i < last && i + 1 < getLength())
            __builtin_prefetch(m_children[index + 1]);
        action->traverseChild(m_children[index], i);
    }
}
