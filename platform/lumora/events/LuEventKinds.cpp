// SPDX-License-Identifier: MIT
#include "platform/lumora/events/LuEventKinds.h"

#include "platform/lumora/events/LuKeyboardEvent.h"

#include <array>

namespace {

constexpr std::size_t NUM_TYPES = 5;

/// The types whose events are a kind of their own; all others are one kind.
const std::array<LuType, NUM_TYPES>& getTypes() {
    static const std::array<LuType, NUM_TYPES> s_types = {
        LuLocation2Event::getClassTypeId(), LuMouseButtonEvent::getClassTypeId(),
        LuKeyboardEvent::getClassTypeId(), LuTrackerEvent::getClassTypeId(),
        LuTrackerButtonEvent::getClassTypeId()};
    return s_types;
}

} // namespace

LuEventKinds LuEventKinds::ofListener(LuType eventType) {
    static_assert(1 << NUM_TYPES == OTHER);
    unsigned bits = 0;
    bool isWithin = false;
    for (std::size_t i = 0; i < NUM_TYPES; ++i) {
        const LuType type = getTypes()[i];
        const bool isDerived = eventType.isDerivedFrom(type);
        isWithin |= isDerived;
        if (isDerived || type.isDerivedFrom(eventType))
            bits |= 1U << i;
    }
    return LuEventKinds(static_cast<std::uint8_t>(isWithin ? bits : bits | OTHER));
}

LuEventKinds LuEventKinds::of(const LuEvent& event) {
    unsigned bits = OTHER;
    for (std::size_t i = 0; i < NUM_TYPES; ++i) {
        if (event.isOfType(getTypes()[i]))
            bits = 1U << i;
    }
    if (LuButtonEvent::isDragButton(&event, LuButtonEvent::DOWN))
        bits |= PRESS;
    return LuEventKinds(static_cast<std::uint8_t>(bits));
}
