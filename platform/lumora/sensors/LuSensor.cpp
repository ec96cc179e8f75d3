// SPDX-License-Identifier: MIT
#include "platform/lumora/sensors/LuSensor.h"

#include "platform/lumora/base/LuBase.h"
#include "platform/lumora/fields/LuField.h"
#include "platform/lumora/sensors/LuSensorQueue.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

std::vector<LuDelayQueueSensor*>& getQueue() {
    static auto& s_queue = *new std::vector<LuDelayQueueSensor*>;
    return s_queue;
}

/// The sensors that the running processQueue has still to fire.
std::vector<LuDelayQueueSensor*>* s_running = nullptr;

} // namespace

void LuSensor::trigger() {
    if (m_function)
        m_function(m_data, this);
}

void LuSensor::notify(const LuNotification&) { trigger(); }

LuDelayQueueSensor::~LuDelayQueueSensor() { unschedule(); }

void LuDelayQueueSensor::schedule() {
    if (std::exchange(m_isScheduled, true))
        return;
    getQueue().push_back(this);
}

void LuDelayQueueSensor::unschedule() {
    if (!std::exchange(m_isScheduled, false))
        return;
    std::erase(getQueue(), this);
    if (s_running)
        std::replace(s_running->begin(), s_running->end(), this, static_cast<LuDelayQueueSensor*>(nullptr));
}

void LuDelayQueueSensor::trigger() {
    unschedule();
    LuSensor::trigger();
}

void LuDelayQueueSensor::notify(const LuNotification&) {
    if (m_priority == 0)
        trigger();
    else
        schedule();
}

void LuDelayQueueSensor::processQueue() {
    if (s_running)
        return;
    std::vector<LuDelayQueueSensor*> running = std::exchange(getQueue(), {});
    std::stable_sort(running.begin(), running.end(), [](const auto* left, const auto* right) {
        return left->getPriority() < right->getPriority();
    });
    s_running = &running;
    for (std::size_t i = 0; i < running.size(); ++i) {
        if (running[i])
            running[i]->trigger();
    }
    s_running = nullptr;
}

bool LuSensorQueue::isEmpty() { return getQueue().empty(); }

void LuDataSensor::notify(const LuNotification& notification) {
    m_triggerNode = notification.origin;
    m_triggerField = notification.field;
    LuDelayQueueSensor::notify(notification);
}

void LuDataSensor::forgetTrigger() {
    m_triggerNode = nullptr;
    m_triggerField = nullptr;
}

void LuFieldSensor::attach(LuField* field) {
    detach();
    m_field = field;
    if (!field)
        return;
    field->addObserver(LuObserver(static_cast<LuSensor*>(this)));
    if (field->holdsNodes())
        LuBase::addListener();
}

void LuFieldSensor::detach() {
    if (m_field) {
        m_field->removeObserver(LuObserver(static_cast<LuSensor*>(this)));
        if (m_field->holdsNodes())
            LuBase::removeListener();
    }
    m_field = nullptr;
    forgetTrigger();
}

void LuNodeSensor::attach(LuBase* node) {
    detach();
    m_node = node;
    if (!node)
        return;
    node->addObserver(LuObserver(static_cast<LuSensor*>(this)));
    LuBase::addListener();
}

void LuNodeSensor::detach() {
    if (m_node) {
        m_node->removeObserver(LuObserver(static_cast<LuSensor*>(this)));
        LuBase::removeListener();
    }
    m_node = nullptr;
    forgetTrigger();
}
