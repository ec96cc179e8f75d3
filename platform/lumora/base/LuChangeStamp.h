// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Tells the present state of an object from all others: after each change the number is a new one, and no
/// two objects ever share one. Whoever keeps something made from the object keeps the number with it, and
/// sees by comparing whether it still holds; the object needs to know none of them.
class LuChangeStamp {
public:
    void invalidate() { m_value = 0; }

    /// To be asked before the object is read: a change in between then shows.
    std::uint64_t get() const {
        if (m_value == 0)
            m_value = takeNext();
        return m_value;
    }

private:
    static std::uint64_t takeNext();

    mutable std::uint64_t m_value = 0;
};
