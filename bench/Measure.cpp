// SPDX-License-Identifier: MIT
#include "bench/Measure.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace bench {

std::vector<int> counts(int argc, char** argv, std::vector<int> usual) {
    if (argc < 2)
        return usual;
    std::vector<int> result;
    for (int i = 1; i < argc; ++i) {
        const int count = std::atoi(argv[i]);
        require(count > 0, "an argument is a number of controls above 0");
        result.push_back(count);
    }
    return result;
}

int repeatsFor(int count) { return count <= 100 ? 101 : count <= 1000 ? 31 : 11; }

void require(bool condition, const char* what) {
    if (condition)
        return;
    std::fprintf(stderr, "benchmark failed: %s\n", what);
    std::exit(1);
}

void report(const char* name, int count, int repeats, double value) {
    std::printf("%s %d %d %.1f\n", name, count, repeats, value);
    std::fflush(stdout);
}

void measure(const char* name, int count, int repeats, double divisor, const Sample& sample) {
    // The first repeat fills the caches of the processor and of the allocator, and is thrown away.
    std::vector<std::int64_t> times;
    for (int i = 0; i <= repeats; ++i) {
        if (sample.prepare)
            sample.prepare();
        const std::int64_t start = now();
        sample.body();
        const std::int64_t end = now();
        if (sample.clear)
            sample.clear();
        if (i > 0)
            times.push_back(end - start);
    }
    const auto middle = times.begin() + repeats / 2;
    std::nth_element(times.begin(), middle, times.end());
    report(name, count, repeats, static_cast<double>(*middle) / divisor);
}

} // namespace bench
