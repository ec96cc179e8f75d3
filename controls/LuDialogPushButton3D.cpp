// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"

#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuTransforms.h"

const char* LuDialogPushButton::DialogPushButton = LuEmbeddedSkin_DialogPushButton;
LuSkin LuDialogPushButton::s_skin("DialogPushButton.lum", LuEmbeddedSkin_DialogPushButton,
                                  {"DialogPushButtonReleased", "DialogPushButtonPressed"});

void LuDialogPushButton::create3DDialogPushButton() {
    loadFontProperties();
    s_skin.loadOnFirstUse();
    makeParts({&labelSwitch, &frameSwitch, &buttonLabelSep});
    // The names are interned once and not for each button.
    static const LvName TEXT_LOOK = "DialogTextProperties", RELEASED = "DialogPushButtonReleased",
                        PRESSED = "DialogPushButtonPressed";
    setPartAsDefault(labelProp, TEXT_LOOK);
    setPartAsDefault(released, RELEASED);
    setPartAsDefault(pressed, PRESSED);
    setPartAsDefault(buttonLabelProp, TEXT_LOOK);

    createFrame3D(buttonLabelSep);
    createLabel3D();
    change3DLabel();
    createText3D(buttonLabelSep, m_buttonText);
    change3DButtonLabel();

    setSwitchValue(getGroupPart(frameSwitch), 0);
    showLabel3D();
    addStartCallback(startCB3D, nullptr);
    addFinishCallback(finishCB3D, nullptr);
    setBuilt3D(1);
}

void LuDialogPushButton::update3DButton() {
    LvVec2i32 size, offset;
    get3DComponentSize(size, offset);
    // This centres the text because its box starts at 0.
    const LvBox3f& box = getBox3D(m_buttonText, buttonLabelProp.getValue());
    m_buttonText.translation->translation = getTextPlace((box.max.x - box.min.x) * -0.5F, box);
    placeFrame3D(static_cast<float>(offset.x), size);
}

void LuDialogPushButton::change3DLabelVisibility() {
    if (!m_frameScale)
        return;
    showLabel3D();
    update3DButton();
}

void LuDialogPushButton::change3DButtonLabel() {
    setText3D(m_buttonText, convertToCString(buttonLabel.getValue(), this));
}

void LuDialogPushButton::change3DButtonState(int isPressed) {
    if (!m_frameTransform)
        return;
    setSwitchValue(frameSwitch.getValue(), isPressed ? 1 : 0);
    liftToFrame3D();
}

/// A press on the label does not operate the button.
bool LuDialogPushButton::isButtonPicked() const { return isPicked(frameSep) || isPicked(buttonLabelSep); }

void LuDialogPushButton::startCB3D(void*, LuDragger* dragger) {
    auto* const button = static_cast<LuDialogPushButton*>(dragger);
    if (button->isButtonPicked())
        button->draggerStartCallback3D();
}

void LuDialogPushButton::finishCB3D(void*, LuDragger* dragger) {
    auto* const button = static_cast<LuDialogPushButton*>(dragger);
    if (button->isButtonPicked())
        button->draggerFinishCallback3D();
}

void LuDialogPushButton::draggerStartCallback3D() {
    // The component that yields may call auditors, which may end this one.
    const LuKeepAlive alive(this);
    set3DCurrentActive(this);
    change3DButtonState(1);
    if (m_built2D)
        changeButtonState(1);
}

void LuDialogPushButton::draggerFinishCallback3D() {
    set3DInactive();
    change3DButtonState(0);
    if (m_built2D)
        changeButtonState(0);
    applyDlgCptAuditor();
}

void LuDialogPushButton::set3DPressedGeometry(LuNode* node) {
    getGroupPart(frameSwitch)->replaceChild(0, node);
}

void LuDialogPushButton::set3DReleasedGeometry(LuNode* node) {
    getGroupPart(frameSwitch)->replaceChild(1, node);
}
