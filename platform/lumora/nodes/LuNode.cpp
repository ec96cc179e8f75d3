// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuNode.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/actions/LuSearchAction.h"
#include "platform/lumora/nodes/LuChildList.h"

namespace {

int s_nextActionMethodIndex = 0;

} // namespace

LuType LuNode::getClassTypeId() {
    static const LuType s_type =
        LuType::createType(LuFieldContainer::getClassTypeId(), "Node", nullptr, getNextActionMethodIndex());
    return s_type;
}

void LuNode::initClass() { getClassTypeId(); }

LuFieldData** LuNode::getFieldDataPtr() {
    static LuFieldData* s_none = nullptr;
    return &s_none;
}

void LuNode::getBoundingBox(LuGetBoundingBoxAction* action) { doAction(action); }

void LuNode::getMatrix(LuGetMatrixAction* action) { doAction(action); }

void LuNode::rayPick(LuRayPickAction* action) { doAction(action); }

void LuNode::handleEvent(LuHandleEventAction* action) { doAction(action); }

LuEventKinds LuNode::getEventKinds() const {
    // Those above keep the answer.
    noteVisit();
    const LuEventKinds own = tellsEventKinds() ? getOwnEventKinds() : LuEventKinds::all();
    return own | getEventKindsBelow();
}

LuEventKinds LuNode::getEventKindsBelow() const {
    noteVisit();
    LuEventKinds kinds;
    const LuChildList* const children = getChildren();
    const int length = children ? children->getLength() : 0;
    for (int i = 0; i < length; ++i)
        kinds |= children->get(i)->getEventKinds();
    return kinds;
}

void LuNode::eventKindsChanged() {
    // Nothing has changed for sensors.
    const bool wasEnabled = enableNotify(false);
    startNotify();
    enableNotify(wasEnabled);
}

void LuNode::search(LuSearchAction* action) { action->consider(this); }

bool LuNode::isEqual(const LuNode& other) const {
    if (this == &other)
        return true;
    if (getName() != other.getName() || !fieldsAreEqual(other))
        return false;
    const LuChildList* mine = getChildren();
    const LuChildList* theirs = other.getChildren();
    const int length = mine ? mine->getLength() : 0;
    if (length != (theirs ? theirs->getLength() : 0))
        return false;
    for (int i = 0; i < length; ++i) {
        if (!mine->get(i)->isEqual(*theirs->get(i)))
            return false;
    }
    return true;
}

LuNode* LuNode::getByName(LvName name) {
    for (LuBase* base : LuBase::getNamed(name)) {
        if (base->isOfType(getClassTypeId()))
            return static_cast<LuNode*>(base);
    }
    return nullptr;
}

int LuNode::getNextActionMethodIndex() { return s_nextActionMethodIndex; }

void LuNode::incNextActionMethodIndex() { ++s_nextActionMethodIndex; }

void LuNodeConstructor::beginClass() {
    m_class.fieldData = new LuFieldData(m_class.parentFieldData ? *m_class.parentFieldData : nullptr);
}

void LuNodeConstructor::describeEnum(const char* typeName,
                                     std::initializer_list<std::pair<const char*, int>> values) {
    for (const auto& [name, value] : values)
        m_class.fieldData->addEnumValue(typeName, name, value);
    m_class.fieldData->setEnumOfLastField(typeName);
}

void luInitNodeClass(LuNodeClass& nodeClass, LuType parent, LuFieldData** parentFieldData,
                     const char* typeName, LuType::CreateMethod create) {
    nodeClass.classTypeId = LuType::createType(parent, typeName, create, LuNode::getNextActionMethodIndex());
    if (!nodeClass.parentFieldData)
        LuNode::incNextActionMethodIndex();
    nodeClass.parentFieldData = parentFieldData;
}
