// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/base/LvGeometry.h"

/// Accumulates the transforms along a path, those of its last node included. Applied to a node, the result is
/// the node's own transform.
class LuGetMatrixAction : public LuAction {
public:
    explicit LuGetMatrixAction(const LvViewportRegion& region = {}) : m_region(region) {}

    const LvMatrix& getMatrix() const { return m_matrix; }
    const LvViewportRegion& getViewportRegion() const { return m_region; }

protected:
    void visit(LuNode* node) override;
    void begin() override { m_matrix = {}; }

private:
    LvViewportRegion m_region;
    LvMatrix m_matrix;
};
