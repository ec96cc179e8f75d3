// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <thread>

/// A lock between threads. The thread that holds it must not lock it again.
///
/// A static mutex may be asked before its constructor has run, by the initialisation of another source file:
/// lock and unlock then do nothing, for there is only one thread yet.
class LvThreadMutex {
public:
    LvThreadMutex();
    LvThreadMutex(const LvThreadMutex&) = delete;
    LvThreadMutex& operator=(const LvThreadMutex&) = delete;

    void lock();
    /// Does nothing when the matching lock was skipped.
    void unlock();

private:
    std::mutex m_mutex;
    bool m_isConstructed; ///< Zero in a static object until the constructor sets it.
    bool m_isHeld;        ///< Changed only by the thread that holds the lock.
};

/// A thread of the operating system.
class LvThread {
public:
    using Function = void (*)(void* data);

    /// Starts a thread that runs `function` with `data`, which stays the caller's. The result belongs to the
    /// toolkit and lives to the end of the process. Null, with a message, when the system gives no thread.
    static LvThread* create(Function function, void* data);

    /// Waits until the thread has ended. A thread that waits for itself gets a message and goes on.
    void join();

    /// A number that only the calling thread has. It is this toolkit's own, not the system's.
    static std::uint64_t getCurrentThreadId();

    /// Names the calling thread for debuggers; what exceeds 15 bytes is cut off.
    static void setName(const LvString& name);
    static LvString getName();

private:
    LvThread() = default;
    LvThread(const LvThread&) = delete;
    LvThread& operator=(const LvThread&) = delete;

    static void joinEnded();

    std::thread m_thread;
    std::mutex m_joining;
    std::atomic<std::uint64_t> m_id = 0; ///< 0 until the thread runs.
    std::atomic<bool> m_hasEnded = false;
};
