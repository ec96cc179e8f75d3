// SPDX-License-Identifier: MIT
#include "platform/lumora/sensors/LuSensor.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "platform/lumora/sensors/LuSensorQueue.h"
#include "tests/host/ToolkitTest.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using SensorTest = ToolkitTest;
using Function = std::function<void()>;

void call(void* data, LuSensor*) { (*static_cast<Function*>(data))(); }

void countCall(void* data, LuSensor*) { ++*static_cast<int*>(data); }

TEST_F(SensorTest, PriorityZeroFiresWithinSetValue) {
    const Held<LuTranslation> node;
    int calls = 0;
    LuFieldSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(&node->translation);
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(sensor.isScheduled());
}

TEST_F(SensorTest, OtherPrioritiesWaitForTheQueueAndFireOnce) {
    const Held<LuTranslation> node;
    int calls = 0;
    LuFieldSensor sensor(&countCall, &calls);
    sensor.attach(&node->translation);
    node->translation.setValue({1, 0, 0});
    node->translation.setValue({2, 0, 0});
    EXPECT_EQ(calls, 0);
    LuDelayQueueSensor::processQueue();
    EXPECT_EQ(calls, 1);
    LuDelayQueueSensor::processQueue();
    EXPECT_EQ(calls, 1);
}

TEST_F(SensorTest, QueueRunsByPriorityThenByOrder) {
    std::string order;
    Function first = [&order] { order += 'a'; };
    Function second = [&order] { order += 'b'; };
    Function third = [&order] { order += 'c'; };
    LuDelayQueueSensor late(&call, &first);
    LuDelayQueueSensor early(&call, &second);
    LuDelayQueueSensor alsoLate(&call, &third);
    early.setPriority(1);
    late.schedule();
    alsoLate.schedule();
    early.schedule();
    LuDelayQueueSensor::processQueue();
    EXPECT_EQ(order, "bac");
}

TEST_F(SensorTest, SensorScheduledByAnotherWaitsForTheNextRound) {
    int calls = 0;
    LuDelayQueueSensor later(&countCall, &calls);
    Function schedule = [&later] { later.schedule(); };
    LuDelayQueueSensor sensor(&call, &schedule);
    sensor.schedule();
    LuDelayQueueSensor::processQueue();
    EXPECT_EQ(calls, 0);
    LuDelayQueueSensor::processQueue();
    EXPECT_EQ(calls, 1);
}

TEST_F(SensorTest, SensorThatEndsWhileItWaitsIsLeftOut) {
    auto doomed = std::make_unique<LuDelayQueueSensor>(&countCall, nullptr);
    Function end = [&doomed] { doomed.reset(); };
    LuDelayQueueSensor sensor(&call, &end);
    sensor.setPriority(1);
    sensor.schedule();
    doomed->schedule();
    LuDelayQueueSensor::processQueue();
    EXPECT_EQ(doomed, nullptr);
}

/// Sensors that come and go in the queue, beside a plain account of who waits in which order.
class SensorQueueTest : public ToolkitTest {
protected:
    static constexpr std::size_t COUNT = 60;

    SensorQueueTest() {
        for (std::size_t i = 0; i < COUNT; ++i) {
            m_functions[i] = [this, i] { fired(i); };
            m_sensors.push_back(std::make_unique<LuDelayQueueSensor>(&call, &m_functions[i]));
            m_sensors[i]->setPriority(static_cast<unsigned>(i % 3 + 1));
        }
    }
    std::size_t draw(std::size_t end) { return m_random() % end; }

    void schedule(std::size_t i) {
        m_sensors[i]->schedule();
        if (!isWaiting(i))
            m_waiting.push_back(i);
    }
    void unschedule(std::size_t i) {
        m_sensors[i]->unschedule();
        std::erase(m_waiting, i);
        std::erase(m_toFire, i);
    }
    bool isWaiting(std::size_t i) const {
        return std::ranges::count(m_waiting, i) + std::ranges::count(m_toFire, i) > 0;
    }
    void changeAny() {
        if (draw(2) == 0)
            schedule(draw(COUNT));
        else
            unschedule(draw(COUNT));
    }

    void process() {
        m_toFire = std::exchange(m_waiting, {});
        std::ranges::stable_sort(m_toFire, {}, [](std::size_t i) { return i % 3; });
        LuDelayQueueSensor::processQueue();
        EXPECT_TRUE(m_toFire.empty());
    }
    void fired(std::size_t i) {
        ASSERT_FALSE(m_toFire.empty());
        EXPECT_EQ(m_toFire.front(), i);
        m_toFire.erase(m_toFire.begin());
        for (std::size_t changes = draw(4); changes > 0; --changes)
            changeAny();
    }
    void check() {
        EXPECT_EQ(LuSensorQueue::isEmpty(), m_waiting.empty());
        for (std::size_t i = 0; i < COUNT; ++i)
            EXPECT_EQ(m_sensors[i]->isScheduled(), isWaiting(i)) << "sensor " << i;
    }

    std::mt19937 m_random{3};
    std::array<Function, COUNT> m_functions;
    std::vector<std::unique_ptr<LuDelayQueueSensor>> m_sensors;
    std::vector<std::size_t> m_waiting; ///< For the next round.
    std::vector<std::size_t> m_toFire;  ///< In this one.
};

