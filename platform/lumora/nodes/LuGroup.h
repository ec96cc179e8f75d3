// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuBoundingBoxCache.h"
#include "platform/lumora/actions/LuRenderCache.h"
#include "platform/lumora/nodes/LuChildList.h"
#include "platform/lumora/nodes/LuNode.h"

/// A node with an ordered list of children. What they set reaches the nodes that come after the group.
class LuGroup : public LuNode {
    LU_NODE_HEADER(LuGroup)

    LuGroup();

    /// Null is ignored.
    void addChild(LuNode* child) { m_children.append(child); }

    /// An index outside the list is moved to its nearer end.
    void insertChild(LuNode* child, int index) { m_children.insert(child, index); }

    /// Null for an index outside the list.
    LuNode* getChild(int index) const { return m_children[index]; }
    int getNumChildren() const { return m_children.getLength(); }
    int findChild(const LuNode* child) const { return m_children.find(child); }

    /// Nothing happens for an index outside the list, or a node that is no child.
    void removeChild(int index) { m_children.remove(index); }
    void removeChild(const LuNode* child) { m_children.remove(m_children.find(child)); }
    void removeAllChildren() { m_children.truncate(0); }
    void replaceChild(int index, LuNode* child) { m_children.set(index, child); }
    void replaceChild(const LuNode* child, LuNode* newChild) { replaceChild(findChild(child), newChild); }

    LuChildList* getChildren() const override { return const_cast<LuChildList*>(&m_children); }
    bool affectsState() const override;
    void doAction(LuAction* action) override;
    void getMatrix(LuGetMatrixAction* action) override;
    void search(LuSearchAction* action) override;
    void write(LuWriteAction* action) override;
    bool readInstance(LuInput* in, unsigned short flags) override;

protected:
    /// Reads the children that follow the fields.
    virtual bool readChildren(LuInput* in);

private:
    LuChildList m_children;
};

/// A group whose children set nothing beyond it. It keeps its bounding box, what is drawn of it, and which
/// events are listened to below, until something there changes.
class LuSeparator : public LuGroup {
    LU_NODE_HEADER(LuSeparator)

    LuSeparator();

    bool affectsState() const override { return false; }
    void doAction(LuAction* action) override;
    void GLRender(LuGLRenderAction* action) override;
    void getBoundingBox(LuGetBoundingBoxAction* action) override;
    void rayPick(LuRayPickAction* action) override;
    void handleEvent(LuHandleEventAction* action) override;
    LuEventKinds getEventKindsBelow() const override;

    const LuRenderCache& getRenderCache() const { return m_renderCache; }

protected:
    using EventKindsOf = LuSeparator;
    void invalidateCaches() override {
        m_boxCache.invalidate();
        m_renderCache.invalidate();
        m_eventKinds.invalidate();
    }

private:
    LuBoundingBoxCache m_boxCache;
    LuRenderCache m_renderCache;
    mutable LuEventKindsCache m_eventKinds;
};

/// A group that shows one child, all, or none.
class LuSwitch : public LuGroup {
    LU_NODE_HEADER(LuSwitch)

    static constexpr int SHOW_NONE = -1;
    static constexpr int SHOW_ALL = -3;

    LuSwitch();

    LuSFInt32 whichChild{SHOW_NONE}; ///< Index of the child shown, SHOW_NONE or SHOW_ALL.

    void doAction(LuAction* action) override;
    void search(LuSearchAction* action) override;
    LuEventKinds getEventKindsBelow() const override;
};
