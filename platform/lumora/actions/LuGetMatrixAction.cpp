// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuGetMatrixAction.h"

#include "platform/lumora/nodes/LuNode.h"

void LuGetMatrixAction::visit(LuNode* node) {
    node->getMatrix(this);
    // Separators bring the state back on the way up, so the result is taken at the end of the path.
    const bool isAtEnd = getPathCode() == PathCode::NO_PATH || getPathCode() == PathCode::BELOW_PATH;
    if (isAtEnd && !hasTerminated()) {
        m_matrix = m_state.model;
        setTerminated();
    }
}
