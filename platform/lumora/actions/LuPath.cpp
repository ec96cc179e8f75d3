// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuPath.h"

#include "platform/lumora/nodes/LuChildList.h"
#include "platform/lumora/nodes/LuNode.h"

LuPath& LuPath::operator=(const LuPath& other) {
    if (this == &other)
        return *this;
    for (const Step& step : other.m_steps)
        step.node->ref();
    truncate(0);
    m_steps = other.m_steps;
    m_numPublic = other.m_numPublic;
    return *this;
}

void LuPath::append(LuNode* node, int index) {
    node->ref();
    m_steps.push_back({node, index});
}

void LuPath::truncate(int length) {
    while (getFullLength() > length) {
        LuNode* const node = m_steps.back().node;
        m_steps.pop_back();
        node->unref();
    }
    m_numPublic = -1;
}

bool LuPath::containsNode(const LuNode* node) const {
    for (int i = 0; i < getLength(); ++i) {
        if (getNode(i) == node)
            return true;
    }
    return false;
}

LuPath LuPath::find(LuNode* from, const LuNode* to) {
    LuPath path;
    if (from && to)
        path.extendTo(from, -1, to);
    return path;
}

/// Goes on from the path's end by `node`; true when the target was found at it or below. Otherwise the path
/// is as before.
bool LuPath::extendTo(LuNode* node, int index, const LuNode* target) {
    append(node, index);
    if (node == target)
        return true;
    const LuChildList* const children = node->getChildren();
    for (int i = 0; children && i < children->getLength(); ++i) {
        if (extendTo(children->get(i), i, target))
            return true;
    }
    truncate(getFullLength() - 1);
    return false;
}
