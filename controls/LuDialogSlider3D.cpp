// SPDX-License-Identifier: MIT
#include "controls/LuDialogSlider.h"

#include "controls/LuDialogCheckBox.h"
#include "controls/LuEditTextSkin.h"
#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/base/LvProjector.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/nodes/LuEventCallback.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

#include <cmath>

const char* LuDialogSlider::DialogSlider = LuEmbeddedSkin_DialogSlider;
LuSkin LuDialogSlider::s_skin("DialogSlider.lum", LuEmbeddedSkin_DialogSlider,
                              {"DialogSliderFrame", "DialogSliderCursor"});

namespace {

// Scene units.
constexpr int CHECK_ROOM = 20; ///< What the check mark takes from the frame, in the middle of it.
constexpr float FRAME_HEIGHT = 20;
constexpr float TEXT_INSET = 3; ///< From the left end of the value box to the number.

LvVec3f atX(double x) { return {static_cast<float>(x), 0, 0}; }

} // namespace

void LuDialogSlider::loadSkins3D() {
    loadFontProperties();
    LuDialogCheckBox::loadSkinOnFirstUse();
    LuEditTextSkin::loadSkinOnFirstUse();
    s_skin.loadOnFirstUse();
}

void LuDialogSlider::create3DDialogSlider() {
    loadSkins3D();
    makeParts({&labelSwitch, &checkSwtch, &frameSep, &cursorSep, &edtFrmSwtch, &editTextSep});
    // The names are interned once and not for each slider.
    static const LvName TEXT_LOOK = "DialogTextProperties", OFF = "DialogCheckBoxStateOff",
                        ON = "DialogCheckBoxStateOn", FRAME = "DialogSliderFrame",
                        CURSOR = "DialogSliderCursor", BOX = "DialogEditTextFrame",
                        EDITED_BOX = "DialogEditTextEditingFrame";
    setPartAsDefault(labelProp, TEXT_LOOK);
    setPartAsDefault(checkStateOff, OFF);
    setPartAsDefault(checkStateOn, ON);
    setPartAsDefault(frame, FRAME);
    setPartAsDefault(cursor, CURSOR);
    setPartAsDefault(valueFrame, BOX);
    setPartAsDefault(editValueFrame, EDITED_BOX);
    setPartAsDefault(editTextProp, TEXT_LOOK);
    setSwitchValue(edtFrmSwtch.getValue(), 0);

    createLabel3D();
    showLabel3D();
    change3DLabel();
    m_checkTranslation = createCheckMark3D(checkSep);
    showCheck3D();
    createFrame3D();
    createValueBox3D();
    setSwitchValue(edtSwtch.getValue(), valueVisible.getValue() ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE);

    addStartCallback(startCB3D, nullptr);
    addMotionCallback(motionCB3D, nullptr);
    addFinishCallback(finishCB3D, nullptr);
    m_editing3D = 0;
    m_linearProjector = std::make_unique<LvLineProjector>();
    setBuilt3D(1);
    m_valueTextBBox = getUnsetBox();
}

void LuDialogSlider::createFrame3D() {
    m_sliderTranslation = new LuTranslation;
    getGroupPart(sliderSep)->insertChild(m_sliderTranslation, 0);
    m_frameScale = new LuScale;
    getGroupPart(frameSep)->insertChild(m_frameScale, 0);
    m_frameTransform = new LuTransform;
    insertBeforePart(m_frameTransform, cursorSep, sliderSep);

    auto* const scale = new LuScale;
    scale->scaleFactor = LvVec3f(CURSOR_SIZE_3D, CURSOR_SIZE_3D, 1);
    m_cursorOffset = new LuTranslation;
    m_cursorTranslation = new LuTranslation;
    LuGroup* const cursorGroup = getGroupPart(cursorSep);
    cursorGroup->insertChild(scale, 0);
    cursorGroup->insertChild(m_cursorOffset, 0);
    cursorGroup->insertChild(m_cursorTranslation, 0);
}

void LuDialogSlider::createValueBox3D() {
    m_valueBoxTranslation = new LuTranslation;
    LuGroup* const group = getGroupPart(edtSwtch);
    group->insertChild(m_valueBoxTranslation, 0);
    m_valueFrameScale = new LuScale;
    getGroupPart(edtFrmSep)->insertChild(m_valueFrameScale, 0);
    m_valueFrameTransform = new LuTransform;
    insertBeforePart(m_valueFrameTransform, editTextSep, edtSwtch);

    createText3D(editTextSep, m_valueTextTranslation, m_valueText3);
    change3DEditValue();

    // Below the switch: keys reach the slider only while the value box shows.
    auto* const keys = new LuEventCallback;
    keys->addEventCallback(LuKeyboardEvent::getClassTypeId(), processKeyEvents, this);
    group->insertChild(keys, 0);
}

