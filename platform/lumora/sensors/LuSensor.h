// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPool.h"

#include <cstdint>
#include <vector>

class LuBase;
class LuField;
class LuSensor;
struct LuNotification;

/// What a sensor calls.
using LuSensorFunction = void (*)(void* data, LuSensor* sensor);

/// Calls a function when something happens. `data` stays the caller's.
class LuSensor : public LuPooled {
public:
    LuSensor(LuSensorFunction function, void* data) : m_function(function), m_data(data) {}
    virtual ~LuSensor() = default;
    LuSensor(const LuSensor&) = delete;
    LuSensor& operator=(const LuSensor&) = delete;

    void setFunction(LuSensorFunction function) { m_function = function; }
    void setData(void* data) { m_data = data; }

    /// Calls the function now.
    virtual void trigger();

    /// A change was seen by what the sensor is attached to.
    virtual void notify(const LuNotification& notification);

private:
    LuSensorFunction m_function;
    void* m_data;
};

/// A sensor with a place in the delay queue. Priority 0 never waits there: it fires at once.
class LuDelayQueueSensor : public LuSensor {
public:
    static constexpr unsigned DEFAULT_PRIORITY = 100;

    using LuSensor::LuSensor;
    ~LuDelayQueueSensor() override;

    /// Lower numbers fire first; 0 fires synchronously.
    void setPriority(unsigned priority) { m_priority = priority; }
    unsigned getPriority() const { return m_priority; }

    /// Puts the sensor in the queue; once, however often it is called.
    void schedule();
    void unschedule();
    bool isScheduled() const { return m_place != NOT_SCHEDULED; }

    void trigger() override;
    void notify(const LuNotification& notification) override;

    /// Fires what waits, by priority, then in the order of scheduling. What is scheduled meanwhile waits for
    /// the next call. The application calls this when it is idle.
    static void processQueue();

private:
    static constexpr std::uint32_t NOT_SCHEDULED = 0xFFFFFFFF;
    using Sensors = std::vector<LuDelayQueueSensor*>;

    /// Drops the places of sensors that have left, and tells the others their new ones.
    static void closeGaps(Sensors& sensors);

    unsigned m_priority = DEFAULT_PRIORITY;
    std::uint32_t m_place = NOT_SCHEDULED; ///< In the queue, or in what processQueue has still to fire.
};

/// A sensor on data: it knows what change made it fire.
class LuDataSensor : public LuDelayQueueSensor {
public:
    using LuDelayQueueSensor::LuDelayQueueSensor;

    /// The object and the field whose change was the last to be seen; null before the first, and when the
    /// sensor has been detached. They may have ended since: use them in the call that the change makes.
    LuBase* getTriggerNode() const { return m_triggerNode; }
    LuField* getTriggerField() const { return m_triggerField; }

    void notify(const LuNotification& notification) override;

protected:
    void forgetTrigger();

private:
    LuBase* m_triggerNode = nullptr;
    LuField* m_triggerField = nullptr;
};

/// Fires when a field's value is set.
class LuFieldSensor : public LuDataSensor {
public:
    using LuDataSensor::LuDataSensor;
    ~LuFieldSensor() override { detach(); }

    /// Watches one field, instead of the one before. The field may go first.
    void attach(LuField* field);
    void detach();
    LuField* getAttachedField() const { return m_field; }

private:
    friend class LuField;
    LuField* m_field = nullptr;
};

/// Fires when an object, or anything below it, changes.
class LuNodeSensor : public LuDataSensor {
public:
    using LuDataSensor::LuDataSensor;
    ~LuNodeSensor() override { detach(); }

    /// Watches one object, instead of the one before. The object may go first.
    void attach(LuBase* node);
    void detach();
    LuBase* getAttachedNode() const { return m_node; }

private:
    friend class LuBase;
    LuBase* m_node = nullptr;
};
