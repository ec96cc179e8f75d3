// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuObserverList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <vector>

namespace {

/// Observers by number. Nothing stands behind them: a list only compares them.
LuObserver makeObserver(int number) {
    static std::vector<std::uint64_t> s_places(10000);
    return LuObserver(reinterpret_cast<LuSensor*>(&s_places[static_cast<std::size_t>(number)]));
}

std::vector<int> makeNumbers(int first, int end) {
    std::vector<int> numbers;
    for (int i = first; i < end; ++i)
        numbers.push_back(i);
    return numbers;
}

/// A list beside a plain account of what must be in it.
class LuObserverListTest : public testing::Test {
protected:
    void add(int number) {
        m_list.add(makeObserver(number));
        ++m_counts[number];
        ++m_length;
    }
    void remove(int number) {
        m_list.remove(makeObserver(number));
        if (isThere(number)) {
            --m_counts[number];
            --m_length;
        }
    }
    bool isThere(int number) { return m_counts[number] > 0; }

    void addAll(const std::vector<int>& numbers) {
        for (const int number : numbers)
            add(number);
    }
    void removeAll(const std::vector<int>& numbers) {
        for (const int number : numbers) {
            remove(number);
            ASSERT_EQ(m_list.getLength(), m_length);
            ASSERT_EQ(m_list.contains(makeObserver(number)), isThere(number));
        }
    }
    void check() {
        ASSERT_EQ(m_list.getLength(), m_length);
        EXPECT_EQ(m_list.isEmpty(), m_length == 0);
        for (const auto& [number, count] : m_counts) {
            int found = 0;
            for (int i = 0; i < m_length; ++i)
                found += m_list[i] == makeObserver(number) ? 1 : 0;
            EXPECT_EQ(found, count) << "observer " << number;
            EXPECT_EQ(m_list.contains(makeObserver(number)), count > 0) << "observer " << number;
        }
    }

    LuObserverList m_list;
    std::map<int, int> m_counts;
    int m_length = 0;
};

TEST_F(LuObserverListTest, FewObservers_keepTheirOrder) {
    addAll(makeNumbers(0, 16));
    remove(0);
    remove(7);
    remove(15);
    std::vector<int> expected = makeNumbers(1, 15);
    std::erase(expected, 7);
    ASSERT_EQ(m_list.getLength(), 13);
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(m_list[i], makeObserver(expected[static_cast<std::size_t>(i)])) << i;
}

TEST_F(LuObserverListTest, StrangerThatLeaves_changesNothing) {
    for (const int length : {0, 1, 2, 16, 17, 500}) {
        addAll(makeNumbers(m_length, length));
        remove(9999);
        check();
    }
}

TEST_F(LuObserverListTest, ManyObservers_leaveInTheOrderOfTheirComing) {
    addAll(makeNumbers(0, 700));
    removeAll(makeNumbers(0, 350));
    check();
    removeAll(makeNumbers(350, 700));
    check();
}

TEST_F(LuObserverListTest, ManyObservers_leaveInReverse) {
    addAll(makeNumbers(0, 700));
    std::vector<int> numbers = makeNumbers(0, 700);
    std::reverse(numbers.begin(), numbers.end());
    removeAll(numbers);
    check();
}

TEST_F(LuObserverListTest, GroupInTheMiddle_leavesWhileOthersComeAndGo) {
    addAll(makeNumbers(0, 900));
    for (const int number : makeNumbers(300, 600)) {
        add(1000 + number);
        remove(number);
        if (number % 3 != 0)
            remove(1000 + number);
    }
    check();
    removeAll(makeNumbers(0, 300));
    removeAll(makeNumbers(600, 900));
    check();
}

TEST_F(LuObserverListTest, RandomComingAndLeaving_isAsInAPlainAccount) {
    std::mt19937 random(7);
    const auto draw = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    for (int round = 0; round < 60; ++round) {
        // Runs of neighbours upwards and downwards, as the parts of a dialog leave, and strays between them.
        const int first = draw(600);
        const int step = draw(3) - 1;
        const bool isComing = draw(2) == 0;
        for (int i = 0; i < draw(200); ++i) {
            const int number = draw(4) == 0 ? draw(600) : std::clamp(first + i * step, 0, 599);
            if (isComing)
                add(number);
            else
                remove(number);
        }
        check();
    }
    for (int number = 0; number < 600; ++number) {
        while (isThere(number))
            remove(number);
    }
    EXPECT_TRUE(m_list.isEmpty());
}

/// By the number of observers.
class LuObserverListCallTest : public LuObserverListTest, public testing::WithParamInterface<int> {
protected:
    LuObserverListCallTest() { addAll(makeNumbers(0, GetParam())); }

    /// Calls `function` with the number of each observer; the result is how often each was called.
    template <class Function>
    std::map<int, int> callEach(Function function) {
        std::map<int, int> calls;
        m_list.forEach([&](LuObserver observer) {
            int number = 0;
            while (!(makeObserver(number) == observer))
                ++number;
            EXPECT_TRUE(isThere(number)) << "observer " << number;
            ++calls[number];
            function(number);
        });
        return calls;
    }
};

TEST_P(LuObserverListCallTest, EachIsCalledOnce) {
    const auto calls = callEach([](int) {});
    EXPECT_EQ(static_cast<int>(calls.size()), GetParam());
    for (const auto& [number, count] : calls)
        EXPECT_EQ(count, 1) << "observer " << number;
}

TEST_P(LuObserverListCallTest, EachMayLeaveWhenItIsCalled) {
    const auto calls = callEach([this](int number) { remove(number); });
    EXPECT_EQ(static_cast<int>(calls.size()), GetParam());
    EXPECT_TRUE(m_list.isEmpty());
}

TEST_P(LuObserverListCallTest, FirstMayRemoveAllOthers) {
    const auto calls = callEach([this](int) { removeAll(makeNumbers(0, GetParam())); });
    EXPECT_EQ(static_cast<int>(calls.size()), std::min(GetParam(), 1));
}

TEST_P(LuObserverListCallTest, WhoComesMeanwhile_waits) {
    const auto calls = callEach([this](int number) { add(5000 + number); });
    EXPECT_EQ(static_cast<int>(calls.size()), GetParam());
    EXPECT_EQ(m_list.getLength(), 2 * GetParam());
    check();
}

TEST_P(LuObserverListCallTest, RandomChangesMeanwhile_callWhoStaysOnceAndWhoHasLeftNever) {
    std::mt19937 random(11);
    std::map<int, bool> hasLeft;
    const auto calls = callEach([&](int) {
        const int number = static_cast<int>(random() % 300);
        if (random() % 3 == 0) {
            add(5000 + number);
        } else {
            hasLeft[number] = true;
            remove(number);
        }
    });
    for (int number = 0; number < GetParam(); ++number) {
        const auto found = calls.find(number);
        const int count = found == calls.end() ? 0 : found->second;
        EXPECT_LE(count, 1) << "observer " << number;
        EXPECT_TRUE(count == 1 || hasLeft[number]) << "observer " << number;
    }
    for (const auto& [number, count] : calls)
        EXPECT_LT(number, 5000);
    check();
}

INSTANTIATE_TEST_SUITE_P(Lengths, LuObserverListCallTest, testing::Values(0, 1, 2, 3, 8, 9, 16, 17, 40, 300));

} // namespace
