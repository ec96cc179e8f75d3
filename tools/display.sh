# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# To be sourced behind environment.sh: an X server without a screen, for programs that nobody watches.

display_pid=

# Starts one and sets DISPLAY.
start_display() {
    [ -z "$display_pid" ] || return 0
    local number
    number=$(mktemp "$PANELIX_ROOT/build/display.XXXXXX")
    # Not descriptor 9, by which a script holds its turn.
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$number" >/dev/null 2>&1 9>&- &
    display_pid=$!
    for _ in $(seq 100); do
        [ ! -s "$number" ] || break
        sleep 0.1
    done
    DISPLAY=:$(cat "$number")
    rm -f "$number"
    if [ "$DISPLAY" = : ]; then
        echo "Xvfb did not start within ten seconds." >&2
        exit 1
    fi
    export DISPLAY
}

stop_display() {
    [ -n "$display_pid" ] || return 0
    kill "$display_pid" 2>/dev/null || true
    wait "$display_pid" 2>/dev/null || true
    display_pid=
}
