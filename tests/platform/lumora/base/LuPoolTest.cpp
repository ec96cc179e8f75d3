// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuPool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <vector>

namespace {

constexpr std::size_t SIZES[] = {1, 8, 16, 17, 40, 511, 512, 513, 4000, 100000};

TEST(LuPoolTest, whatIsTaken_isAlignedAndOverlapsNothing) {
    struct Block {
        unsigned char* memory;
        std::size_t size;
        unsigned char filling;
    };
    std::vector<Block> blocks;
    for (int round = 0; round < 40; ++round) {
        for (const std::size_t size : SIZES) {
            auto* const memory = static_cast<unsigned char*>(LuPool::allocate(size));
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % alignof(std::max_align_t), 0U);
            const auto filling = static_cast<unsigned char>(blocks.size());
            std::memset(memory, filling, size);
            blocks.push_back({memory, size, filling});
        }
    }
    for (const Block& block : blocks) {
        for (std::size_t i = 0; i < block.size; ++i)
            ASSERT_EQ(block.memory[i], block.filling) << "a block of " << block.size;
        LuPool::deallocate(block.memory, block.size);
    }
}

TEST(LuPoolTest, nothing_canBeGivenBack) {
    LuPool::deallocate(nullptr, 16);
    LuPool::deallocate(nullptr, 4000);
    void* const memory = LuPool::allocate(16);
    EXPECT_NE(memory, nullptr);
    LuPool::deallocate(memory, 16);
}

// The sanitizer keeps what was given back, to catch its use.
#ifndef __SANITIZE_ADDRESS__

TEST(LuPoolTest, takingAndGivingBackOverAndOver_needsNoMoreMemory) {
    std::set<void*> places;
    for (int round = 0; round < 1000; ++round) {
        void* const memory = LuPool::allocate(48);
        places.insert(memory);
        LuPool::deallocate(memory, 48);
    }
    EXPECT_EQ(places.size(), 1U);
}

TEST(LuPoolTest, roomGivenBackInAnyOrder_isTakenAgain) {
    std::vector<void*> blocks(2000);
    std::set<void*> before;
    for (void*& block : blocks)
        before.insert(block = LuPool::allocate(64));
    // Every third first, so that no stretch is empty before the last has gone.
    for (std::size_t start = 0; start < 3; ++start) {
        for (std::size_t i = start; i < blocks.size(); i += 3)
            LuPool::deallocate(blocks[i], 64);
    }
    std::size_t numOld = 0;
    for (void*& block : blocks) {
        block = LuPool::allocate(64);
        numOld += before.count(block);
    }
    EXPECT_GT(numOld, blocks.size() / 2);
    for (void* const block : blocks)
        LuPool::deallocate(block, 64);
}

TEST(LuPoolTest, emptiedRoom_isTakenByOtherSizes) {
    std::set<void*> small;
    for (int i = 0; i < 100000; ++i)
        small.insert(LuPool::allocate(32));
    for (void* const block : small)
        LuPool::deallocate(block, 32);
    std::vector<void*> large;
    std::size_t numWithin = 0;
    for (int i = 0; i < 1000; ++i) {
        large.push_back(LuPool::allocate(256));
        numWithin += large.back() >= *small.begin() && large.back() <= *small.rbegin() ? 1 : 0;
    }
    EXPECT_GT(numWithin, large.size() / 2);
    for (void* const block : large)
        LuPool::deallocate(block, 256);
}

#endif

struct Small : LuPooled {
    virtual ~Small() = default;
    int value = 1;
};

struct Large : Small {
    ~Large() override { s_sum += values[999]; }
    std::vector<int> values = std::vector<int>(1000, 7);
    char room[600] = {};
    static inline int s_sum = 0;
};

TEST(LuPoolTest, objectOfADerivedClass_goesByAPointerToItsBase) {
    Large::s_sum = 0;
    for (int i = 0; i < 10; ++i) {
        const Small* const object = new Large;
        delete object;
    }
    EXPECT_EQ(Large::s_sum, 70);
}

TEST(LuPoolTest, containerGrowsInThePool) {
    std::vector<int, LuPoolAllocator<int>> numbers;
    for (int i = 0; i < 10000; ++i)
        numbers.push_back(i);
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(numbers[static_cast<std::size_t>(i)], i);
}

} // namespace
