# SPDX-License-Identifier: MIT
# One program of all tests, run by CTest case by case.
if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
    message(FATAL_ERROR "The tests need Google Test's sources: install the Debian package googletest")
endif()
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)

file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/*Test.cpp)
list(FILTER sources EXCLUDE REGEX "/tests/(desktop|fuzz)/")
file(GLOB host CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/host/*.cpp ${CMAKE_SOURCE_DIR}/tests/twin/*.cpp
    ${CMAKE_SOURCE_DIR}/tests/pictures/*.cpp ${CMAKE_SOURCE_DIR}/tests/random/*.cpp)
# For each case of tests/random; real windows take their time.
set(randomActions 100000)
if(WIN32)
    set(randomActions 1000)
    # What only the window system in memory offers, and what only Linux has.
    list(FILTER sources EXCLUDE REGEX "/tests/(pictures/egl|platform/(win32/memory|lumora/gl/egl|lumora/viewer/glfw))/")
else()
    file(GLOB native CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/host/native/*.cpp)
    list(APPEND host ${native})
    # What the screen shows.
    list(FILTER sources EXCLUDE REGEX "/tests/controls/windows/")
endif()
# What programs say and print, without their main.
list(APPEND sources ${CMAKE_SOURCE_DIR}/apps/view/EventPrinter.cpp ${CMAKE_SOURCE_DIR}/apps/view/SkinChoice.cpp
    ${CMAKE_SOURCE_DIR}/apps/view/PanelScene.cpp ${CMAKE_SOURCE_DIR}/apps/view/TreePrinter.cpp)
# The control of an example.
file(GLOB stepper CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/examples/custom-control/Stepper*.cpp)
list(APPEND sources ${stepper})
list(APPEND sources ${host})
list(REMOVE_DUPLICATES sources)

add_executable(panelix-tests ${sources})
target_link_libraries(panelix-tests PRIVATE panelix-play panelix-viewer panelix panelix-options GTest::gtest GTest::gmock)
if(WIN32)
    # Each test is a start of the program, and Wine reads all of it: half of the time went into what debuggers want.
    target_link_options(panelix-tests PRIVATE LINKER:--strip-debug)
endif()
set_property(SOURCE ${host} APPEND PROPERTY COMPILE_DEFINITIONS
    PANELIX_TEST_FONTS="${CMAKE_BINARY_DIR}/fonts.conf" PANELIX_TEST_OUTPUT="${CMAKE_BINARY_DIR}/test-output"
    PANELIX_RANDOM_ACTIONS=${randomActions})

include(GoogleTest)
# Asked for its cases when they are run, not when it is built: a build needs no Wine and no display.
gtest_discover_tests(panelix-tests
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 120
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
    PROPERTIES TIMEOUT 120)

# tests/desktop/X.cpp becomes the program desktop-X, which a desktop test starts; those in windows/ on Windows only.
file(GLOB helpers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/desktop/*.cpp)
if(WIN32)
    file(GLOB windowsHelpers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/desktop/windows/*.cpp)
    list(APPEND helpers ${windowsHelpers})
endif()
foreach(helper IN LISTS helpers)
    cmake_path(GET helper STEM name)
    add_executable(desktop-${name} ${helper})
    target_link_libraries(desktop-${name} PRIVATE panelix-viewer panelix panelix-options)
    target_link_options(desktop-${name} PRIVATE LINKER:--as-needed)
endforeach()
