// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuGroup.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/actions/LuSearchAction.h"

LU_NODE_SOURCE(LuGroup, LuNode, "Group")
LU_NODE_SOURCE(LuSeparator, LuGroup, "Separator")
LU_NODE_SOURCE(LuSwitch, LuGroup, "Switch")

LuGroup::LuGroup() : m_children(this) { LuNodeConstructor constructor(s_class, this); }

bool LuGroup::affectsState() const {
    for (int i = 0; i < getNumChildren(); ++i) {
        if (getChild(i)->affectsState())
            return true;
    }
    return false;
}

void LuGroup::doAction(LuAction* action) { m_children.traverse(action); }

void LuGroup::getMatrix(LuGetMatrixAction* action) {
    // At the end of the path a group adds nothing: what its children set does not reach the group itself.
    const LuAction::PathCode code = action->getPathCode();
    if (code == LuAction::PathCode::IN_PATH || code == LuAction::PathCode::OFF_PATH)
        doAction(action);
}

void LuGroup::search(LuSearchAction* action) {
    action->considerTree(this, [&] { doAction(action); });
}

LuSeparator::LuSeparator() { LuNodeConstructor constructor(s_class, this); }

void LuSeparator::doAction(LuAction* action) {
    const LuTraversalState saved = action->getState();
    LuGroup::doAction(action);
    action->getState() = saved;
}

void LuSeparator::getBoundingBox(LuGetBoundingBoxAction* action) {
    action->traverseCached(m_boxCache, [&] { LuGroup::doAction(action); });
}

void LuSeparator::rayPick(LuRayPickAction* action) {
    action->traverseCulled(this, m_boxCache, [&] { LuGroup::doAction(action); });
}

LuEventKinds LuSeparator::getEventKindsBelow() const {
    return m_eventKinds.get([this] { return LuNode::getEventKindsBelow(); });
}

void LuSeparator::handleEvent(LuHandleEventAction* action) {
    if (!action->canPassOver(getEventKindsBelow()))
        LuGroup::handleEvent(action);
}

LuSwitch::LuSwitch() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("whichChild", whichChild);
}

void LuSwitch::doAction(LuAction* action) {
    int numIndices = 0;
    const int* indices = nullptr;
    const int which = whichChild.getValue();
    if (which == SHOW_ALL)
        LuGroup::doAction(action);
    else if (action->usePathCode(numIndices, indices) == LuAction::PathCode::IN_PATH)
        getChildren()->traverse(action, indices[0], indices[0]);
    else if (which >= 0)
        getChildren()->traverse(action, which, which);
}

void LuSwitch::search(LuSearchAction* action) {
    action->considerTree(this, [&] {
        if (action->isSearchingAll())
            LuGroup::doAction(action);
        else
            doAction(action);
    });
}

LuEventKinds LuSwitch::getEventKindsBelow() const {
    const int which = whichChild.getValue();
    if (which == SHOW_ALL)
        return LuGroup::getEventKindsBelow();
    const LuNode* const shown = getChild(which);
    return shown ? shown->getEventKinds() : LuEventKinds();
}
