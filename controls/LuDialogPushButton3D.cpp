// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"

#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

const char* LuDialogPushButton::DialogPushButton = LuEmbeddedSkin_DialogPushButton;
LuSkin LuDialogPushButton::s_skin("DialogPushButton.lum", LuEmbeddedSkin_DialogPushButton,
                                  {"DialogPushButtonReleased", "DialogPushButtonPressed"});

void LuDialogPushButton::create3DDialogPushButton() {
    loadFontProperties();
    s_skin.loadOnFirstUse();
    makeParts({"labelSwitch", "frameSwitch", "buttonLabelSep"});
    // The names are interned once and not for each button.
    static const std::pair<LvName, LvName> SKIN_PARTS[] = {{"labelProp", "DialogTextProperties"},
                                                           {"released", "DialogPushButtonReleased"},
                                                           {"pressed", "DialogPushButtonPressed"},
                                                           {"buttonLabelProp", "DialogTextProperties"}};
    for (const auto& [part, node] : SKIN_PARTS)
        setPartAsDefault(part, node);

    m_frameScale = new LuScale;
    getGroupPart("frameSep")->insertChild(m_frameScale, 0);
    m_frameTranslation = new LuTranslation;
    insertBeforePart(m_frameTranslation, "frameSep");
    m_frameTransform = new LuTransform;
    insertBeforePart(m_frameTransform, "buttonLabelSep");

    createLabel3D();
    change3DLabel();

    m_buttonLabelTranslation = new LuTranslation;
    m_buttonText3 = new LuText3;
    m_buttonText3->parts = LuText3::FRONT;
    LuGroup* const buttonLabelGroup = getGroupPart("buttonLabelSep");
    buttonLabelGroup->insertChild(m_buttonLabelTranslation, 0);
    buttonLabelGroup->addChild(m_buttonText3);
    change3DButtonLabel();

    setSwitchValue(getGroupPart("frameSwitch"), 0);
    showLabel3D();
    addStartCallback(startCB3D, nullptr);
    addFinishCallback(finishCB3D, nullptr);
    setBuilt3D(1);
    m_buttonLabelBBox = getUnsetBox();
}

void LuDialogPushButton::update3DButton() {
    LvVec2i32 size, offset;
    get3DComponentSize(size, offset);
    m_frameTranslation->translation = LvVec3f(static_cast<float>(offset.x), static_cast<float>(offset.y), 0);
    m_frameScale->scaleFactor = LvVec3f(static_cast<float>(size.x), static_cast<float>(size.y), 1);

    if (m_buttonLabelBBox == getUnsetBox())
        m_buttonLabelBBox = measureText(buttonLabelProp.getValue(), m_buttonText3);
    // This centres the text because its box starts at 0.
    const float textWidth = m_buttonLabelBBox.max.x - m_buttonLabelBBox.min.x;
    m_buttonLabelTranslation->translation = getTextPlace(textWidth * -0.5F, m_buttonLabelBBox);
    undoTransformMatrix(frameSep.getValue(), m_frameTransform);
}

void LuDialogPushButton::change3DLabel() {
    if (m_labelText3)
        m_labelText3->string.setValue(label.getValue());
    LuLabelledControl::change3DLabel();
}

void LuDialogPushButton::change3DLabelAlignment() { update3DLabel(); }

void LuDialogPushButton::change3DLabelVisibility() {
    if (!m_frameScale)
        return;
    showLabel3D();
    update3DButton();
}

void LuDialogPushButton::change3DButtonLabel() {
    if (m_buttonText3)
        setStringToText3(m_buttonText3, convertToCString(buttonLabel.getValue(), this));
    m_buttonLabelBBox = getUnsetBox();
}

void LuDialogPushButton::change3DButtonState(int isPressed) {
    if (!m_frameTransform)
        return;
    setSwitchValue(frameSwitch.getValue(), isPressed ? 1 : 0);
    undoTransformMatrix(frameSep.getValue(), m_frameTransform);
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
    getGroupPart("frameSwitch")->replaceChild(0, node);
}

void LuDialogPushButton::set3DReleasedGeometry(LuNode* node) {
    getGroupPart("frameSwitch")->replaceChild(1, node);
}