void LuDialogSlider::update3DSlider() {
    if (!m_frameScale)
        return;
    m_editZoneWidth = computeEditZoneWidth();
    const double middle = width.getValue() * 0.5;
    std::int64_t left = EDGE_ROOM / 2;
    std::int64_t room = std::int64_t{width.getValue()} - EDGE_ROOM;
    if (labelVisibility.getValue()) {
        left += std::int64_t{m_labelSize.x} + LABEL_GAP;
        room -= std::int64_t{m_labelSize.x} + LABEL_GAP;
    }
    m_checkTranslation->translation = atX(static_cast<double>(left) - middle + CHECK_ROOM / 2);

    const int gap = toggleVisible.getValue() ? CHECK_ROOM : LABEL_GAP;
    left += gap;
    room -= gap;
    if (valueVisible.getValue())
        room -= std::int64_t{m_editZoneWidth} + LABEL_GAP;
    m_sliderLength3D = luClampSize(room);
    const double length = m_sliderLength3D;
    m_sliderTranslation->translation = atX(static_cast<double>(left) - middle + length * 0.5);
    m_frameScale->scaleFactor = LvVec3f(static_cast<float>(length), FRAME_HEIGHT, 1);
    undoTransformMatrix(frameSep.getValue(), m_frameTransform);
    // At position 0 the cursor stands against the left end; its cone takes the lower half of the frame.
    m_cursorOffset->translation =
        LvVec3f(static_cast<float>(CURSOR_SIZE_3D / 2 - length * 0.5), -CURSOR_SIZE_3D / 2, 0);
    if (valueVisible.getValue())
        updateValueBox3D();
}

void LuDialogSlider::updateValueBox3D() {
    if (m_valueTextBBox == getUnsetBox())
        m_valueTextBBox = measureText(editTextProp.getValue(), m_valueText3);
    const double boxWidth = m_editZoneWidth;
    m_valueTextTranslation->translation =
        getTextPlace(static_cast<float>(TEXT_INSET - boxWidth * 0.5), m_valueTextBBox);
    m_valueBoxTranslation->translation =
        atX((static_cast<double>(width.getValue()) - EDGE_ROOM - boxWidth) * 0.5);
    m_valueFrameScale->scaleFactor = LvVec3f(static_cast<float>(boxWidth), FRAME_HEIGHT, 1);
    undoTransformMatrix(edtFrmSep.getValue(), m_valueFrameTransform);
}

float LuDialogSlider::getTravel3D() const { return static_cast<float>(m_sliderLength3D) - CURSOR_SIZE_3D; }

void LuDialogSlider::change3DCursor() {
    if (!m_cursorTranslation)
        return;
    const float x = getTravel3D() * m_normalizedValue;
    // Without a travel, or without a range, there may be no position. The scene stays free of that.
    m_cursorTranslation->translation = atX(std::isfinite(x) ? x : 0);
}

void LuDialogSlider::change3DSliderValue() { change3DCursor(); }

void LuDialogSlider::change3DEnable() {
    change3DCursor();
    LuLabelledControl::change3DEnable();
}

void LuDialogSlider::change3DLabel() {
    if (m_labelText3)
        m_labelText3->string.setValue(convertToCString(label.getValue(), this));
    // Not that of the labelled controls, which shows the text as it is.
    LuControl::change3DLabel();
}

void LuDialogSlider::change3DLabelAlignment() { update3DLabel(); }

void LuDialogSlider::change3DLabelVisibility() {
    if (!m_frameScale)
        return;
    showLabel3D();
    update3DSlider();
}

void LuDialogSlider::change3DValueVisible() {
    setSwitchValue(edtSwtch.getValue(), valueVisible.getValue() ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE);
    update3DSlider();
}

void LuDialogSlider::showCheck3D() {
    if (toggleVisible.getValue())
        change3DContinuousTrigger();
    else
        setSwitchValue(checkSwtch.getValue(), LuSwitch::SHOW_NONE);
}

void LuDialogSlider::change3DToggleVisible() {
    showCheck3D();
    update3DSlider();
}

/// On purpose without regard to `toggleVisible`: a hidden check mark comes back.
void LuDialogSlider::change3DContinuousTrigger() {
    setSwitchValue(checkSwtch.getValue(), continuousTrigger.getValue() ? 1 : 0);
}

void LuDialogSlider::change3DEditValue() { m_valueTextBBox = getUnsetBox(); }

LvString LuDialogSlider::get3DValueFromEdit() const {
    return m_valueText3 && m_valueText3->string.getNum() > 0 ? m_valueText3->string[0] : LvString();
}

void LuDialogSlider::set3DInactive() {
    stopEditing3D();
    LuLabelledControl::set3DInactive();
}

void LuDialogSlider::stopEditing3D() {
    m_editing3D = 0;
    setSwitchValue(edtFrmSwtch.getValue(), 0);
}

void LuDialogSlider::processKeyEvents(void* data, LuEventCallback* node) {
    auto* const slider = static_cast<LuDialogSlider*>(data);
    if (!slider->m_editing3D)
        return;
    const LuKeepAlive alive(slider);
    slider->computeNewSliderEditValue(
        node->getAction() ? static_cast<const LuKeyboardEvent*>(node->getEvent()) : nullptr);
}
