// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuEventCallback.h"

#include "platform/lumora/actions/LuHandleEventAction.h"

#include <algorithm>
#include <utility>

LU_NODE_SOURCE(LuEventCallback, LuNode, "EventCallback")

LuEventCallback::LuEventCallback() { LuNodeConstructor constructor(s_class, this); }

void LuEventCallback::addEventCallback(LuType eventType, LuEventCallbackFunction function, void* data) {
    if (!function)
        return;
    m_entries.push_back({eventType, function, data});
    updateKinds();
}

void LuEventCallback::removeEventCallback(LuType eventType, LuEventCallbackFunction function, void* data) {
    const auto found = std::find(m_entries.begin(), m_entries.end(), Entry{eventType, function, data});
    if (found == m_entries.end())
        return;
    m_entries.erase(found);
    updateKinds();
}

void LuEventCallback::updateKinds() {
    LuEventKinds kinds;
    for (const Entry& entry : m_entries)
        kinds |= LuEventKinds::ofListener(entry.type);
    if (kinds == std::exchange(m_kinds, kinds))
        return;
    eventKindsChanged();
}

const LuEvent* LuEventCallback::getEvent() const { return m_action ? m_action->getEvent() : nullptr; }

const LuPickedPoint* LuEventCallback::getPickedPoint() const {
    return m_action ? m_action->getPickedPoint() : nullptr;
}

void LuEventCallback::setHandled() {
    if (m_action)
        m_action->setHandled();
}

bool LuEventCallback::isHandled() const { return m_action && m_action->isHandled(); }

void LuEventCallback::grabEvents() {
    if (m_action)
        m_action->setGrabber(this);
}

void LuEventCallback::releaseEvents() {
    if (m_action && m_action->getGrabber() == this)
        m_action->releaseGrabber();
}

void LuEventCallback::handleEvent(LuHandleEventAction* action) {
    if (m_entries.empty())
        return;
    const LuType type = action->getEvent()->getTypeId();
    LuHandleEventAction* const outer = std::exchange(m_action, action);
    // A function may add and remove functions; those of this moment that are still there are called.
    for (const Entry& entry : std::vector<Entry>(m_entries)) {
        const bool isStillThere = std::find(m_entries.begin(), m_entries.end(), entry) != m_entries.end();
        if (isStillThere && type.isDerivedFrom(entry.type))
            entry.function(entry.data, this);
    }
    m_action = outer;
}
