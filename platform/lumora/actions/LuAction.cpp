// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuAction.h"

#include "platform/lumora/nodes/LuNode.h"

namespace {

/// Mostly a search goes no deeper.
constexpr std::size_t USUAL_DEPTH = 8;

} // namespace

/// One apply. It keeps the place of a walk that goes on outside of it.
class LuAction::Walk {
public:
    explicit Walk(LuAction& action) : m_action(action), m_isNested(action.m_isWalking) {
        if (m_isNested) {
            m_state = action.m_state;
            m_path = action.m_path;
            m_pathDepth = action.m_pathDepth;
            m_pathCode = action.m_pathCode;
            m_hasTerminated = action.m_hasTerminated;
            m_steps.swap(action.m_steps);
            m_viewVolumes.swap(action.m_viewVolumes);
        } else {
            action.m_viewVolumes.clear();
        }
        action.m_isWalking = true;
    }
    ~Walk() {
        m_action.m_isWalking = m_isNested;
        m_action.m_path = m_path;
        m_action.m_pathDepth = m_pathDepth;
        m_action.m_pathCode = m_pathCode;
        if (m_isNested) {
            m_action.m_state = m_state;
            m_action.m_hasTerminated = m_hasTerminated;
            m_steps.swap(m_action.m_steps);
            m_viewVolumes.swap(m_action.m_viewVolumes);
        }
    }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

private:
    LuAction& m_action;
    bool m_isNested;
    LuTraversalState m_state;
    const LuPath* m_path = nullptr;
    int m_pathDepth = 0;
    PathCode m_pathCode = PathCode::NO_PATH;
    bool m_hasTerminated = false;
    Steps m_steps;
    ViewVolumes m_viewVolumes;
};

void LuAction::start() {
    m_state = {};
    m_hasTerminated = false;
    m_steps.clear();
    if (m_keepsSteps)
        m_steps.reserve(USUAL_DEPTH);
    begin();
}

void LuAction::apply(LuNode* node) {
    if (!node)
        return;
    node->ref();
    {
        const Walk walk(*this);
        m_path = nullptr;
        m_pathCode = PathCode::NO_PATH;
        start();
        if (m_keepsSteps)
            m_steps.push_back({node, -1});
        node->noteVisit();
        visit(node);
        end();
    }
    node->unref();
}

/// The path is a copy: the traversal may change what it was made from.
void LuAction::apply(LuPath path) {
    if (path.getLength() == 0)
        return;
    const Walk walk(*this);
    m_path = &path;
    m_pathDepth = 0;
    m_pathCode = codeAt(0);
    start();
    if (m_keepsSteps)
        m_steps.push_back({path.getHead(), -1});
    path.getHead()->noteVisit();
    visit(path.getHead());
    end();
}

void LuAction::apply(const LuPathList& paths) {
    for (int i = 0; i < paths.getLength(); ++i)
        apply(paths[i]);
}

void LuAction::keepViewVolume(const LvViewVolume& volume) {
    m_viewVolumes.push_front(volume);
    m_state.viewVolume.set(m_viewVolumes.front());
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
    // Mostly there is no path to compare with, and this is what each visit of a node costs.
    if (m_pathCode != PathCode::NO_PATH && m_pathCode != PathCode::BELOW_PATH)
        visitChild(child, index);
    else if (m_keepsSteps)
        visitWithStep(child, index);
    else
        visitNoted(child);
}

void LuAction::visitNoted(LuNode* node) {
    node->noteVisit();
    visit(node);
}

// These are apart, so that the shortest way above saves no registers for them.

[[gnu::noinline]] void LuAction::visitWithStep(LuNode* child, int index) {
    m_steps.push_back({child, index});
    visitNoted(child);
    m_steps.pop_back();
}

[[gnu::noinline]] void LuAction::visitChild(LuNode* child, int index) {
    const PathCode before = m_pathCode;
    bool isOnPath = false;
    if (before == PathCode::IN_PATH) {
        const int pathIndex = m_path->getIndex(m_pathDepth + 1);
        if (index > pathIndex)
            return;
        isOnPath = index == pathIndex && m_path->getNode(m_pathDepth + 1) == child;
        m_pathCode = isOnPath ? codeAt(++m_pathDepth) : PathCode::OFF_PATH;
    }
    if (m_pathCode != PathCode::OFF_PATH || child->affectsState()) {
        if (m_keepsSteps)
            visitWithStep(child, index);
        else
            visitNoted(child);
    }
    if (isOnPath)
        --m_pathDepth;
    m_pathCode = before;
}

LuAction::PathCode LuAction::codeAt(int pathDepth) const {
    return pathDepth + 1 == m_path->getLength() ? PathCode::BELOW_PATH : PathCode::IN_PATH;
}

LuPath LuAction::makePath(const Steps& steps) {
    LuPath path;
    path.reserve(steps.size());
    for (const Step& step : steps)
        path.append(step.node, step.index);
    return path;
}
