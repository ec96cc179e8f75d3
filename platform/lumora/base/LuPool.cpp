// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuPool.h"

#include <algorithm>
#include <array>
#include <cstdint>
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
constexpr std::size_t SLAB = 16 * 1024;     ///< A power of two, to which slabs are aligned.
constexpr std::size_t REGION = 1024 * 1024; ///< What the allocator is asked for at once.

struct Block {
    Block* next;
};

/// Blocks of one size. One that has become empty starts anew from its front: what is made after a dialog has
/// gone lies in a row again, and not where the dialog's parts happened to be given back.
struct alignas(STEP) Slab {
    Slab* previous;
    Slab* next;
    Block* free;
    std::uint32_t blockSize;
    std::uint32_t used; ///< Blocks that are taken.
    std::uint32_t end;  ///< Behind the blocks that have been taken so far, from the slab's front.

    bool isFull() const { return !free && end + blockSize > SLAB; }
    void* take();
    void giveBack(void* memory);
};

void* Slab::take() {
    ++used;
    if (free)
        return std::exchange(free, free->next);
    return reinterpret_cast<std::byte*>(this) + std::exchange(end, end + blockSize);
}

void Slab::giveBack(void* memory) {
    free = new (memory) Block{free};
    if (--used > 0)
        return;
    free = nullptr;
    end = sizeof(Slab);
}

/// A list in which what comes first is used first.
struct SlabList {
    Slab* first = nullptr;

    void add(Slab* slab) {
        slab->previous = nullptr;
        slab->next = first;
        if (first)
            first->previous = slab;
        first = slab;
    }
    void remove(Slab* slab) {
        (slab->previous ? slab->previous->next : first) = slab->next;
        if (slab->next)
            slab->next->previous = slab->previous;
    }
};

/// By size, those with room; and the empty ones, which take any size.
std::array<SlabList, LARGEST / STEP + 1> s_open;
SlabList s_empty;

void addRegion() {
    auto* const region = static_cast<std::byte*>(::operator new(REGION, std::align_val_t(SLAB)));
    for (std::size_t end = REGION; end > 0; end -= SLAB)
        s_empty.add(new (region + end - SLAB) Slab{});
}

/// Takes a block from a slab that has been empty. Apart from the usual way, which saves no registers so.
[[gnu::noinline]] void* takeFromEmpty(std::size_t index) {
    if (!s_empty.first)
        addRegion();
    Slab* const slab = s_empty.first;
    s_empty.remove(slab);
    slab->blockSize = static_cast<std::uint32_t>(std::max<std::size_t>(index, 1) * STEP);
    slab->end = sizeof(Slab);
    s_open[index].add(slab);
    return slab->take();
}

/// Blocks of no size at all have an index of their own.
std::size_t getIndex(std::size_t size) { return (size + STEP - 1) / STEP; }

Slab* findSlab(void* memory) {
    return reinterpret_cast<Slab*>(reinterpret_cast<std::uintptr_t>(memory) & ~std::uintptr_t{SLAB - 1});
}

} // namespace

void* LuPool::allocate(std::size_t size) {
    if (size > LARGEST)
        return ::operator new(size);
    const std::size_t index = getIndex(size);
    Slab* const slab = s_open[index].first;
    if (!slab)
        return takeFromEmpty(index);
    void* const memory = slab->take();
    if (slab->isFull())
        s_open[index].remove(slab);
    return memory;
}

void LuPool::deallocate(void* memory, std::size_t size) {
    if (size > LARGEST) {
        ::operator delete(memory);
        return;
    }
    if (!memory)
        return;
    Slab* const slab = findSlab(memory);
    SlabList& list = s_open[getIndex(size)];
    const bool wasFull = slab->isFull();
    slab->giveBack(memory);
    if (slab->used == 0) {
        if (!wasFull)
            list.remove(slab);
        s_empty.add(slab);
    } else if (wasFull) {
        list.add(slab);
    }
}

#endif
