// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/events/LuEvent.h"
#include "platform/lumora/nodes/LuNode.h"

#include <vector>

class LuEventCallback;
class LuHandleEventAction;
class LuPickedPoint;

/// `data` is what addEventCallback was given; the node tells of the event.
using LuEventCallbackFunction = void (*)(void* data, LuEventCallback* node);

/// Calls functions of the program for events that reach it on the way through the scene, wherever the pointer
/// is.
class LuEventCallback : public LuNode {
    LU_NODE_HEADER(LuEventCallback)
    LuEventCallback();

    /// Calls `function` for each event of the type, or a type derived from it. `data` stays the caller's.
    /// Functions are called in the order in which they came. One that comes while they are called waits for
    /// the next event.
    void addEventCallback(LuType eventType, LuEventCallbackFunction function, void* data = nullptr);

    /// Undoes one call of addEventCallback with the same arguments; nothing happens when there was none.
    void removeEventCallback(LuType eventType, LuEventCallbackFunction function, void* data = nullptr);

    // For functions, while they are called; null otherwise:
    LuHandleEventAction* getAction() const { return m_action; }
    const LuEvent* getEvent() const;

    /// What lies under the event's position; null when there is nothing.
    const LuPickedPoint* getPickedPoint() const;

    /// No other node gets the event. The node's other functions do.
    void setHandled();
    bool isHandled() const;

    /// From now on the node gets all events, and no other node does.
    void grabEvents();
    void releaseEvents();

    bool affectsState() const override { return false; }
    void handleEvent(LuHandleEventAction* action) override;

protected:
    using EventKindsOf = LuEventCallback;
    LuEventKinds getOwnEventKinds() const override { return m_kinds; }

private:
    struct Entry {
        LuType type;
        LuEventCallbackFunction function;
        void* data;
        friend bool operator==(const Entry&, const Entry&) = default;
    };

    void updateKinds();

    std::vector<Entry> m_entries;
    LuEventKinds m_kinds; ///< Of all entries.
    LuHandleEventAction* m_action = nullptr;
};
