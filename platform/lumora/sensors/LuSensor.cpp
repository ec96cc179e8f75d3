// SPDX-License-Identifier: MIT
#include "platform/lumora/sensors/LuSensor.h"

#include "platform/lumora/base/LuBase.h"
#include "platform/lumora/fields/LuField.h"
#include "platform/lumora/sensors/LuSensorQueue.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// What waits, in the order of scheduling. A sensor that leaves has a null left in its place, so that the
/// thousands of sensors of a dialog come and go at a small cost each; the last entry is never null.
std::vector<LuDelayQueueSensor*>& getQueue() {
    static auto& s_queue = *new std::vector<LuDelayQueueSensor*>;
    return s_queue;
}

std::size_t s_numGaps = 0; ///< The nulls in the queue.

/// The sensors that the running processQueue has still to fire, with nulls where one has fired or left.
std::vector<LuDelayQueueSensor*>* s_running = nullptr;

} // namespace

void LuSensor::trigger() {
    if (m_function)
        m_function(m_data, this);
}

void LuSensor::notify(const LuNotification&) { trigger(); }

LuDelayQueueSensor::~LuDelayQueueSensor() { unschedule(); }

void LuDelayQueueSensor::closeGaps(Sensors& sensors) {
    std::erase(sensors, nullptr);
    for (std::size_t i = 0; i < sensors.size(); ++i)
        sensors[i]->m_place = static_cast<std::uint32_t>(i);
}

void LuDelayQueueSensor::schedule() {
    if (isScheduled())
        return;
    Sensors& queue = getQueue();
    if (s_numGaps > queue.size() / 2) {
        closeGaps(queue);
        s_numGaps = 0;
    }
    m_place = static_cast<std::uint32_t>(queue.size());
    queue.push_back(this);
}

void LuDelayQueueSensor::unschedule() {
    if (!isScheduled())
        return;
    const std::size_t place = std::exchange(m_place, NOT_SCHEDULED);
    if (s_running && place < s_running->size() && (*s_running)[place] == this) {
        (*s_running)[place] = nullptr;
        return;
    }
    Sensors& queue = getQueue();
    queue[place] = nullptr;
    ++s_numGaps;
    while (!queue.empty() && !queue.back()) {
        queue.pop_back();
        --s_numGaps;
    }
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
    Sensors running = std::exchange(getQueue(), {});
    s_numGaps = 0;
    std::erase(running, nullptr);
    std::stable_sort(running.begin(), running.end(), [](const auto* left, const auto* right) {
        return left->getPriority() < right->getPriority();
    });
    closeGaps(running);
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
