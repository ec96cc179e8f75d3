// SPDX-License-Identifier: MIT
#include "core/LuPanelix.h"

#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/kits/LuNodeKitDetail.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {

/// A depth that has not been measured yet.
constexpr float UNKNOWN_DEPTH = -1.0F;

/// The emissive colour that greys a component out.
const LvColor DISABLED_GLOW(0.5F, 0.5F, 0.5F);

} // namespace

void LuPanelix::create3DPanelix() {
    // A repeated first build, after one that ended in no rendition, finds these here.
    if (!m_bboxAction) {
        m_bboxAction = new LuGetBoundingBoxAction(LvViewportRegion());
        m_matrixAction = new LuGetMatrixAction(LvViewportRegion());
        m_searchAction = new LuSearchAction;
        m_pickStyle = new LuPickStyle;
        m_pickStyle->ref();
        m_material = new LuMaterial;
        m_material->ref();
    }
    m_labelBBox = getUnsetBox();
}

void LuPanelix::show3D(int show) {
    setSwitchValue(geomSwitch.getValue(), show ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE);
    m_visible3D = show;
}

void LuPanelix::set3DParentTranslation(LvVec3f& translation) {
    m_parentTranslation = translation;
    if (m_parentTranslationNode)
        m_parentTranslationNode->translation.setValue(translation);
}

void LuPanelix::setLook3D(int pickStyle, bool isEnabled) {
    if (!m_pickStyle)
        return;
    // Each container above says so when it is built; once is enough.
    if (m_pickStyle->style.isDefault() || m_pickStyle->style.getValue() != pickStyle)
        m_pickStyle->style.setValue(pickStyle);
    const LvColor glow = isEnabled ? LvColor() : DISABLED_GLOW;
    LuMFColor& emissive = m_material->emissiveColor;
    if (emissive.isDefault() || emissive.getNum() != 1 || emissive[0] != glow)
        emissive.setValue(glow);
}

void LuPanelix::change3DEnable() {
    const bool isEnabled = enable.getValue();
    setLook3D(isEnabled ? LuPickStyle::BOUNDING_BOX : LuPickStyle::UNPICKABLE, isEnabled);
}

void LuPanelix::change3DWidgetEnable(int isParentEnabled) {
    const bool isEnabled = isParentEnabled && enable.getValue();
    setLook3D(isEnabled ? LuPickStyle::SHAPE : LuPickStyle::UNPICKABLE, isEnabled);
}

void LuPanelix::makeParts(std::initializer_list<const LuSFNode*> parts) {
    for (const LuSFNode* part : parts)
        makePart(*part);
}

bool LuPanelix::isPicked(const LuSFNode& part) const {
    const LuPath* const path = getPickPath();
    return path && part.getValue() && path->containsNode(part.getValue());
}

void LuPanelix::addPickDetails(LuRayPickAction* action) {
    for (int i = 0; i < action->getPickedPointsListLength(); ++i) {
        LuPickedPoint* const point = action->getUnsortedPickedPoint(i);
        LuPath* const path = point->getPath();
        int depth = path->getLength() - 1;
        while (depth >= 0 && !path->getNode(depth)->isOfType(getClassTypeId()))
            --depth;
        if (depth < 0)
            continue;
        auto* const component = static_cast<LuPanelix*>(path->getNode(depth));
        if (!point->getDetail(component))
            component->addPickDetail(*point);
        path->setNumPublic(depth + 1);
    }
}

void LuPanelix::change3DLabel() { m_labelBBox = getUnsetBox(); }

void LuPanelix::apply3DParentTranslation() {
    if (m_parentTranslationNode)
        m_parentTranslationNode->unref();
    m_parentTranslationNode = new LuTranslation;
    m_parentTranslationNode->ref();
    m_parentTranslationNode->translation.setValue(m_parentTranslation);
    static_cast<LuGroup*>(makePart(geomSeparator))->insertChild(m_parentTranslationNode, 0);
}

void LuPanelix::apply3DTranslation(LuNode* node, float& depth, LvVec3f& translation) {
    if (depth == UNKNOWN_DEPTH)
        depth = compute3DDepth(node);
    translation += LvVec3f(0, 0, depth);
    translation += m_parentTranslation;
}

float LuPanelix::compute3DDepth(LuNode* node) {
    auto* transform = new LuTransform;
    transform->ref();
    undoTransformMatrix(node, transform);
    const float depth = transform->translation.getValue().z;
    transform->unref();
    return depth;
}

void LuPanelix::undoTransformMatrix(LuNode* node, LuTransform* transform) {
    if (!node || !m_searchAction)
        return;
    m_searchAction->setInterest(LuSearchAction::LAST);
    m_searchAction->setType(LuNode::getClassTypeId(), true);
    m_searchAction->apply(node);
    LuPath* const path = m_searchAction->getPath();
    if (!path)
        return;
    m_matrixAction->apply(std::move(*path));
    LvVec3f translation, scale;
    LvRotation rotation(0, 0, 0, 1), scaleOrientation(0, 0, 0, 1);
    m_matrixAction->getMatrix().getTransform(translation, rotation, scale, scaleOrientation);
    LvMatrix unscaled;
    unscaled.setTransform(translation, rotation, LvVec3f(1, 1, 1));
    transform->setMatrix(unscaled);
}

bool LuPanelix::isLabelCachedBBox() const { return m_labelBBox != getUnsetBox(); }

LvBox3f LuPanelix::measureText(LuNode* properties, LuText3* text) {
    auto* separator = new LuSeparator;
    separator->ref();
    separator->addChild(properties);
    separator->addChild(text);
    m_bboxAction->apply(separator);
    separator->unref();
    const LvBox3f& box = m_bboxAction->getBoundingBox();
    return box.isEmpty() ? LvBox3f({0, 0, 0}, {0, 0, 0}) : box;
}

const LvBox3f& LuPanelix::measureLabel(LuNode* properties, LuText3* text) {
    if (!isLabelCachedBBox())
        setLabelCacheBBox(measureText(properties, text));
    return m_labelBBox;
}

void LuPanelix::writeNode(const char* fileName) {
    LuWriteAction action;
    if (!action.getOutput()->openFile(fileName))
        return;
    action.getOutput()->setBinary(false);
    action.apply(makePart(topSeparator));
    action.getOutput()->closeFile();
}
