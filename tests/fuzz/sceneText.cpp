// SPDX-License-Identifier: MIT
#include "tests/fuzz/SceneFuzz.h"

/// The input is a text without a first line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    checkScene({reinterpret_cast<const char*>(data), size});
    return 0;
}
