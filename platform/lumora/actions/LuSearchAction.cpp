// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuSearchAction.h"

#include "platform/lumora/nodes/LuNode.h"

void LuSearchAction::setType(LuType type, bool derivedOk) {
    m_type = type;
    m_derivedOk = derivedOk;
}

void LuSearchAction::reset() {
    setType({}, true);
    m_name = {};
    m_node = nullptr;
    m_interest = FIRST;
    m_isSearchingAll = false;
}

void LuSearchAction::visit(LuNode* node) {
    if (!hasTerminated())
        node->search(this);
}

void LuSearchAction::begin() {
    m_hasPath = false;
    m_path.truncate(0);
    m_paths.clear();
}

bool LuSearchAction::fits(const LuNode* node) const {
    if (m_type.isBad() && m_name.isEmpty() && !m_node)
        return false;
    const bool fitsType =
        m_type.isBad() || (m_derivedOk ? node->isOfType(m_type) : node->getTypeId() == m_type);
    return fitsType && (m_name.isEmpty() || node->getName() == m_name) && (!m_node || node == m_node);
}

void LuSearchAction::consider(LuNode* node) {
    if (hasTerminated() || !fits(node))
        return;
    if (m_interest == ALL) {
        m_paths.append(makePath(getCurrentSteps()));
        return;
    }
    // The path is made at once: an override of search shortens it before the traversal ends.
    m_path = makePath(getCurrentSteps());
    m_hasPath = true;
    setTerminated();
}
