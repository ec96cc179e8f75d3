# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# To be sourced by the scripts at the root: packages, builds, Wine; and nothing of it left at the end.
set -euo pipefail

# shellcheck source=tools/environment.sh
source "$(dirname "${BASH_SOURCE[0]}")/environment.sh"
# shellcheck source=tools/display.sh
source "$(dirname "${BASH_SOURCE[0]}")/display.sh"
cd "$PANELIX_ROOT"

# shellcheck disable=SC2034 # the scripts that source this use them
{
# Debian packages by purpose; docs/architecture.md has the reason for each.
PACKAGES_NATIVE="cmake ninja-build ccache g++ googletest libglm-dev libfreetype-dev libfontconfig-dev
    libglu1-mesa-dev libglfw3-dev libegl-dev libgl-dev libgles-dev libstb-dev libcli11-dev libgl1-mesa-dri
    fonts-wine xvfb"
PACKAGES_WINDOWS="cmake ninja-build ccache g++-mingw-w64-x86-64-posix googletest libglm-dev libstb-dev libcli11-dev
    wine wine64 fonts-wine xvfb xdotool x11-apps netpbm libgl1-mesa-dri libxcomposite1"
PACKAGES_FUZZ="clang llvm libclang-rt-dev"
PACKAGES_BENCH="libimgui-dev qt6-base-dev qt6-tools-dev libqt6opengl6-dev"
}

say() { printf '== %s\n' "$*"; }
fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# One script at a time in one check-out: they share the build folder, Wine's server and the display.
take_turn() {
    exec 9>"$PANELIX_ROOT/build/.lock"
    if ! flock --nonblock 9; then
        say "Another script is at work here; waiting for it"
        flock 9
    fi
    trap clean_up EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
}

clean_up() {
    stop_wine
    stop_display
}

# --- Packages ---------------------------------------------------------------------------------------------------

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# can_be_root: asks for the password where sudo wants one, before output goes to a file.
can_be_root() { [ "$(id -u)" = 0 ] || { command -v sudo >/dev/null && sudo env true; }; }

is_installed() {
    # The name may be a virtual one that another package provides.
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_packages NAME...: those that are missing, and only those.
install_packages() {
    local name missing=() try
    for name in $(printf '%s\n' "$@" | sort -u); do
        is_installed "$name" || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing Debian packages, once, some minutes: ${missing[*]}"
    can_be_root || fail "That takes root or a user who may use sudo. Somebody who is has to install them, then run this again:
    apt-get install --no-install-recommends ${missing[*]}"
    for try in 1 2 3; do
        if as_root apt-get -q update >build/apt.log 2>&1 &&
            as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" \
                >>build/apt.log 2>&1; then
            return 0
        fi
        say "That did not work (try $try of 3); build/apt.log ends with:"
        tail -n 5 build/apt.log
        sleep 5
    done
    fail "The packages could not be installed."
}

# --- Building ---------------------------------------------------------------------------------------------------

# build PRESET [TARGET...]: configures and builds; the output is shown only when something is wrong.
build() {
    local preset=$1 log=build/$1.log
    shift
    say "Building $preset (minutes at first, seconds when little has changed)"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
        # The first errors tell the cause, the last lines the place.
        grep -m 20 -A 5 -E 'error|FAILED|CMake Error' "$log" | cut -c -300 || true
        tail -n 20 "$log" | cut -c -300
        say "The build of $preset failed; all of its output is in $log"
        return 1
    fi
}

# --- Wine -------------------------------------------------------------------------------------------------------

server_pid=

# Makes the prefix where it is missing, and starts Wine's server. Needs a display.
start_wine() {
    [ -z "$server_pid" ] || return 0
    # The number goes up when the prefix has to be made anew.
    local ready=$WINEPREFIX/panelix-prefix-1
    if [ ! -e "$ready" ]; then
        server_pid=none
        say "Making Wine's prefix in build/wine (some 15 seconds, once)"
        rm -rf "$WINEPREFIX"
        quiet_wine wineboot --init
        # Wine draws title bars itself: no window manager is needed.
        set_registry 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
        # A program that crashes ends, instead of asking somebody.
        set_registry 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
        # Debian's Wine does not look into the folder of its own typefaces.
        ln -s /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
        wineserver -k || true
        wineserver -w
        touch "$ready"
    fi
    # Without a lasting server each program would start and end one, which costs seconds.
    # In the foreground it is our child, which we can wait for.
    wineserver --foreground --persistent </dev/null >/dev/null 2>&1 9>&- &
    server_pid=$!
}

# Wine's background processes must hold neither our output nor our lock.
quiet_wine() { wine "$@" </dev/null >build/wine.log 2>&1 9>&- || fail "wine $* failed; see build/wine.log"; }

set_registry() { quiet_wine reg add "$1" /v "$2" /t "$3" /d "$4" /f; }

stop_wine() {
    [ -n "$server_pid" ] || return 0
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
    [ "$server_pid" = none ] || wait "$server_pid" 2>/dev/null || true
    server_pid=
    # The server's socket lies outside the prefix: on Debian in a folder that a file in the prefix names, else in
    # one that goes by the prefix's device and inode.
    local sockets
    sockets=$(cat "$WINEPREFIX/wineserver" 2>/dev/null || true)
    if [[ $sockets =~ ^wine-[A-Za-z0-9]+$ ]]; then
        rm -rf "/tmp/$sockets" "$WINEPREFIX/wineserver"
    elif [ -d "$WINEPREFIX" ]; then
        sockets=/tmp/.wine-$(id -u)
        rm -rf "$sockets/server-$(stat -c '%d %i' "$WINEPREFIX" | xargs printf '%x-%x')"
        rmdir "$sockets" 2>/dev/null || true
    fi
}
