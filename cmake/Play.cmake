# SPDX-License-Identifier: MIT
# What plays to dialogs as a user would; for programs, tests and fuzzers.
file(GLOB play CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/apps/play/*.cpp)
add_library(panelix-play STATIC ${play})
target_link_libraries(panelix-play PUBLIC panelix PRIVATE panelix-options)
