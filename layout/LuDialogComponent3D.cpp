// SPDX-License-Identifier: MIT
#include "generated/LuEmbeddedSkins.h"
#include "layout/LuDialogComponent.h"
#include "layout/LuDialogGroup.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"

const char* LuDialogComponent::DialogComponent = LuEmbeddedSkin_DialogComponent;
LuSkin LuDialogComponent::s_skin("DialogComponent.lum", LuEmbeddedSkin_DialogComponent,
                                 {"DialogComponentEdgeStyleNone", "DialogComponentEdgeStyleShadowIn",
                                  "DialogComponentEdgeStyleShadowOut"});

void LuDialogComponent::create3DDialogComponent() {
    loadFontProperties();
    s_skin.loadOnFirstUse();
    // The names are interned once and not for each component.
    static const LvName NO_EDGE = "DialogComponentEdgeStyleNone",
                        EDGE_IN = "DialogComponentEdgeStyleShadowIn",
                        EDGE_OUT = "DialogComponentEdgeStyleShadowOut";
    setPartAsDefault(edgeStyleNone, NO_EDGE);
    setPartAsDefault(edgeStyleShadowIn, EDGE_IN);
    setPartAsDefault(edgeStyleShadowOut, EDGE_OUT);

    // A skin without its groups leaves the parts above them to us.
    makePart(edgeStyleSwitch);
    auto* const frame = static_cast<LuSeparator*>(mainCptSeparator.getValue());
    auto* const geometry = static_cast<LuSwitch*>(geomSwitch.getValue());
    m_mainScale = new LuScale;
    frame->insertChild(m_mainScale, 0);
    m_mainTranslation = new LuTranslation;
    geometry->insertChild(m_mainTranslation, 0);
    geometry->insertChild(m_pickStyle, 0);
    geometry->insertChild(m_material, 0);
    if (hasMainTransform()) {
        m_mainTransform = new LuTransform;
        geometry->addChild(m_mainTransform);
    }
    setSwitchValue(edgeStyleSwitch.getValue(), edgeStyle.getValue());
    apply3DParentTranslation();
    m_depth = -1.0F;
    show3D(1);
}

void LuDialogComponent::update3DDialogComponent() {
    const float w = static_cast<float>(width.getValue());
    const float h = static_cast<float>(height.getValue());
    float x = 0;
    float y = 0;
    float z = 0;
    // Children of these stand relative to the top-left corner of their group's frame, others to the origin.
    if (m_parent && m_parent->canBeTraversed() && m_parent->isDialogGroup() &&
        static_cast<LuDialogGroup*>(m_parent)->placesChildren()) {
        const auto* const parent = static_cast<LuDialogComponent*>(m_parent);
        if (parent->m_mainTranslation) {
            const LvVec3f& center = parent->m_mainTranslation->translation.getValue();
            x = center.x;
            y = center.y;
            z = center.z;
        }
        x -= static_cast<float>(parent->width.getValue()) * 0.5F;
        y += static_cast<float>(parent->height.getValue()) * 0.5F;
    }
    y -= h * 0.5F + static_cast<float>(m_position.y);
    m_mainTranslation->translation.setValue({w * 0.5F + static_cast<float>(m_position.x) + x, y, z});
    m_mainScale->scaleFactor.setValue({w, h, 1});
    if (m_mainTransform)
        undoTransformMatrix(mainCptSeparator.getValue(), m_mainTransform);
}

void LuDialogComponent::change3DEdgeStyle() {
    setSwitchValue(edgeStyleSwitch.getValue(), edgeStyle.getValue());
}

void LuDialogComponent::buildFromTraversal() {
    if (isBuilt3D() || m_mainScale)
        return;
    const bool wasEnabled = enableNotify(false);
    LuPanelix* const top = getFirstTopParent(0, 1);
    if (top && !top->isBuilt3D()) {
        setChildrenSizes();
        // The component stands in the scene without the tree above it.
        if (top != this)
            top->setCanBeTraversed(0);
    }
    LvVec2i32 noSize;
    LvVec2i32 noPosition;
    buildWidget(nullptr, noSize, noPosition, 0);
    enableNotify(wasEnabled);
}

void LuDialogComponent::getBoundingBox(LuGetBoundingBoxAction* action) {
    buildFromTraversal();
    doAction(action);
}
