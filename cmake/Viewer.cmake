# SPDX-License-Identifier: MIT
# panelix-viewer: a window round a scene, for programs that have none. It is a library of its own, so that only those
# who use it need the libraries of its window.
set(viewer platform/lumora/viewer)
if(WIN32)
    set(backend win32)
else()
    set(backend glfw)
endif()
file(GLOB sources CONFIGURE_DEPENDS ${viewer}/LuViewer*.cpp ${viewer}/${backend}/*.cpp)
add_library(panelix-viewer STATIC ${sources})
target_link_libraries(panelix-viewer PUBLIC panelix PRIVATE $<BUILD_INTERFACE:panelix-options>)
if(NOT WIN32)
    find_package(glfw3 REQUIRED)
    target_link_libraries(panelix-viewer PRIVATE glfw)
    target_compile_definitions(panelix-viewer PRIVATE GLFW_INCLUDE_NONE)
endif()
