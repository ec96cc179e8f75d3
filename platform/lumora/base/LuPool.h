// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// Memory for the many small objects of a scene: nodes, sensors, actions, and lists of them. A control has a
/// hundred of them, and taking one from here costs a few instructions.
///
/// What is given back is kept for what comes next, and goes with the process. For the one thread that
/// owns the scene. With the address sanitizer the memory is the allocator's, so that it sees each object.
class LuPool {
public:
    /// Memory for anything that needs no more than the usual alignment. Give the same size back.
    static void* allocate(std::size_t size);
    static void deallocate(void* memory, std::size_t size);
};

/// Derive from it to have the objects of a class, and of those below it, in the pool. A class above whose
/// pointers delete them needs a virtual destructor.
class LuPooled {
public:
    static void* operator new(std::size_t size) { return LuPool::allocate(size); }
    static void operator delete(void* memory, std::size_t size) { LuPool::deallocate(memory, size); }
};

/// Lets a container of the standard library take its memory from the pool.
template <class T>
struct LuPoolAllocator {
    using value_type = T;

    LuPoolAllocator() = default;
    template <class Other>
    LuPoolAllocator(const LuPoolAllocator<Other>&) {}

    T* allocate(std::size_t count) { return static_cast<T*>(LuPool::allocate(count * sizeof(T))); }
    void deallocate(T* memory, std::size_t count) { LuPool::deallocate(memory, count * sizeof(T)); }

    friend bool operator==(const LuPoolAllocator&, const LuPoolAllocator&) { return true; }
};
