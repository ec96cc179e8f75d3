// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuType.h"
#include "platform/lumora/base/LvGeometry.h"

/// What a user did with a device. Events are small values; the program makes them from what the window system
/// tells, and hands them to a LuHandleEventAction.
class LuEvent : public LuTypedObject {
public:
    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }
    ~LuEvent() override = default;

    /// Seconds, from any beginning.
    double getTime() const { return m_time; }
    void setTime(double seconds) { m_time = seconds; }

    /// The pixel of the viewport that the pointer is on; (0, 0) is the one in the lower left corner.
    const LvVec2i32& getPosition() const { return m_position; }
    void setPosition(const LvVec2i32& pixel) { m_position = pixel; }

    /// The middle of that pixel, from (0, 0) at the viewport's lower left corner to (1, 1); beyond that when
    /// the pointer is outside of it.
    LvVec2f getNormalizedPosition(const LvViewportRegion& region) const {
        return region.getNormalizedPosition(m_position);
    }

    bool wasShiftDown() const { return m_wasShiftDown; }
    bool wasCtrlDown() const { return m_wasCtrlDown; }
    bool wasAltDown() const { return m_wasAltDown; }
    void setShiftDown(bool isDown) { m_wasShiftDown = isDown; }
    void setCtrlDown(bool isDown) { m_wasCtrlDown = isDown; }
    void setAltDown(bool isDown) { m_wasAltDown = isDown; }

    /// Where a device that is moved in space points to, in the scene; null for one that has a position on the
    /// screen.
    virtual const LvLine* getRay() const { return nullptr; }

private:
    double m_time = 0;
    LvVec2i32 m_position;
    bool m_wasShiftDown = false;
    bool m_wasCtrlDown = false;
    bool m_wasAltDown = false;
};

/// The pointer moved.
class LuLocation2Event : public LuEvent {
public:
    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    LuLocation2Event() = default;
    explicit LuLocation2Event(const LvVec2i32& pixel) { setPosition(pixel); }
};

/// A button of any device went down or up.
class LuButtonEvent : public LuEvent {
public:
    enum State { UP, DOWN };

    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    State getState() const { return m_state; }
    void setState(State state) { m_state = state; }

    /// True when the event is a press or a release, as `state` says, of what drags: button 1 of the mouse, or
    /// a tracker's button.
    static bool isDragButton(const LuEvent* event, State state);

private:
    State m_state = DOWN;
};

/// A button of the mouse, or a click of its wheel.
class LuMouseButtonEvent : public LuButtonEvent {
public:
    enum Button { ANY = 0, BUTTON1 = 1, BUTTON2 = 2, BUTTON3 = 3, WHEEL_UP = 4, WHEEL_DOWN = 5 };

    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    LuMouseButtonEvent() = default;
    LuMouseButtonEvent(Button button, State state, const LvVec2i32& pixel) : m_button(button) {
        setState(state);
        setPosition(pixel);
    }

    Button getButton() const { return m_button; }
    void setButton(Button button) { m_button = button; }

    /// True when the event, which may be null and of any type, is a press or a release of the button.
    static bool isButtonPressEvent(const LuEvent* event, Button button);
    static bool isButtonReleaseEvent(const LuEvent* event, Button button);

private:
    Button m_button = BUTTON1;
};

/// A device that is held in the hand, such as a controller, moved or turned.
class LuTrackerEvent : public LuEvent {
public:
    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    LuTrackerEvent() = default;
    explicit LuTrackerEvent(const LvLine& ray) : m_ray(ray) {}

    /// Starts at the device and runs where it points, in the scene's space.
    const LvLine* getRay() const override { return &m_ray; }
    void setRay(const LvLine& ray) { m_ray = ray; }

private:
    LvLine m_ray;
};

/// A button of such a device.
class LuTrackerButtonEvent : public LuButtonEvent {
public:
    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    LuTrackerButtonEvent() = default;
    LuTrackerButtonEvent(State state, const LvLine& ray) : m_ray(ray) { setState(state); }

    const LvLine* getRay() const override { return &m_ray; }
    void setRay(const LvLine& ray) { m_ray = ray; }

private:
    LvLine m_ray;
};
