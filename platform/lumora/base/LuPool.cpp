// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuPool.h"

#include <array>
#include <new>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#define LU_POOL_IS_OFF 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define LU_POOL_IS_OFF 1
#endif
#endif

#ifdef LU_POOL_IS_OFF

void* LuPool::allocate(std::size_t size) { return ::operator new(size); }
void LuPool::deallocate(void* memory, std::size_t) { ::operator delete(memory); }

#else

namespace {

constexpr std::size_t STEP = 16; ///< All sizes are multiples of it, and with them all addresses.
constexpr std::size_t LARGEST = 512;
constexpr std::size_t CHUNK = 64 * 1024;

struct Free {
    Free* next;
};

/// What was given back, by size, the latest first: it is still in the processor's cache.
std::array<Free*, LARGEST / STEP + 1> s_free{};

/// The rest of the chunk that is being cut up. What is left of the one before is too small to be missed.
std::byte* s_rest = nullptr;
std::size_t s_restSize = 0;

std::size_t getIndex(std::size_t size) { return (size + STEP - 1) / STEP; }

void* cut(std::size_t size) {
    if (s_restSize < size) {
        s_rest = static_cast<std::byte*>(::operator new(CHUNK));
        s_restSize = CHUNK;
    }
    s_restSize -= size;
    return std::exchange(s_rest, s_rest + size);
}

} // namespace

void* LuPool::allocate(std::size_t size) {
    if (size > LARGEST)
        return ::operator new(size);
    const std::size_t index = getIndex(size);
    if (Free* const free = s_free[index]) {
        s_free[index] = free->next;
        return free;
    }
    return cut(index * STEP);
}

void LuPool::deallocate(void* memory, std::size_t size) {
    if (size > LARGEST) {
        ::operator delete(memory);
        return;
    }
    if (memory)
        s_free[getIndex(size)] = new (memory) Free{s_free[getIndex(size)]};
}

#endif
