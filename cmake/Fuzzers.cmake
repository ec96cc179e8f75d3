# SPDX-License-Identifier: MIT
# Each tests/fuzz/X.cpp becomes the program fuzz-X.
file(GLOB fuzzers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/*.cpp)
foreach(library panelix panelix-play)
    target_compile_options(${library} PRIVATE -fsanitize=fuzzer-no-link)
endforeach()
foreach(fuzzer IN LISTS fuzzers)
    cmake_path(GET fuzzer STEM LAST_ONLY name)
    add_executable(fuzz-${name} ${fuzzer})
    target_link_libraries(fuzz-${name} PRIVATE panelix-play panelix panelix-options)
    target_compile_options(fuzz-${name} PRIVATE -fsanitize=fuzzer)
    target_link_options(fuzz-${name} PRIVATE -fsanitize=fuzzer)
endforeach()
