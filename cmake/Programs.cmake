# SPDX-License-Identifier: MIT
# apps/X becomes the program panelix-X, examples/X the program example-X. A folder without main.cpp holds data.
# The folders windows/ and memory/ within a program go with the window system of that name.
if(WIN32)
    set(otherFolder "/memory/")
else()
    set(otherFolder "/windows/")
endif()

# What examples with a panel in a scene share.
file(GLOB stage CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/examples/stage/*.cpp)
add_library(panelix-stage STATIC ${stage})
target_link_libraries(panelix-stage PUBLIC panelix-play panelix-viewer panelix PRIVATE panelix-options)

function(panelix_add_programs folder prefix)
    file(GLOB mains CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*/main.cpp)
    foreach(main IN LISTS mains)
        cmake_path(GET main PARENT_PATH home)
        cmake_path(GET home FILENAME name)
        file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${home}/*.cpp)
        list(FILTER sources EXCLUDE REGEX "${otherFolder}")
        add_executable(${prefix}-${name} ${sources})
        target_link_libraries(${prefix}-${name} PRIVATE panelix-stage panelix-options)
        # One that has no viewer needs none of its libraries.
        target_link_options(${prefix}-${name} PRIVATE LINKER:--as-needed)
    endforeach()
endfunction()

# The skins of the source tree, for who has set no other folder.
add_compile_definitions(PANELIX_SKINS="${CMAKE_SOURCE_DIR}/data/Panelix/skins")
panelix_add_programs(apps panelix)
panelix_add_programs(examples example)
