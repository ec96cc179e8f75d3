// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuBase.h"

#include "platform/lumora/fields/LuField.h"
#include "platform/lumora/sensors/LuSensor.h"

#include <algorithm>
#include <unordered_map>

namespace {

std::unordered_map<LvName, std::vector<LuBase*>>& getNameTable() {
    static auto& s_table = *new std::unordered_map<LvName, std::vector<LuBase*>>;
    return s_table;
}

std::uint32_t s_lastStamp = 0;

void tellObserver(LuObserver observer, LuNotification& notification) {
    switch (observer.getKind()) {
    case LuObserver::Kind::NODE:
        observer.getNode()->notify(notification);
        break;
    case LuObserver::Kind::FIELD:
        observer.getField()->notifyFromBelow(notification);
        break;
    case LuObserver::Kind::SENSOR:
        if (!notification.isMuted)
            observer.getSensor()->notify(notification);
        break;
    }
}

} // namespace

void LuRefCounter::unref() const {
    if (--m_refCount == 0)
        const_cast<LuRefCounter*>(this)->destroy();
}

void LuRefCounter::destroy() { delete this; }

LuType LuBase::getClassTypeId() {
    static const LuType s_type = LuType::createType(LuType::badType(), "Base", nullptr, 0);
    return s_type;
}

LuBase::~LuBase() {
    setName({});
    // Lists and fields hold a reference, so only sensors can be left.
    while (!m_observers.isEmpty())
        static_cast<LuNodeSensor*>(m_observers[0].getSensor())->detach();
}

void LuBase::setName(LvName name) {
    if (name == m_name)
        return;
    auto& table = getNameTable();
    if (!m_name.isEmpty()) {
        const auto found = table.find(m_name);
        std::erase(found->second, this);
        if (found->second.empty())
            table.erase(found);
    }
    m_name = name;
    if (!name.isEmpty())
        table[name].push_back(this);
}

const std::vector<LuBase*>& LuBase::getNamed(LvName name) {
    static const std::vector<LuBase*> s_none;
    const auto& table = getNameTable();
    const auto found = table.find(name);
    return found == table.end() ? s_none : found->second;
}

void LuBase::tellOfChange(LuField* field) {
    LuNotification notification{this, field, ++s_lastStamp, false};
    notify(notification);
}

int LuBase::s_numListeners = 0;

void LuBase::notify(LuNotification& notification) {
    if (m_notifyStamp == notification.stamp || !tellsOfChanges())
        return;
    m_notifyStamp = notification.stamp;
    m_hasToldAbove = true;
    const LuKeepAlive alive(this);
    invalidateCaches();
    const bool wasMuted = notification.isMuted;
    notification.isMuted = wasMuted || !m_isNotifyEnabled;
    m_observers.forEach([&notification](LuObserver observer) { tellObserver(observer, notification); });
    notification.isMuted = wasMuted;
}
