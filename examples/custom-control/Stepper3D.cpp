// SPDX-License-Identifier: MIT
#include "examples/custom-control/Stepper.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {

constexpr float BUTTON_SIZE = 20;
constexpr float BUTTON_MIDDLE = BUTTON_SIZE / 2 + 2; ///< From the end of the room to the middle of a button.
constexpr float SIGN_LENGTH = 10, SIGN_WIDTH = 2;

void addBox(LuGroup& group, const LvVec3f& size, const LvColor& color) {
    auto* material = new LuMaterial;
    material->diffuseColor.setValue(color);
    auto* cube = new LuCube;
    cube->width.setValue(size.x);
    cube->height.setValue(size.y);
    cube->depth.setValue(size.z);
    group.addChild(material);
    group.addChild(cube);
}

/// A button with a minus, or with a plus, on it; its back is at z 0.
LuGroup* makeButton(bool isPlus) {
    auto* group = new LuGroup;
    auto* translation = new LuTranslation;
    translation->translation.setValue({0, 0, 1});
    group->addChild(translation);
    addBox(*group, {BUTTON_SIZE, BUTTON_SIZE, 2}, {0.7F, 0.75F, 0.8F});
    const LvColor dark(0.1F, 0.1F, 0.2F);
    addBox(*group, {SIGN_LENGTH, SIGN_WIDTH, 2.5F}, dark);
    if (isPlus)
        addBox(*group, {SIGN_WIDTH, SIGN_LENGTH, 2.5F}, dark);
    return group;
}

} // namespace

void Stepper::create3DStepper() {
    loadFontProperties();
    makeParts({&labelSwitch, &minusSep, &plusSep, &valueSep});
    setPartAsDefault(labelProp, "DialogTextProperties");
    setPartAsDefault(valueProp, "DialogTextProperties");
    // What a dialog file has brought stays.
    if (!minus.getValue())
        setPart("minus", makeButton(false));
    if (!plus.getValue())
        setPart("plus", makeButton(true));

    m_minusTranslation = new LuTranslation;
    getGroupPart(minusSep)->insertChild(m_minusTranslation, 0);
    m_plusTranslation = new LuTranslation;
    getGroupPart(plusSep)->insertChild(m_plusTranslation, 0);
    createLabel3D();
    change3DLabel();
    createText3D(valueSep, m_valueText);
    setText3D(m_valueText, getValueText());

    showLabel3D();
    addFinishCallback(finishCB3D, nullptr);
    setBuilt3D(1);
}

void Stepper::update3DStepper() {
    placeLabel3D();
    int left = 0, room = 0;
    getRoom3D(left, room);
    // Places are relative to the middle of the component.
    const auto begin = static_cast<float>(left - width.getValue() * 0.5);
    const auto end = begin + static_cast<float>(room);
    m_minusTranslation->translation = LvVec3f(begin + BUTTON_MIDDLE, 0, 0);
    m_plusTranslation->translation = LvVec3f(end - BUTTON_MIDDLE, 0, 0);
    const LvBox3f& box = getBox3D(m_valueText, valueProp.getValue());
    m_valueText.translation->translation = getTextPlace((begin + end - box.min.x - box.max.x) * 0.5F, box);
}

void Stepper::changeValue3D() {
    setText3D(m_valueText, getValueText());
    update3DStepper();
}

void Stepper::change3DLabelVisibility() {
    if (!isBuilt3D())
        return;
    showLabel3D();
    update3DStepper();
}

/// The end of a press in the scene. What counts is where it began.
void Stepper::finishCB3D(void*, LuDragger* dragger) {
    auto* const stepper = static_cast<Stepper*>(dragger);
    const bool isMinus = stepper->isPicked(stepper->minusSep);
    if (!isMinus && !stepper->isPicked(stepper->plusSep))
        return;
    const LuKeepAlive alive(stepper);
    set3DCurrentActive(stepper);
    stepper->set3DInactive();
    stepper->step(isMinus ? -1 : 1);
}
