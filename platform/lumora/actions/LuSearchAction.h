// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/base/LuType.h"

/// Finds nodes by type, by name or by identity; where several are set, a node must meet all.
class LuSearchAction : public LuAction {
public:
    enum Interest { FIRST = 0, LAST = 1, ALL = 2 };

    LuSearchAction() { keepSteps(); }

    void setType(LuType type, bool derivedOk = true);
    void setName(LvName name) { m_name = name; }
    void setNode(const LuNode* node) { m_node = node; }
    void setInterest(Interest interest) { m_interest = interest; }
    Interest getInterest() const { return m_interest; }

    /// Whether children that a switch doesn't show are searched too.
    void setSearchingAll(bool isSearchingAll) { m_isSearchingAll = isSearchingAll; }
    bool isSearchingAll() const { return m_isSearchingAll; }

    /// Back to the start: no criterion, FIRST, shown children only.
    void reset();

    /// The path found; null when there is none, and for interest ALL. It stays this action's.
    LuPath* getPath() { return m_hasPath ? &m_path : nullptr; }

    /// The paths found, for interest ALL.
    LuPathList& getPaths() { return m_paths; }

    /// True when the first node was found: the search is over.
    bool isFinished() const { return m_interest == FIRST && hasTerminated(); }

    /// A node offers itself.
    void consider(LuNode* node);

    /// A node offers itself and what `traverseBelow` leads to: for LAST itself last, since that search goes
    /// backwards and ends at the first node that fits.
    template <class Function>
    void considerTree(LuNode* node, Function traverseBelow) {
        if (!goesBackwards())
            consider(node);
        if (!hasTerminated())
            traverseBelow();
        if (goesBackwards())
            consider(node);
    }

    bool goesBackwards() const override { return m_interest == LAST; }

protected:
    void visit(LuNode* node) override;
    void begin() override;

private:
    bool fits(const LuNode* node) const;

    LuType m_type;
    bool m_derivedOk = true;
    LvName m_name;
    const LuNode* m_node = nullptr;
    Interest m_interest = FIRST;
    bool m_isSearchingAll = false;
    bool m_hasPath = false;
    LuPath m_path;
    LuPathList m_paths;
};
