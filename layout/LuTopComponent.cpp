// SPDX-License-Identifier: MIT
#include "layout/LuTopComponent.h"

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuTransforms.h"

LU_KIT_SOURCE(LuTopComponent, LuPanelix, "TopComponent")

LuTopComponent::LuTopComponent() { LuKitConstructor constructor(s_class, this, &initClass); }

void LuTopComponent::getSize(LvVec2i32&, LvVec2i32&, LvVec2i32&) {}

void LuTopComponent::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuPanelix::buildWidget(parent, size, position, is2D);
}

void LuTopComponent::destroyWidget() { LuPanelix::destroyWidget(); }

void LuTopComponent::updateFromSensor(LuSensor* sensor) { LuPanelix::updateFromSensor(sensor); }

void LuTopComponent::addTranslation(LuTranslation* node) {
    if (!node)
        return;
    auto* const geometry = static_cast<LuSwitch*>(makePart(geomSwitch));
    LuNode* const first = geometry->getChild(0);
    if (first && first->isOfType(LuTranslation::getClassTypeId()) &&
        first->getName() == LvName("parentPositionTranslation"))
        static_cast<LuTranslation*>(first)->translation.setValue(node->translation.getValue());
    else
        geometry->insertChild(node, 0);
}
