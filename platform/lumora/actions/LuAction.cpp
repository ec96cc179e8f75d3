// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuAction.h"

#include "platform/lumora/nodes/LuNode.h"

void LuAction::start() {
    m_state = {};
    m_hasTerminated = false;
    m_steps.clear();
    begin();
}

void LuAction::apply(LuNode* node) {
    if (!node)
        return;
    node->ref();
    m_path = nullptr;
    m_pathCode = PathCode::NO_PATH;
    start();
    if (m_keepsSteps)
        m_steps.push_back({node, -1});
    node->noteVisit();
    visit(node);
    end();
    node->unref();
}

void LuAction::apply(const LuPath& path) {
    if (path.getLength() == 0)
        return;
    // The traversal may change what the path was made from.
    const LuPath held = path;
    m_path = &held;
    m_pathDepth = 0;
    m_pathCode = codeAt(0);
    start();
    if (m_keepsSteps)
        m_steps.push_back({held.getHead(), -1});
    held.getHead()->noteVisit();
    visit(held.getHead());
    end();
    m_path = nullptr;
    m_pathCode = PathCode::NO_PATH;
}

void LuAction::apply(const LuPathList& paths) {
    for (int i = 0; i < paths.getLength(); ++i)
        apply(paths[i]);
}

LuAction::PathCode LuAction::usePathCode(int& numIndices, const int*& indices) {
    numIndices = 0;
    indices = nullptr;
    if (m_pathCode == PathCode::IN_PATH) {
        numIndices = 1;
        m_nextIndex = m_path->getIndex(m_pathDepth + 1);
        indices = &m_nextIndex;
    }
    return m_pathCode;
}

void LuAction::traverseChild(LuNode* child, int index) {
    const PathCode before = m_pathCode;
    bool isOnPath = false;
    if (before == PathCode::IN_PATH) {
        const int pathIndex = m_path->getIndex(m_pathDepth + 1);
        if (index > pathIndex)
            return;
        isOnPath = index == pathIndex && m_path->getNode(m_pathDepth + 1) == child;
        m_pathCode = isOnPath ? codeAt(++m_pathDepth) : PathCode::OFF_PATH;
    }
    if (m_pathCode != PathCode::OFF_PATH || child->affectsState())
        visitChild(child, index);
    if (isOnPath)
        --m_pathDepth;
    m_pathCode = before;
}

LuAction::PathCode LuAction::codeAt(int pathDepth) const {
    return pathDepth + 1 == m_path->getLength() ? PathCode::BELOW_PATH : PathCode::IN_PATH;
}

void LuAction::visitChild(LuNode* child, int index) {
    if (m_keepsSteps)
        m_steps.push_back({child, index});
    child->noteVisit();
    visit(child);
    if (m_keepsSteps)
        m_steps.pop_back();
}
