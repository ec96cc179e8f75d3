# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# To be sourced: where programs that our scripts start keep their things. All of it stays below build/.
PANELIX_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# A real desktop's key lies in the real home folder.
export XAUTHORITY=${XAUTHORITY:-${HOME:-/root}/.Xauthority}
export CCACHE_DIR=${CCACHE_DIR:-$PANELIX_ROOT/build/ccache}
export HOME=$PANELIX_ROOT/build/home
export XDG_CONFIG_HOME=$HOME/config XDG_DATA_HOME=$HOME/data XDG_CACHE_HOME=$HOME/cache
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"

export WINEPREFIX=$PANELIX_ROOT/build/wine
# No .NET, no browser engine, no entries in the desktop's menu: nothing of it is used, all of it costs time.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export WINEDEBUG=-all
