// SPDX-License-Identifier: MIT
#include "controls/LuDialogSlider.h"

#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/base/LvProjector.h"
#include "platform/lumora/events/LuEvent.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {

/// Between 0 and the end of the travel; that end where the travel is less than nothing.
float clampToTravel(float x, float travel) {
    const float above = x < 0 ? 0 : x;
    return above > travel ? travel : above;
}

} // namespace

void LuDialogSlider::startCB3D(void*, LuDragger* dragger) {
    static_cast<LuDialogSlider*>(dragger)->draggerStartCallback3D();
}

void LuDialogSlider::motionCB3D(void*, LuDragger* dragger) {
    static_cast<LuDialogSlider*>(dragger)->draggerMotionCallback3D();
}

void LuDialogSlider::finishCB3D(void*, LuDragger* dragger) {
    static_cast<LuDialogSlider*>(dragger)->draggerFinishCallback3D();
}

void LuDialogSlider::draggerStartCallback3D() {
    // The component that yields may call auditors, which may end this one.
    const LuKeepAlive alive(this);
    set3DCurrentActive(this);
    if (isPicked(cursorSep)) {
        startDrag3D();
    } else if (isPicked(edtSwtch)) {
        m_editing3D = 1;
        setSwitchValue(edtFrmSwtch.getValue(), 1);
    } else if (isPicked(frameSep)) {
        jumpToClick3D();
    }
}

void LuDialogSlider::startDrag3D() {
    const LvVec3f start = getLocalStartingPoint();
    m_linearProjector->setLine(LvLine::fromDirection(start, LvVec3f(1, 0, 0)));
    const LuViewVolumeElement& view = getHandleEventAction()->getState().viewVolume;
    if (view.isSet())
        m_linearProjector->setViewVolume(view.get());
    m_cursorStart = m_cursorTranslation->translation.getValue();
}

/// Brings the middle of the cursor to where the frame was clicked. Only the scene's x counts: the dialog is
/// meant to face the viewer.
void LuDialogSlider::jumpToClick3D() {
    m_matrixAction->apply(*getPickPath());
    LvVec3f translation, scale;
    LvRotation rotation, scaleOrientation;
    m_matrixAction->getMatrix().getTransform(translation, rotation, scale, scaleOrientation);
    const float unitsPerWorldUnit = m_frameScale->scaleFactor.getValue().x / scale.x;
    const float travel = getTravel3D() / unitsPerWorldUnit;
    const float distance =
        (getWorldStartingPoint().x - translation.x) + scale.x * 0.5F - CURSOR_SIZE_3D / 2 / unitsPerWorldUnit;
    setValueFromSlider(clampToTravel(distance, travel) / travel);
    change3DCursor();
    setValue();
    showNewValue3D();
}

void LuDialogSlider::draggerMotionCallback3D() {
    if (!isPicked(cursorSep))
        return;
    const LuKeepAlive alive(this);
    set3DCurrentActive(this);
    set3DInactive();
    m_linearProjector->setWorkingSpace(getLocalToWorldMatrix());
    const LvVec3f start = getLocalStartingPoint();
    LvVec3f point = start;
    if (getEvent()->getRay())
        point = m_linearProjector->intersect(getTrackerRay());
    else
        m_linearProjector->tryProject(getNormalizedLocaterPosition(), point);
    const float travel = getTravel3D();
    setValueFromSlider(clampToTravel(m_cursorStart.x + (point.x - start.x), travel) / travel);
    change3DCursor();
    if (continuousTrigger.getValue())
        setValue();
    showNewValue3D();
}

/// Brings a position that was found in 3D to the window and to both texts.
void LuDialogSlider::showNewValue3D() {
    if (m_built2D)
        changeSliderValue();
    showText();
}

void LuDialogSlider::draggerFinishCallback3D() {
    if (isPicked(checkSep)) {
        toggleCheck3D();
    } else if (isPicked(cursorSep)) {
        const LuKeepAlive alive(this);
        setValue();
        showText();
    }
}

void LuDialogSlider::toggleCheck3D() {
    setWithoutSensor(continuousTrigger, !continuousTrigger.getValue(), m_continuousTriggerSensor);
    change3DContinuousTrigger();
    if (m_built2D) {
        changeFinishCallback();
        changeContinuousTrigger();
    }
}
