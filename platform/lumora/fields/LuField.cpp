// SPDX-License-Identifier: MIT
#include "platform/lumora/fields/LuField.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/fields/LuFieldContainer.h"
#include "platform/lumora/sensors/LuSensor.h"

#include <cstring>
#include <unordered_map>

namespace {

/// Connections are rare: they cost an entry here, and a field without one costs nothing.
std::unordered_map<const LuField*, LuField*>& getMasters() {
    static auto& s_masters = *new std::unordered_map<const LuField*, LuField*>;
    return s_masters;
}

} // namespace

LuField::~LuField() {
    disconnect();
    while (!m_observers.isEmpty()) {
        const LuObserver observer = m_observers[0];
        if (observer.getKind() == LuObserver::Kind::FIELD)
            observer.getField()->disconnect();
        else
            static_cast<LuFieldSensor*>(observer.getSensor())->detach();
    }
}

bool LuField::connectFrom(LuField* master) {
    disconnect();
    if (!master || master == this)
        return false;
    if (std::strcmp(master->getTypeName(), getTypeName()) != 0) {
        LuDebugError::post("LuField::connectFrom",
                           "A field of type %s can't be connected from one of type %s.", getTypeName(),
                           master->getTypeName());
        return false;
    }
    getMasters()[this] = master;
    m_isConnected = true;
    master->addObserver(LuObserver(this));
    if (m_holdsNodes)
        LuBase::addListener();
    copyFrom(*master);
    return true;
}

void LuField::disconnect() {
    if (!m_isConnected)
        return;
    const auto found = getMasters().find(this);
    found->second->removeObserver(LuObserver(this));
    if (m_holdsNodes)
        LuBase::removeListener();
    getMasters().erase(found);
    m_isConnected = false;
}

LuField* LuField::getConnectedField() const { return m_isConnected ? getMasters().at(this) : nullptr; }

void LuField::notifyFromBelow(LuNotification& notification) {
    const LuKeepAlive alive(m_container);
    tellObservers(notification, nullptr);
    if (m_container)
        m_container->notify(notification);
}

void LuField::tellObservers(LuNotification& notification, LuSensor* deaf) {
    const bool wasMuted = notification.isMuted;
    notification.isMuted = wasMuted || (m_container && !m_container->isNotifyEnabled());
    if (!notification.isMuted)
        m_observers.forEach([&](LuObserver observer) {
            if (observer.getKind() != LuObserver::Kind::SENSOR)
                passOn(*observer.getField());
            else if (observer.getSensor() != deaf)
                observer.getSensor()->notify(notification);
        });
    notification.isMuted = wasMuted;
}

void LuField::passOn(LuField& slave) {
    // A circle of connections ends at the field that is still passing its value on.
    if (slave.m_isPassingOn)
        return;
    m_isPassingOn = true;
    slave.copyFrom(*this);
    m_isPassingOn = false;
}

void LuField::tellOfChange(LuSensor* deaf) {
    if (isWatchedOnlyBy(deaf)) {
        if (m_container)
            m_container->startNotify(this);
        return;
    }
    const LuKeepAlive alive(m_container);
    if (m_container)
        m_container->startNotify(this);
    // Those who heard of it there may have left meanwhile.
    if (!isWatchedOnlyBy(deaf)) {
        LuNotification notification{m_container, this, 0, false};
        tellObservers(notification, deaf);
    }
}