TEST_F(SensorQueueTest, RandomComingAndLeaving_firesWhoWaitsInOrder) {
    for (int round = 0; round < 200; ++round) {
        for (std::size_t changes = draw(200); changes > 0; --changes)
            changeAny();
        check();
        process();
        check();
    }
}

TEST_F(SensorQueueTest, AllThatWaitMayLeaveInAnyOrder) {
    for (const std::size_t step : {std::size_t{1}, std::size_t{7}, COUNT - 1}) {
        for (std::size_t i = 0; i < COUNT; ++i)
            schedule(i);
        for (std::size_t i = 0; i < COUNT; ++i)
            unschedule(i * step % COUNT);
        check();
        EXPECT_TRUE(LuSensorQueue::isEmpty());
        process();
    }
}

TEST_F(SensorTest, NotificationOffKeepsSensorsSilent) {
    const Held<LuTranslation> node;
    int calls = 0;
    LuFieldSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(&node->translation);
    EXPECT_TRUE(node->enableNotify(false));
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(node->enableNotify(true));
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 1);
}

TEST_F(SensorTest, SensorFarAboveHearsEveryChangeWithoutATraversalBetween) {
    const Held<LuSeparator> root;
    auto* inner = new LuSeparator;
    auto* node = new LuTranslation;
    inner->addChild(node);
    root->addChild(inner);
    node->translation.setValue({1, 0, 0});
    int calls = 0;
    LuNodeSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(root.get());
    node->translation.setValue({2, 0, 0});
    node->translation.setValue({3, 0, 0});
    EXPECT_EQ(calls, 2);
}

TEST_F(SensorTest, SensorOnAFieldOfNodesHearsEveryChangeBelow) {
    const Held<LuSeparator> node;
    LuSFNode field;
    field.setValue(node.get());
    auto* translation = new LuTranslation;
    node->addChild(translation);
    int calls = 0;
    LuFieldSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(&field);
    translation->translation.setValue({2, 0, 0});
    translation->translation.setValue({3, 0, 0});
    EXPECT_EQ(calls, 2);
}

TEST_F(SensorTest, SensorMayDetachItselfAndAnother) {
    const Held<LuTranslation> node;
    int calls = 0;
    LuFieldSensor other(&countCall, &calls);
    other.setPriority(0);
    LuFieldSensor* self = nullptr;
    Function detachBoth = [&] {
        ++calls;
        self->detach();
        other.detach();
    };
    LuFieldSensor sensor(&call, &detachBoth);
    self = &sensor;
    sensor.setPriority(0);
    sensor.attach(&node->translation);
    other.attach(&node->translation);
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 1);
}

TEST_F(SensorTest, FieldMayEndBeforeItsSensor) {
    int calls = 0;
    LuFieldSensor sensor(&countCall, &calls);
    {
        const Held<LuTranslation> node;
        sensor.attach(&node->translation);
    }
    EXPECT_EQ(sensor.getAttachedField(), nullptr);
}

TEST_F(SensorTest, ContainerMayEndInTheCall) {
    auto* node = new LuTranslation;
    node->ref();
    Function end = [node] { node->unref(); };
    LuFieldSensor sensor(&call, &end);
    sensor.setPriority(0);
    sensor.attach(&node->translation);
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(sensor.getAttachedField(), nullptr);
}

TEST_F(SensorTest, NodesAboveMayEndInTheCall) {
    const Held<LuTranslation> node;
    auto* middle = new LuGroup;
    auto* top = new LuGroup;
    top->ref();
    top->addChild(middle);
    middle->addChild(node.get());
    Function end = [top] { top->unref(); };
    int calls = 0;
    // Of two on each node, the first to be told ends both nodes.
    LuNodeSensor first(&call, &end), second(&countCall, &calls);
    LuNodeSensor onTop(&countCall, &calls);
    for (LuNodeSensor* sensor : {&first, &second, &onTop})
        sensor->setPriority(0);
    first.attach(middle);
    second.attach(middle);
    onTop.attach(top);
    middle->removeObserver(LuObserver(static_cast<LuBase*>(top)));
    middle->addObserver(LuObserver(static_cast<LuBase*>(top)));
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(first.getAttachedNode(), nullptr);
    EXPECT_EQ(onTop.getAttachedNode(), nullptr);
}

TEST_F(SensorTest, NodeSensorSeesChangesBelowOnceEach) {
    const Held<LuGroup> root;
    auto* left = new LuGroup;
    auto* right = new LuGroup;
    auto* shared = new LuTranslation;
    root->addChild(left);
    root->addChild(right);
    left->addChild(shared);
    right->addChild(shared);
    int calls = 0;
    LuNodeSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(root.get());
    shared->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(sensor.getTriggerNode(), shared);
    EXPECT_EQ(sensor.getTriggerField(), &shared->translation);
    right->removeChild(shared);
    EXPECT_EQ(calls, 2);
}

TEST_F(SensorTest, MutedNodeOnTheWayKeepsSensorsAboveSilent) {
    const Held<LuGroup> root;
    auto* middle = new LuGroup;
    auto* node = new LuTranslation;
    root->addChild(middle);
    middle->addChild(node);
    int calls = 0;
    LuNodeSensor sensor(&countCall, &calls);
    sensor.setPriority(0);
    sensor.attach(root.get());
    middle->enableNotify(false);
    node->translation.setValue({1, 0, 0});
    EXPECT_EQ(calls, 0);
}

} // namespace
