# SPDX-License-Identifier: MIT
# panelix-platform: the libraries that the platform folder stands on, for this target.
add_library(panelix-platform INTERFACE)

if(WIN32)
    # Header-only libraries of the build machine. Its whole include folder would bring its C library along, so
    # the few that we want are linked into a folder of our own.
    set(headers ${CMAKE_BINARY_DIR}/headers)
    file(MAKE_DIRECTORY ${headers})
    foreach(name glm stb CLI)
        if(EXISTS /usr/include/${name})
            file(CREATE_LINK /usr/include/${name} ${headers}/${name} SYMBOLIC)
        endif()
    endforeach()
    target_include_directories(panelix-platform SYSTEM INTERFACE ${headers})
    target_link_libraries(panelix-platform INTERFACE
        comctl32 comdlg32 user32 gdi32 shell32 ole32 uuid opengl32 glu32)
    # The calls of Windows 7 and no later ones.
    target_compile_definitions(panelix-platform INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
else()
    set(OpenGL_GL_PREFERENCE GLVND)
    find_package(OpenGL REQUIRED COMPONENTS OpenGL EGL)
    find_package(Freetype REQUIRED)
    find_package(Fontconfig REQUIRED)
    target_link_libraries(panelix-platform INTERFACE
        OpenGL::OpenGL OpenGL::EGL OpenGL::GLU Freetype::Freetype Fontconfig::Fontconfig)
    # For tests, fuzzers and benchmarks by FONTCONFIG_FILE: the same typefaces on both targets, Wine's.
    configure_file(${CMAKE_SOURCE_DIR}/cmake/fonts.conf.in ${CMAKE_BINARY_DIR}/fonts.conf @ONLY)
endif()
target_compile_definitions(panelix-platform INTERFACE
    GLM_FORCE_XYZW_ONLY      # one name for each part of a vector
    GLM_ENABLE_EXPERIMENTAL) # quaternions from and to axis and angle
