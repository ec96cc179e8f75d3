// SPDX-License-Identifier: MIT
#include "tests/fuzz/SceneFuzz.h"

/// The first byte of the input chooses the version, what follows comes after the first line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    std::string content = data[0] % 2 == 0 ? "#Lumora V2.0 binary\n" : "#Lumora V1.0 binary\n";
    content.append(reinterpret_cast<const char*>(data) + 1, size - 1);
    checkScene(content);
    return 0;
}
