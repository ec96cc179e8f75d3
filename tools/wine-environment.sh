# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# To be sourced: what Wine is told by its environment. All that it writes stays below build/.
PANELIX_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=$PANELIX_ROOT/build/wine
export HOME=$PANELIX_ROOT/build/wine-home
export XDG_CONFIG_HOME=$HOME XDG_DATA_HOME=$HOME XDG_CACHE_HOME=$HOME
# No .NET, no browser engine, no entries in the desktop's menu: nothing of it is used, all of it costs time.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export WINEDEBUG=-all
