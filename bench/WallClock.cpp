// SPDX-License-Identifier: MIT
#include "bench/Measure.h"

#include <chrono>

namespace bench {

std::int64_t now() {
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time).count();
}

} // namespace bench
