// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvThread.h"

#include "tests/host/TestHost.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <iterator>
#include <new>

namespace {

LvThreadMutex s_mutex;
int s_guarded = 0;

void countGuarded(void*) {
    for (int i = 0; i < 20000; ++i) {
        s_mutex.lock();
        ++s_guarded;
        s_mutex.unlock();
    }
}

TEST(LvThreadMutex, guardedNumber_losesNoStep) {
    s_guarded = 0;
    LvThread* const one = LvThread::create(countGuarded, nullptr);
    LvThread* const two = LvThread::create(countGuarded, nullptr);
    ASSERT_TRUE(one && two);
    one->join();
    two->join();
    EXPECT_EQ(s_guarded, 40000);
}

struct Waiter {
    LvThreadMutex mutex;
    std::atomic<bool> hasPassed = false;

    static void run(void* data) {
        auto* const waiter = static_cast<Waiter*>(data);
        waiter->mutex.lock();
        waiter->hasPassed = true;
        waiter->mutex.unlock();
    }
};

TEST(LvThreadMutex, heldMutex_keepsOthersOut) {
    Waiter waiter;
    waiter.mutex.lock();
    LvThread* const thread = LvThread::create(Waiter::run, &waiter);
    ASSERT_TRUE(thread);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_FALSE(waiter.hasPassed);
    waiter.mutex.unlock();
    thread->join();
    EXPECT_TRUE(waiter.hasPassed);
}

// Stands for a static mutex of a source file whose turn has not come: all zeros.
alignas(LvThreadMutex) unsigned char s_unconstructed[sizeof(LvThreadMutex)];

TEST(LvThreadMutex, beforeItsConstructor_locksNothing) {
    std::fill(std::begin(s_unconstructed), std::end(s_unconstructed), static_cast<unsigned char>(0));
    auto* const early = reinterpret_cast<LvThreadMutex*>(s_unconstructed);
    early->lock();
    early->lock(); // would wait for ever, had the first one locked
    auto* const mutex = new (s_unconstructed) LvThreadMutex;
    mutex->unlock(); // of the skipped lock
    mutex->lock();
    mutex->unlock();
    mutex->~LvThreadMutex();
}

TEST(LvThread, function_runsWithItsData) {
    std::atomic<int> number = 1;
    LvThread* const thread =
        LvThread::create([](void* data) { *static_cast<std::atomic<int>*>(data) += 41; }, &number);
    ASSERT_TRUE(thread);
    thread->join();
    EXPECT_EQ(number, 42);
    thread->join(); // a second time there is nothing to wait for
}

TEST(LvThread, threadThatNobodyJoins_runsToItsEnd) {
    static std::atomic<int> s_ended = 0;
    s_ended = 0;
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(LvThread::create([](void*) { ++s_ended; }, nullptr));
    for (int i = 0; i < 1000 && s_ended < 20; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(s_ended, 20);
}

TEST(LvThread, id_differsBetweenThreads) {
    const std::uint64_t mine = LvThread::getCurrentThreadId();
    EXPECT_EQ(LvThread::getCurrentThreadId(), mine);
    std::uint64_t other = mine;
    LvThread* const thread = LvThread::create(
        [](void* data) { *static_cast<std::uint64_t*>(data) = LvThread::getCurrentThreadId(); }, &other);
    ASSERT_TRUE(thread);
    thread->join();
    EXPECT_NE(other, mine);
}

LvString nameInThread(LvString name) {
    LvThread* const thread = LvThread::create(
        [](void* data) {
            auto* const text = static_cast<LvString*>(data);
            LvThread::setName(*text);
            *text = LvThread::getName();
        },
        &name);
    thread->join();
    return name;
}

TEST(LvThread, name_isKept) { EXPECT_EQ(nameInThread("LuMessageDialog"), "LuMessageDialog"); }

TEST(LvThread, longName_isCutBetweenCharacters) {
    EXPECT_EQ(nameInThread("0123456789abcdefgh"), "0123456789abcde");
    EXPECT_EQ(nameInThread("0123456789abcd\xC3\xA9"), "0123456789abcd");
}

TEST(LvThread, threadThatWaitsForItself_getsAMessage) {
    expectMessage("LvThread::join", "A thread cannot wait for its own end.");
    struct Shared {
        std::atomic<LvThread*> thread = nullptr;
    } shared;
    shared.thread = LvThread::create(
        [](void* data) {
            LvThread* self = nullptr;
            while (!(self = static_cast<Shared*>(data)->thread))
                std::this_thread::yield();
            self->join();
        },
        &shared);
    ASSERT_TRUE(shared.thread);
    shared.thread.load()->join();
}

} // namespace
