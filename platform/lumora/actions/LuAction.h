// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuPath.h"
#include "platform/lumora/actions/LuTraversalState.h"

#include <forward_list>

class LuNode;
class LvViewportRegion;

/// Walks a graph, or the part of it that matters to a path, and does something at each node.
///
/// What is met on the way may apply the action again; the outer walk then goes on where it was.
class LuAction : public LuPooled {
public:
    /// Where the traversal stands with respect to the path it was applied to.
    enum class PathCode {
        NO_PATH,    ///< Applied to a node.
        IN_PATH,    ///< At a node of the path, above its end.
        BELOW_PATH, ///< At the end of the path, or below.
        OFF_PATH    ///< Beside the path, at a node that comes before it.
    };

    LuAction() = default;
    LuAction(const LuAction&) = delete;
    LuAction& operator=(const LuAction&) = delete;
    virtual ~LuAction() = default;

    /// Starts at a node. It is referenced meanwhile.
    void apply(LuNode* node);
    void apply(LuPath path);
    void apply(const LuPathList& paths);

    PathCode getPathCode() const { return m_pathCode; }

    /// In the path, the number of the child that the path goes on with and the child itself in `indices`;
    /// otherwise 0.
    PathCode usePathCode(int& numIndices, const int*& indices);

    LuTraversalState& getState() { return m_state; }
    const LuTraversalState& getState() const { return m_state; }

    /// Puts what a camera sees in the state.
    void keepViewVolume(const LvViewVolume& volume);

    /// How many separators with a cache stand above the current node; 0 for an action that keeps no caches.
    virtual int getSeparatorDepth() const { return 0; }

    /// The viewport that cameras fit what they see to; null for an action that does not look.
    virtual const LvViewportRegion* getViewport() const { return nullptr; }

    /// Goes on with a child of the current node.
    void traverseChild(LuNode* child, int index);

    /// True for a traversal that visits the children of each node from the last to the first.
    virtual bool goesBackwards() const { return false; }

    /// True once nothing further can change the result; nodes then don't go on.
    bool hasTerminated() const { return m_hasTerminated; }

    /// The nodes from where the action was applied to the current one, for actions that keep them.
    struct Step {
        LuNode* node;
        int index;
    };
    using Steps = std::vector<Step, LuPoolAllocator<Step>>;
    const Steps& getCurrentSteps() const { return m_steps; }

protected:
    /// What the action does at a node.
    virtual void visit(LuNode* node) = 0;

    /// Before and after each apply to a node or a path.
    virtual void begin() {}
    virtual void end() {}

    void setTerminated() { m_hasTerminated = true; }

    /// The path of steps that were kept.
    static LuPath makePath(const Steps& steps);

    /// To be set in the constructor of an action that needs getCurrentSteps.
    void keepSteps() { m_keepsSteps = true; }

    LuTraversalState m_state;

private:
    class Walk;

    void start();
    PathCode codeAt(int pathDepth) const;
    void visitNoted(LuNode* node);
    void visitWithStep(LuNode* child, int index);
    void visitChild(LuNode* child, int index);

    /// What the states of this walk point to. It stays until the next.
    using ViewVolumes = std::forward_list<LvViewVolume, LuPoolAllocator<LvViewVolume>>;
    ViewVolumes m_viewVolumes;
    const LuPath* m_path = nullptr;
    int m_pathDepth = 0;
    int m_nextIndex = -1;
    PathCode m_pathCode = PathCode::NO_PATH;
    bool m_hasTerminated = false;
    bool m_isWalking = false;
    bool m_keepsSteps = false;
    Steps m_steps;
};
