// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuBaseKit.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/actions/LuSearchAction.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/kits/LuNodeKitDetail.h"

bool LuBaseKit::searchingChildren = false;

namespace {

LuFieldData* s_noFieldData = nullptr;
LuNodekitCatalog* s_noCatalog = nullptr;

} // namespace

LuType LuBaseKit::getClassTypeId() {
    static const LuType s_type =
        LuType::createType(LuNode::getClassTypeId(), "BaseKit", nullptr, LuNode::getNextActionMethodIndex());
    return s_type;
}

void LuBaseKit::initClass() { getClassTypeId(); }

LuFieldData** LuBaseKit::getFieldDataPtr() { return &s_noFieldData; }

LuNodekitCatalog** LuBaseKit::getClassNodekitCatalogPtr() { return &s_noCatalog; }

LuSFNode& LuBaseKit::getFieldOf(const LuNodekitPart& part) const {
    const char* const start = reinterpret_cast<const char*>(static_cast<const LuFieldContainer*>(this));
    return *reinterpret_cast<LuSFNode*>(const_cast<char*>(start + part.fieldOffset));
}

LuSFNode* LuBaseKit::getPartField(int part) const {
    return part > LuNodekitCatalog::THIS_PART ? &getFieldOf(getNodekitCatalog()->getPart(part)) : nullptr;
}

int LuBaseKit::getPartNumber(LvName part) const {
    const LuNodekitCatalog* const catalog = getNodekitCatalog();
    return catalog ? catalog->getPartNumber(part) : -1;
}

int LuBaseKit::getPartNumber(const LuSFNode& field) const {
    const LuNodekitCatalog* const catalog = getNodekitCatalog();
    const char* const start = reinterpret_cast<const char*>(static_cast<const LuFieldContainer*>(this));
    return catalog ? catalog->getPartNumber(reinterpret_cast<const char*>(&field) - start) : -1;
}

LuNode* LuBaseKit::getPart(LvName part, bool makeIfNeeded) {
    const int number = getPartNumber(part);
    if (number == LuNodekitCatalog::THIS_PART)
        return this;
    if (number < 0)
        return nullptr;
    return makeIfNeeded ? makePart(number) : getPartField(number)->getValue();
}

LuNode* LuBaseKit::makePart(int part) {
    if (part <= LuNodekitCatalog::THIS_PART)
        return nullptr;
    const LuNodekitPart& row = getNodekitCatalog()->getPart(part);
    const LuSFNode& field = getFieldOf(row);
    if (!field.getValue())
        setPartByNumber(part, static_cast<LuNode*>(row.defaultType.createInstance()), true);
    return field.getValue();
}

bool LuBaseKit::setPart(LvName part, LuNode* node) {
    const int number = getPartNumber(part);
    if (number <= LuNodekitCatalog::THIS_PART) {
        LuDebugError::post("LuBaseKit::setPart", "%s has no part named \"%s\".",
                           getTypeId().getName().getString(), part.getString());
        return false;
    }
    return setPartByNumber(number, node, false);
}

LuChildList* LuBaseKit::getParentList(const LuNodekitPart& part) {
    if (part.parentNumber == LuNodekitCatalog::THIS_PART)
        return &m_children;
    return makePart(part.parentNumber)->getChildren();
}

int LuBaseKit::getInsertIndex(const LuNodekitPart& part, const LuChildList& siblings) const {
    const LuNodekitCatalog* const catalog = part.rightSiblingNumber >= 0 ? getNodekitCatalog() : nullptr;
    for (int i = part.rightSiblingNumber; i > LuNodekitCatalog::THIS_PART;
         i = catalog->getPart(i).rightSiblingNumber) {
        if (const LuNode* node = getFieldOf(catalog->getPart(i)).getValue())
            return siblings.find(node);
    }
    return siblings.getLength();
}

bool LuBaseKit::setPartByNumber(int part, LuNode* node, bool isDefault) {
    const LuNodekitPart& row = getNodekitCatalog()->getPart(part);
    if (node && !node->isOfType(row.type)) {
        LuDebugError::post("LuBaseKit::setPart", "Part \"%s\" of %s takes a %s, not a %s.",
                           row.name.getString(), getTypeId().getName().getString(),
                           row.type.getName().getString(), node->getTypeId().getName().getString());
        return false;
    }
    LuSFNode& field = getFieldOf(row);
    LuNode* const before = field.getValue();
    const LuKeepAlive alive(this);
    const LuKeepAlive aliveBefore(before);
    LuChildList* const siblings = node || before ? getParentList(row) : nullptr;
    if (siblings) {
        const int index = before ? siblings->find(before) : -1;
        if (node && index >= 0)
            siblings->set(index, node);
        else if (node)
            siblings->insert(node, getInsertIndex(row, *siblings));
        else
            siblings->remove(index);
    }
    field.setValue(node);
    field.setDefault(isDefault);
    return true;
}

