// SPDX-License-Identifier: MIT
#include "controls/LuDialogCheckBox.h"

#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {
/// Scene units from the left edge of the frame to the centre of the mark, and to the text.
constexpr float MARK_PLACE = 10, TEXT_PLACE = 20;
} // namespace

const char* LuDialogCheckBox::DialogCheckBox = LuEmbeddedSkin_DialogCheckBox;
LuSkin LuDialogCheckBox::s_skin("DialogCheckBox.lum", LuEmbeddedSkin_DialogCheckBox,
                                {"DialogCheckBoxFrame", "DialogCheckBoxStateOff", "DialogCheckBoxStateOn"});

void LuDialogCheckBox::create3DDialogCheckBox() {
    loadFontProperties();
    s_skin.loadOnFirstUse();
    makeParts({&labelSwitch, &frameSep, &stateSwitch, &onOffStringSep});
    // The names are interned once and not for each check box.
    static const LvName FRAME = "DialogCheckBoxFrame", TEXT_LOOK = "DialogTextProperties",
                        OFF = "DialogCheckBoxStateOff", ON = "DialogCheckBoxStateOn";
    setPartAsDefault(frame, FRAME);
    setPartAsDefault(labelProp, TEXT_LOOK);
    setPartAsDefault(stateOff, OFF);
    setPartAsDefault(stateOn, ON);
    setPartAsDefault(onOffStringProp, TEXT_LOOK);

    createFrame3D(stateSep);
    m_stateTranslation = createCheckMark3D(stateSep);
    createLabel3D();
    change3DLabel();
    createText3D(onOffStringSep, m_onOffText);
    change3DOnOffString();

    setSwitchValue(stateSwitch.getValue(), state.getValue() ? 1 : 0);
    showLabel3D();
    addFinishCallback(finishCB3D, nullptr);
    setBuilt3D(1);
}

void LuDialogCheckBox::update3DCheckBox() {
    int left = 0, room = 0;
    getRoom3D(left, room);
    const double half = room * 0.5;
    placeFrame3D(static_cast<float>(left + half - width.getValue() * 0.5),
                 {room, luAddSize(height.getValue(), -EDGE_ROOM)});
    const auto begin = static_cast<float>(-half);
    m_stateTranslation->translation = LvVec3f(begin + MARK_PLACE, 0, 0);
    m_onOffText.translation->translation =
        getTextPlace(begin + TEXT_PLACE, getBox3D(m_onOffText, onOffStringProp.getValue()));
}

void LuDialogCheckBox::change3DLabelVisibility() {
    if (!m_stateTranslation)
        return;
    showLabel3D();
    update3DCheckBox();
}

void LuDialogCheckBox::change3DOnOffString() { setText3D(m_onOffText, getTextInForce()); }

void LuDialogCheckBox::change3DState() {
    setSwitchValue(stateSwitch.getValue(), state.getValue() ? 1 : 0);
    change3DOnOffString();
}

void LuDialogCheckBox::finishCB3D(void*, LuDragger* dragger) {
    static_cast<LuDialogCheckBox*>(dragger)->draggerFinishCallback3D();
}

void LuDialogCheckBox::draggerFinishCallback3D() {
    if (!isPicked(frameSep) && !isPicked(stateSep) && !isPicked(onOffStringSep))
        return;
    // The component that yields may call auditors, which may end this one.
    const LuKeepAlive alive(this);
    set3DCurrentActive(this);
    set3DInactive();
    state = !state.getValue();
    changeOnOffStrings();
    applyDlgCptAuditor();
}
