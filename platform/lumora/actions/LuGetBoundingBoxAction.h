// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/actions/LuBoundingBoxCache.h"
#include "platform/lumora/base/LvGeometry.h"

#include <algorithm>

/// Finds the box round all shapes that show, in the space of the node it is applied to.
class LuGetBoundingBoxAction : public LuAction {
public:
    explicit LuGetBoundingBoxAction(const LvViewportRegion& region = {}) : m_region(region) {}

    /// The result of the last apply; empty when there was nothing to see.
    const LvBox3f& getBoundingBox() const { return m_box; }
    const LvViewportRegion& getViewportRegion() const { return m_region; }

    /// The box of a node in its own space, with what a traversal in `state` has inherited: for an action that
    /// stands at the node.
    const LvBox3f& measure(LuNode* node, const LuTraversalState& state);

    /// A shape adds its box, given in the current space.
    void extendBy(const LvBox3f& box);

    /// A shape says at which depth of separators the inherited setting was made that its box depends on.
    void noteInheritedDepth(int depth) { m_usedDepth = std::min(m_usedDepth, depth); }

    int getSeparatorDepth() const override { return m_separatorDepth; }

    /// Traverses a separator's content by `traverseContent`, or takes its box from the cache where that is
    /// possible. State and space are as before when it returns.
    template <class Function>
    void traverseCached(LuBoundingBoxCache& cache, Function traverseContent) {
        const bool isWhole = getPathCode() == PathCode::NO_PATH || getPathCode() == PathCode::BELOW_PATH;
        if (isWhole && cache.isValid()) {
            extendBy(cache.getBox());
            return;
        }
        if (isWhole)
            cache.begin();
        const Saved saved = enterSeparator();
        traverseContent();
        leaveSeparator(saved, isWhole ? &cache : nullptr);
    }

protected:
    void visit(LuNode* node) override;
    void begin() override;

private:
    struct Saved {
        LuTraversalState state;
        LvBox3f box;
        int usedDepth;
    };
    Saved enterSeparator();
    void leaveSeparator(const Saved& saved, LuBoundingBoxCache* cache);

    LvViewportRegion m_region;
    const LuTraversalState* m_inherited = nullptr;
    LvBox3f m_box;
    int m_separatorDepth = 0;
    int m_usedDepth = 0; ///< Depth of the outermost inherited setting that the current content used.
};
