// SPDX-License-Identifier: MIT
#include "platform/lumora/events/LuEvent.h"

namespace {

LuType makeType(LuType parent, const char* name) { return LuType::createType(parent, name, nullptr, 0); }

bool isButtonEvent(const LuEvent* event, LuMouseButtonEvent::Button button, LuButtonEvent::State state) {
    if (!event || !event->isOfType(LuMouseButtonEvent::getClassTypeId()))
        return false;
    const auto* buttonEvent = static_cast<const LuMouseButtonEvent*>(event);
    return buttonEvent->getState() == state &&
           (button == LuMouseButtonEvent::ANY || button == buttonEvent->getButton());
}

} // namespace

LuType LuEvent::getClassTypeId() {
    static const LuType s_type = makeType(LuType::badType(), "Event");
    return s_type;
}

LuType LuLocation2Event::getClassTypeId() {
    static const LuType s_type = makeType(LuEvent::getClassTypeId(), "Location2Event");
    return s_type;
}

LuType LuButtonEvent::getClassTypeId() {
    static const LuType s_type = makeType(LuEvent::getClassTypeId(), "ButtonEvent");
    return s_type;
}

LuType LuMouseButtonEvent::getClassTypeId() {
    static const LuType s_type = makeType(LuButtonEvent::getClassTypeId(), "MouseButtonEvent");
    return s_type;
}

LuType LuTrackerEvent::getClassTypeId() {
    static const LuType s_type = makeType(LuEvent::getClassTypeId(), "TrackerEvent");
    return s_type;
}

LuType LuTrackerButtonEvent::getClassTypeId() {
    static const LuType s_type = makeType(LuButtonEvent::getClassTypeId(), "TrackerButtonEvent");
    return s_type;
}

bool LuMouseButtonEvent::isButtonPressEvent(const LuEvent* event, Button button) {
    return isButtonEvent(event, button, DOWN);
}

bool LuMouseButtonEvent::isButtonReleaseEvent(const LuEvent* event, Button button) {
    return isButtonEvent(event, button, UP);
}

bool LuButtonEvent::isDragButton(const LuEvent* event, State state) {
    if (event && event->isOfType(LuTrackerButtonEvent::getClassTypeId()))
        return static_cast<const LuTrackerButtonEvent*>(event)->getState() == state;
    return isButtonEvent(event, LuMouseButtonEvent::BUTTON1, state);
}
