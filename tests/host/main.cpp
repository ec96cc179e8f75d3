// SPDX-License-Identifier: MIT
#include "tests/host/TestHost.h"

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    startTestHost();
    return RUN_ALL_TESTS();
}
