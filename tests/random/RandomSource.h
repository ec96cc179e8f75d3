// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

/// Random numbers that are the same on every machine, for one seed.
class RandomSource {
public:
    explicit RandomSource(std::uint32_t seed) : m_engine(seed) {}

    /// From 0 to below `count`, which is at least 1.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(count)); }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool flip() { return below(2) == 1; }

    /// Mostly true: for what makes much else impossible while it is false.
    bool mostly() { return below(4) != 0; }

    template <class Value, std::size_t N>
    const Value& from(const Value (&values)[N]) {
        return values[below(static_cast<int>(N))];
    }

private:
    std::mt19937 m_engine;
};
