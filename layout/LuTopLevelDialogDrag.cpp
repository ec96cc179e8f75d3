// SPDX-License-Identifier: MIT
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/base/LvProjector.h"
#include "platform/lumora/events/LuEvent.h"

void LuTopLevelDialog::startCB3D(void*, LuDragger* dragger) {
    static_cast<LuTopLevelDialog*>(dragger)->draggerStartCallback3D();
}

void LuTopLevelDialog::motionCB3D(void*, LuDragger* dragger) {
    static_cast<LuTopLevelDialog*>(dragger)->draggerMotionCallback3D();
}

void LuTopLevelDialog::finishCB3D(void*, LuDragger* dragger) {
    static_cast<LuTopLevelDialog*>(dragger)->draggerFinishCallback3D();
}

void LuTopLevelDialog::draggerStartCallback3D() {
    if (!getPickPath())
        return;
    if (isPicked(minSep))
        setSwitchValue(minSwtch.getValue(), 1);
    else if (isPicked(frameSep))
        startDrag3D();
    set3DCurrentActive(this);
}

void LuTopLevelDialog::startDrag3D() {
    m_dragWorldPoint = getWorldStartingPoint();
    m_projector->setPlane(LvPlane(LvVec3f(0, 0, 1), getLocalStartingPoint()));
    const LuViewVolumeElement& view = getHandleEventAction()->getState().viewVolume;
    if (view.isSet())
        m_projector->setViewVolume(view.get());
    m_dragStart = minimized.getValue() ? minimized3DPosition.getValue() : position3D.getValue();
    if (!minimized.getValue() && hideChildren.getValue())
        show3DChildren(0);
}

void LuTopLevelDialog::draggerMotionCallback3D() {
    if (!isPicked(frameSep))
        return;
    const LvMatrix toWorld = getLocalToWorldMatrix();
    m_projector->setWorkingSpace(toWorld);
    LvVec3f point;
    const bool isMet = getEvent()->getRay() ? m_projector->tryIntersect(getTrackerRay(), point)
                                            : m_projector->tryProject(getNormalizedLocaterPosition(), point);
    // Past the horizon of its plane there is nowhere to go.
    if (!isMet)
        return;
    m_dragWorldPoint = toWorld.transformPoint(point);
    const LvVec3f way = point - getLocalStartingPoint();
    // The fields' y grows downwards.
    write3DPosition(m_dragStart + LvVec3f(way.x, -way.y, way.z));
    change3DPosition();
}

/// Writes the position that is in use.
void LuTopLevelDialog::write3DPosition(const LvVec3f& corner) {
    if (minimized.getValue())
        setWithoutSensor(minimized3DPosition, corner, m_minimized3DPositionSensor);
    else
        setWithoutSensor(position3D, corner, m_position3DSensor);
}

void LuTopLevelDialog::draggerFinishCallback3D() {
    if (!isPicked(minSep))
        return;
    setSwitchValue(minSwtch.getValue(), 0);
    const bool wasMinimized = minimized.getValue();
    show3DChildren(wasMinimized);
    if (hideChildren.getValue() && !wasMinimized)
        update3DChildrenPosition();
    minimized = !wasMinimized;
}
