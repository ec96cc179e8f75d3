// SPDX-License-Identifier: MIT
#include "bench/Measure.h"

#include <ctime>

namespace bench {

std::int64_t now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace bench
