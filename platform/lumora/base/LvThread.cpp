// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvThread.h"

#include "platform/lumora/base/LuDebugError.h"

#include <array>
#include <memory>
#include <pthread.h>
#include <system_error>
#include <vector>

namespace {

/// What Linux keeps of a thread's name, without the closing zero.
constexpr std::size_t LONGEST_NAME = 15;

struct ThreadList {
    std::mutex mutex;
    std::vector<LvThread*> threads;
};

ThreadList& getThreads() {
    // Never destroyed: a thread that nobody joined may outlive the static objects.
    static ThreadList& s_threads = *new ThreadList;
    return s_threads;
}

} // namespace

// Not inline: a constructor that the compiler sees would be run at compile time and hide a lock that comes
// too early.
LvThreadMutex::LvThreadMutex() : m_isConstructed(true), m_isHeld(false) {}

void LvThreadMutex::lock() {
    if (!m_isConstructed)
        return;
    m_mutex.lock();
    m_isHeld = true;
}

void LvThreadMutex::unlock() {
    if (!m_isConstructed || !m_isHeld)
        return;
    m_isHeld = false;
    m_mutex.unlock();
}

LvThread* LvThread::create(Function function, void* data) {
    joinEnded();
    std::unique_ptr<LvThread> thread(new LvThread);
    LvThread* const started = thread.get();
    try {
        started->m_thread = std::thread([started, function, data] {
            started->m_id = getCurrentThreadId();
            function(data);
            started->m_hasEnded = true;
        });
    } catch (const std::system_error& error) {
        LuDebugError::post("LvThread::create", "The system gives no thread: %s.", error.what());
        return nullptr;
    }
    ThreadList& list = getThreads();
    const std::lock_guard guard(list.mutex);
    list.threads.push_back(thread.release());
    return started;
}

void LvThread::join() {
    if (m_id == getCurrentThreadId()) {
        LuDebugError::post("LvThread::join", "A thread cannot wait for its own end.");
        return;
    }
    const std::lock_guard guard(m_joining);
    if (m_thread.joinable())
        m_thread.join();
}

/// Gives back the stacks of threads that have ended and that nobody joins.
void LvThread::joinEnded() {
    ThreadList& list = getThreads();
    const std::lock_guard guard(list.mutex);
    for (LvThread* thread : list.threads)
        if (thread->m_hasEnded)
            thread->join();
}

std::uint64_t LvThread::getCurrentThreadId() {
    static std::atomic<std::uint64_t> s_last = 0;
    thread_local const std::uint64_t t_id = ++s_last;
    return t_id;
}

void LvThread::setName(const LvString& name) {
    const std::string_view start = name.view().substr(0, LONGEST_NAME);
    const std::string whole(start.substr(0, LuUtf8::validLength(start)));
    pthread_setname_np(pthread_self(), whole.c_str());
}

LvString LvThread::getName() {
    std::array<char, 64> name{};
    pthread_getname_np(pthread_self(), name.data(), name.size());
    return name.data();
}