LvName LuBaseKit::getPartString(const LuNode* node) const {
    const LuNodekitCatalog* const catalog = getNodekitCatalog();
    for (int i = 1; node && catalog && i < catalog->getNumEntries(); ++i) {
        if (getPartField(i)->getValue() == node)
            return catalog->getName(i);
    }
    return {};
}

void LuBaseKit::createDefaultParts() {
    const LuNodekitCatalog& catalog = *getNodekitCatalog();
    for (int i = 1; i < catalog.getNumEntries(); ++i) {
        if (!catalog.getPart(i).nullByDefault)
            makePart(i);
    }
}

void LuBaseKit::catalogError(LvName part) const {
    LuDebugError::post("LuBaseKit::catalogError", "Part \"%s\" could not be added to the catalogue of %s.",
                       part.getString(), getTypeId().getName().getString());
}

void LuBaseKit::doAction(LuAction* action) { m_children.traverse(action); }

void LuBaseKit::getBoundingBox(LuGetBoundingBoxAction* action) {
    // A single part is a separator and keeps the box itself.
    if (m_children.getLength() > 1)
        action->traverseCached(m_boxCache, [&] { LuBaseKit::doAction(action); });
    else
        doAction(action);
}

void LuBaseKit::getMatrix(LuGetMatrixAction* action) {
    if (action->getPathCode() == LuAction::PathCode::IN_PATH)
        doAction(action);
}

void LuBaseKit::pickContent(LuRayPickAction* action) {
    // A single part is a separator and keeps the box itself.
    if (m_children.getLength() > 1)
        action->traverseCulled(this, m_boxCache, [&] { LuBaseKit::doAction(action); });
    else
        doAction(action);
}

LuNode* LuBaseKit::findPublicPart(const LuPath& path, LvName& name) const {
    // Above the kit there are none of its parts.
    for (int i = path.getLength() - 1; i >= 0 && path.getNode(i) != this; --i) {
        const LvName part = getPartString(path.getNode(i));
        if (!part.isEmpty() && getNodekitCatalog()->isPublic(getPartNumber(part))) {
            name = part;
            return path.getNode(i);
        }
    }
    return nullptr;
}

void LuBaseKit::rayPick(LuRayPickAction* action) {
    const int hitCount = action->getHitCount();
    pickContent(action);
    if (action->getHitCount() == hitCount)
        return;
    for (int i = 0; i < action->getPickedPointsListLength(); ++i) {
        LuPickedPoint* const point = action->getUnsortedPickedPoint(i);
        if (point->getDetail(this))
            continue;
        // What a component below has hidden counts too.
        LuPath& path = *point->getPath();
        const int numPublic = path.getLength();
        path.setNumPublic(-1);
        if (path.containsNode(this))
            addPickDetail(*point);
        path.setNumPublic(numPublic);
    }
}

void LuBaseKit::addPickDetail(LuPickedPoint& point) {
    auto detail = std::make_unique<LuNodeKitDetail>();
    LvName name;
    detail->setNodeKit(this);
    detail->setPart(findPublicPart(*point.getPath(), name));
    detail->setPartName(name);
    point.setDetail(std::move(detail), this);
}

LuEventKinds LuBaseKit::getEventKindsBelow() const {
    return m_eventKinds.get([this] { return LuNode::getEventKindsBelow(); });
}

void LuBaseKit::handleEvent(LuHandleEventAction* action) {
    if (action->canPassOver(getEventKindsBelow()))
        return;
    // A kit's parts set nothing beyond it.
    const LuTraversalState saved = action->getState();
    doAction(action);
    action->getState() = saved;
}

void LuBaseKit::search(LuSearchAction* action) {
    action->considerTree(this, [&] {
        if (searchingChildren)
            doAction(action);
    });
}

void LuBaseKit::internalAddChild(LuNode* child) { m_children.append(child); }
int LuBaseKit::internalFindChild(const LuNode* child) const { return m_children.find(child); }
void LuBaseKit::internalInsertChild(LuNode* child, int index) { m_children.insert(child, index); }
LuNode* LuBaseKit::internalGetChild(int index) const { return m_children[index]; }
void LuBaseKit::internalRemoveChild(LuNode* child) { m_children.remove(m_children.find(child)); }
void LuBaseKit::internalRemoveChild(int index) { m_children.remove(index); }
void LuBaseKit::internalRemoveAllChildren() { m_children.truncate(0); }
void LuBaseKit::internalReplaceChild(LuNode* child, LuNode* newChild) {
    m_children.set(m_children.find(child), newChild);
}
void LuBaseKit::internalReplaceChild(int index, LuNode* newChild) { m_children.set(index, newChild); }
