# SPDX-License-Identifier: MIT
# Makes generated/LuEmbeddedSkins.h and .cpp from the skin files: the library carries its default skin with it.
file(GLOB PANELIX_SKINS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/Panelix/skins/default/*.lum)

set(PANELIX_EMBEDDED_SKINS ${CMAKE_BINARY_DIR}/generated/LuEmbeddedSkins.cpp)
# The list goes by a file: a command line would have to quote it.
set(manifest ${CMAKE_BINARY_DIR}/generated/skins.txt)
list(JOIN PANELIX_SKINS "\n" lines)
file(CONFIGURE OUTPUT ${manifest} CONTENT "${lines}\n" @ONLY)

add_custom_command(
    OUTPUT ${PANELIX_EMBEDDED_SKINS} ${CMAKE_BINARY_DIR}/generated/LuEmbeddedSkins.h
    COMMAND ${CMAKE_COMMAND} -D MANIFEST=${manifest} -D FOLDER=${CMAKE_BINARY_DIR}/generated
        -P ${CMAKE_SOURCE_DIR}/cmake/EmbedSkins.cmake
    DEPENDS ${PANELIX_SKINS} ${manifest} ${CMAKE_SOURCE_DIR}/cmake/EmbedSkins.cmake
    COMMENT "Embedding the default skin"
    VERBATIM)
