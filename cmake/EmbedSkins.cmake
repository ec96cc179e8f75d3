# SPDX-License-Identifier: MIT
# cmake -D MANIFEST=<file with one skin file a line> -D FOLDER=<where to write> -P EmbedSkins.cmake
#
# Writes LuEmbeddedSkins.h and LuEmbeddedSkins.cpp. A text is the file's without its first line, the file header,
# and without the comment lines directly below: texts given in memory need neither.
file(STRINGS ${MANIFEST} skins)

set(declarations "")
set(definitions "")
set(rows "")
foreach(skin IN LISTS skins)
    cmake_path(GET skin STEM LAST_ONLY name)
    file(READ "${skin}" text)
    string(REPLACE "\r\n" "\n" text "${text}")
    string(SUBSTRING "${text}" 0 1 first)
    while(first STREQUAL "#")
        string(FIND "${text}" "\n" end)
        if(end EQUAL -1)
            set(text "")
        else()
            math(EXPR end "${end} + 1")
            string(SUBSTRING "${text}" ${end} -1 text)
        endif()
        string(SUBSTRING "${text}" 0 1 first)
    endwhile()
    string(FIND "${text}" ")skin\"" clash)
    if(NOT clash EQUAL -1)
        message(FATAL_ERROR "${skin} holds )skin\" which ends the literal that it is embedded in")
    endif()
    string(APPEND declarations "extern const char LuEmbeddedSkin_${name}[];\n")
    string(APPEND definitions "const char LuEmbeddedSkin_${name}[] = R\"skin(${text})skin\";\n\n")
    string(APPEND rows "    {\"${name}\", LuEmbeddedSkin_${name}},\n")
endforeach()

file(WRITE ${FOLDER}/LuEmbeddedSkins.h "// Made from data/Panelix/skins/default by cmake/EmbedSkins.cmake.
#pragma once

/// A skin file of the default skin: its name without the ending, its text without the file header.
struct LuEmbeddedSkin {
    const char* name;
    const char* text;
};

/// All of them, by name; a row of two nulls ends the table.
extern const LuEmbeddedSkin LuEmbeddedSkins[];

${declarations}")

file(WRITE ${FOLDER}/LuEmbeddedSkins.cpp "// Made from data/Panelix/skins/default by cmake/EmbedSkins.cmake.
#include \"generated/LuEmbeddedSkins.h\"

${definitions}const LuEmbeddedSkin LuEmbeddedSkins[] = {
${rows}    {nullptr, nullptr},
};
")
