// SPDX-License-Identifier: MIT
#pragma once

/// The sensors that wait for LuDelayQueueSensor::processQueue.
struct LuSensorQueue {
    /// False when a loop should not wait for an event before it calls that.
    static bool isEmpty();
};
