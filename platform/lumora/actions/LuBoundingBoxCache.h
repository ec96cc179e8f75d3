// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvBox3f.h"

#include <cstdint>

/// The bounding box of what lies below a node, in the node's own space, as long as nothing there changes.
class LuBoundingBoxCache {
public:
    void invalidate() { m_state = State::EMPTY; }
    bool isValid() const { return m_state == State::VALID; }
    const LvBox3f& getBox() const { return m_box; }

    /// Begins the computation whose result `finish` takes. A change that comes in between, from a component
    /// that the traversal has built, say, makes the result worthless before it is there.
    void begin() { m_state = State::PENDING; }
    void finish(const LvBox3f& box) {
        if (m_state != State::PENDING)
            return;
        m_box = box;
        m_state = State::VALID;
    }

    /// Ends the computation without a result that could be kept.
    void giveUp() {
        if (m_state == State::PENDING)
            m_state = State::EMPTY;
    }

private:
    enum class State : std::uint8_t { EMPTY, PENDING, VALID };

    LvBox3f m_box;
    State m_state = State::EMPTY;
};
