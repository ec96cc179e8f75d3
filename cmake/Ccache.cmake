# SPDX-License-Identifier: MIT
# Compiles through ccache where it is installed. Paths below the source folder are made relative, so that two
# check-outs share what they have compiled.
find_program(PANELIX_CCACHE ccache)
mark_as_advanced(PANELIX_CCACHE)
if(PANELIX_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        /usr/bin/env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=true ${PANELIX_CCACHE})
endif()
