// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuType.h"

#include <cstdint>

class LuEvent;

/// A set of kinds of events: those that a node listens to, or those that an event is of. An event is for the
/// node where the two have a kind in common.
class LuEventKinds {
public:
    /// No kind.
    constexpr LuEventKinds() = default;

    static constexpr LuEventKinds all() { return LuEventKinds(2 * PRESS - 1); }

    /// The presses that go to who stands on the way to what was picked.
    static constexpr LuEventKinds presses() { return LuEventKinds(PRESS); }

    /// What a listener to the events of a type, and of those derived from it, listens to.
    static LuEventKinds ofListener(LuType eventType);

    /// What an event is.
    static LuEventKinds of(const LuEvent& event);

    constexpr bool isNone() const { return m_bits == 0; }
    constexpr LuEventKinds operator|(LuEventKinds other) const {
        return LuEventKinds(static_cast<std::uint8_t>(m_bits | other.m_bits));
    }
    constexpr LuEventKinds operator&(LuEventKinds other) const {
        return LuEventKinds(static_cast<std::uint8_t>(m_bits & other.m_bits));
    }
    constexpr LuEventKinds& operator|=(LuEventKinds other) { return *this = *this | other; }
    friend constexpr bool operator==(LuEventKinds, LuEventKinds) = default;

private:
    /// Below them: a bit for each of the types whose events are a kind of their own.
    enum Bit : std::uint8_t { OTHER = 32, PRESS = 64 };

    explicit constexpr LuEventKinds(std::uint8_t bits) : m_bits(bits) {}

    std::uint8_t m_bits = 0;
};

/// The kinds that are listened to below a node, as long as nothing there changes.
class LuEventKindsCache {
public:
    void invalidate() { m_isKnown = false; }

    template <class Find>
    LuEventKinds get(Find find) {
        if (!m_isKnown) {
            m_kinds = find();
            m_isKnown = true;
        }
        return m_kinds;
    }

private:
    LuEventKinds m_kinds;
    bool m_isKnown = false;
};
