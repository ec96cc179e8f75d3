// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"

#include "platform/lumora/nodes/LuNode.h"

#include <algorithm>
#include <limits>

void LuGetBoundingBoxAction::visit(LuNode* node) { node->getBoundingBox(this); }

void LuGetBoundingBoxAction::begin() {
    m_box.makeEmpty();
    m_separatorDepth = 0;
    m_usedDepth = std::numeric_limits<int>::max();
    if (!m_inherited)
        return;
    m_state = *m_inherited;
    m_state.model = {};
    if (m_inherited->viewVolume.isSet())
        keepViewVolume(m_inherited->viewVolume.get());
    // All of it was set outside of what is measured.
    m_state.fontDepth = 0;
    m_state.coordinateDepth = 0;
}

const LvBox3f& LuGetBoundingBoxAction::measure(LuNode* node, const LuTraversalState& state) {
    m_inherited = &state;
    apply(node);
    m_inherited = nullptr;
    return m_box;
}

void LuGetBoundingBoxAction::extendBy(const LvBox3f& box) {
    LvBox3f transformed = box;
    transformed.transform(m_state.model);
    m_box.extendBy(transformed);
}

LuGetBoundingBoxAction::Saved LuGetBoundingBoxAction::enterSeparator() {
    const Saved saved{m_state, m_box, m_usedDepth};
    m_state.model = LvMatrix();
    m_box.makeEmpty();
    m_usedDepth = std::numeric_limits<int>::max();
    ++m_separatorDepth;
    return saved;
}

void LuGetBoundingBoxAction::leaveSeparator(const Saved& saved, LuBoundingBoxCache* cache) {
    const LvBox3f content = m_box;
    if (cache && m_usedDepth >= m_separatorDepth)
        cache->finish(content);
    else if (cache)
        cache->giveUp();
    --m_separatorDepth;
    m_usedDepth = std::min(m_usedDepth, saved.usedDepth);
    m_state = saved.state;
    m_box = saved.box;
    extendBy(content);
}
