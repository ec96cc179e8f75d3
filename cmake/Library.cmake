# SPDX-License-Identifier: MIT
# The library: libpanelix on Linux, PanelixWin.dll with its import library on Windows. The folders decide what
# belongs to which target; no source file asks.
set(folders core auditors layout controls menus message platform/lumora)
# Viewer.cmake's.
set(viewerWindows "/platform/lumora/viewer/(LuViewer|glfw/|win32/)")
set(patterns platform/*.cpp platform/fonts/*.cpp platform/win32/*.cpp)
if(WIN32)
    set(window_system platform/win32/windows)
    list(APPEND folders ${window_system} platform/fonts/gdi)
    set(otherTarget "/lumora/(gl/egl|win/memory)/")
else()
    set(window_system platform/win32/memory)
    list(APPEND folders ${window_system} platform/fonts/freetype)
    set(otherTarget "/lumora/(gl/wgl|win/windows)/")
endif()
list(TRANSFORM folders APPEND "/*.cpp")
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folders})
list(FILTER sources EXCLUDE REGEX ${otherTarget})
list(FILTER sources EXCLUDE REGEX ${viewerWindows})
file(GLOB flat CONFIGURE_DEPENDS ${patterns})

if(WIN32)
    enable_language(RC)
    add_library(panelix SHARED ${sources} ${flat} ${PANELIX_EMBEDDED_SKINS}
        platform/win32/windows/PanelixWin.rc)
    set_target_properties(panelix PROPERTIES
        PREFIX "" OUTPUT_NAME PanelixWin WINDOWS_EXPORT_ALL_SYMBOLS ON)
    set_source_files_properties(platform/win32/windows/PanelixWin.rc PROPERTIES
        INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR}/platform/win32/windows
        OBJECT_DEPENDS ${CMAKE_SOURCE_DIR}/platform/win32/windows/panelix.ico)
    # The runtime that was linked in stays private: each program has its own.
    target_link_options(panelix PRIVATE -Wl,--exclude-libs,ALL)
else()
    add_library(panelix STATIC ${sources} ${flat} ${PANELIX_EMBEDDED_SKINS})
endif()
target_compile_definitions(panelix PRIVATE PANELIX_VERSION="${PROJECT_VERSION}")
# The warnings are ours, not those of who uses the library.
target_link_libraries(panelix PUBLIC panelix-platform PRIVATE $<BUILD_INTERFACE:panelix-options>)
# The window system's folder too: platform/win32/WindowSystem.h takes its names from the one that is there.
target_include_directories(panelix PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>
    $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}> $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/${window_system}>)
