# SPDX-License-Identifier: MIT
# Flags for every file that we compile. What the system gives comes in as system headers and is not judged.
set(PANELIX_WARNINGS
    -Wall                 # what is nearly always a mistake
    -Wextra               # unused parameters, missing initialisers, odd casts of functions
    -Wpedantic            # no extension of one compiler: two compilers must take the source
    -Wnon-virtual-dtor    # a base class that is deleted through must say so
    -Woverloaded-virtual  # an override that misses its base operation by a parameter
    -Werror)              # a warning that stays is a warning that nobody reads
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    list(APPEND PANELIX_WARNINGS
        -Wshadow=local # a local that hides a local
        -Wno-restrict) # g++ 12 sees overlaps in std::string's operator+ that are not there
    if(PANELIX_SANITIZERS)
        # The checks that sanitizers put in confuse the flow analysis of g++ 12.
        list(APPEND PANELIX_WARNINGS -Wno-maybe-uninitialized)
    endif()
endif()

# Assertions stay on where we test; only the release build drops them.
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g")
if(PANELIX_SANITIZERS)
    # Call chains that can be read, and half the time to compile.
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g")
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O3 -DNDEBUG")

add_library(panelix-options INTERFACE)
target_compile_options(panelix-options INTERFACE ${PANELIX_WARNINGS})
target_include_directories(panelix-options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})

if(PANELIX_SANITIZERS)
    # For the whole build, Google Test too: memory from one side is judged on the other.
    add_compile_options(-fsanitize=${PANELIX_SANITIZERS}
        -fno-sanitize-recover=all # a find ends the test: a report alone is overlooked
        -fno-omit-frame-pointer)  # reports with whole call chains
    add_link_options(-fsanitize=${PANELIX_SANITIZERS})
endif()
