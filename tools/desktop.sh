# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# To be sourced: runs programs, Windows ones unless told otherwise, and drives them with mouse and keyboard, as a person at the display would.
# Needs a display in DISPLAY, and Wine's server running. Every wait has an end: what does not come is an error.
set -euo pipefail

# shellcheck source=tools/environment.sh
source "$(dirname "${BASH_SOURCE[0]}")/environment.sh"
# shellcheck source=tools/wine.sh
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"

# Wine's frame round a window that no window manager takes care of.
FRAME=4
TITLE_HEIGHT=19

# Seconds that a program has to show its window, to answer, and to end.
PATIENCE=30

desktop_error() {
    printf 'desktop: %s\n' "$*" >&2
    return 1
}

# A program sees a click or a key a moment later.
settle() { sleep 0.25; }

# wait_until COMMAND...: true once the command is, false when it has not become so in PATIENCE seconds.
wait_until() {
    local end=$((SECONDS + PATIENCE))
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.1
    done
}

# --- Programs ---------------------------------------------------------------------------------------------------

program_pid=
window=

# What runs a program: wine, or nothing for a program of this system.
runner=wine

# start_program OUTPUT TITLE PROGRAM [ARGUMENT...]: starts it, its lines going to the file OUTPUT, and waits for
# its window, which the other operations then work on.
start_program() {
    local output=$1 title=$2
    shift 2
    try_program "$output" "$title" "$@"
    if [ -z "$window" ] && has_ended; then
        read_status
        ! is_false_start "$program_status" "$output" || try_program "$output" "$title" "$@"
    fi
    [ -n "$window" ] || {
        local state="is running"
        ! has_ended || { read_status && state="ended with status $program_status"; }
        desktop_error "the window \"$title\" did not come; the program $state and said: $(cat "$output")"
        return 1
    }
    xdotool mousemove 1270 1010
    settle
    # The keyboard goes where the program has put the focus, once X gives it to the window.
    xdotool windowfocus "$window"
    settle
}

try_program() {
    local output=$1 title=$2
    shift 2
    : >"$output"
    wine_start=$(date +%s%N)
    ${runner:+"$runner"} "$@" </dev/null >"$output" 2>&1 &
    program_pid=$!
    wait_until has_window_or_ended "$title" || true
}

# The program has ended: its exit status, in $program_status.
read_status() {
    program_status=0
    wait "$program_pid" || program_status=$?
}

has_window_or_ended() {
    window=$(timeout 5 xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1) || true
    [ -n "$window" ] || has_ended
}

is_running() { kill -0 "$program_pid" 2>/dev/null; }
has_ended() { ! is_running; }

# Waits for the end of the program; its exit status is the result.
wait_for_end() {
    local status=0
    # A caller that asks for the status has switched off the end at an error.
    wait_until has_ended || {
        desktop_error "the program did not end"
        return 124
    }
    wait "$program_pid" || status=$?
    program_pid=
    return $status
}

# Ends the program where it is still running.
end_program() {
    [ -n "$program_pid" ] || return 0
    kill -KILL "$program_pid" 2>/dev/null || true
    wait "$program_pid" 2>/dev/null || true
    program_pid=
}

# has_line FILE TEXT: the file has a line that is the text. Windows programs end lines in their own way.
has_line() { tr -d '\r' <"$1" | grep -qxF -- "$2"; }

# wait_for_line FILE TEXT
wait_for_line() { wait_until has_line "$1" "$2" || desktop_error "the line did not come: $2"; }

# --- Places -----------------------------------------------------------------------------------------------------

# read_places FILE [PANELIX-VIEW]: where the components of a dialog stand when it opens, from the program's tree.
read_places() {
    local tree
    tree=$(mktemp "$PANELIX_ROOT/build/tree.XXXXXX")
    local status=0
    run_wine "$tree" 60 "${2:-$PANELIX_ROOT/build/windows/bin/panelix-view.exe}" "$1" --tree || status=$?
    [ $status = 0 ] || desktop_error "there is no tree of $1, by status $status: $(cat "$tree")"
    # Positions in the tree are relative to the component around; these here to the corner of the frame.
    places=$(tr -d '\r' <"$tree" | awk -v frame=$FRAME -v title=$TITLE_HEIGHT '{
        match($0, /^ */); depth = RLENGTH / 2
        x[depth] = depth == 0 ? frame : x[depth - 1] + $(NF - 4)
        y[depth] = depth == 0 ? frame + title : y[depth - 1] + $(NF - 3)
        id = $2; gsub(/"/, "", id)
        if (id != "") print id, x[depth], y[depth], $(NF - 1), $NF
    }')
    rm -f "$tree"
}

# get_place ID: x, y, width and height.
get_place() {
    local place
    place=$(awk -v id="$1" '$1 == id { print $2, $3, $4, $5; exit }' <<<"$places")
    [ -n "$place" ] || desktop_error "there is no component $1"
    printf '%s\n' "$place"
}

# get_size: width and height of the window, with its frame.
get_size() {
    timeout 5 xdotool getwindowgeometry --shell "$window" | awk -F= '/^WIDTH/ { w = $2 } /^HEIGHT/ { print w, $2 }'
}

# --- Mouse, keyboard, pictures ----------------------------------------------------------------------------------

# click_at X Y [BUTTON]: in the window; the mouse's wheel is the buttons 4 (up) and 5 (down).
click_at() {
    timeout 5 xdotool mousemove --window "$window" "$1" "$2"
    settle
    timeout 5 xdotool click "${3:-1}"
    settle
}

# click_on ID: on the right end of a component, where the button is beside its label.
click_on() {
    local x y width height
    read -r x y width height < <(get_place "$1")
    click_at $((x + width - 15)) $((y + height / 2))
}

# click_in_panel ID: the same for a panel that is seen from the front, a unit a pixel, in a scene's window. Its frame
# stands at PANEL_X, PANEL_Y there, and its children in it as in a window.
click_in_panel() {
    local x y width height
    read -r x y width height < <(get_place "$1")
    click_at $((PANEL_X + x + width - 15)) $((PANEL_Y + y + height / 2))
}

# play_scene PROGRAM.exe [ARGUMENT...]: a program that plays a file to its scene; it says what it says.
play_scene() {
    local output=$PANELIX_ROOT/build/play-scene.txt status=0
    run_wine "$output" 120 "$@" || status=$?
    cat "$output"
    return $status
}

press_key() {
    timeout 5 xdotool key "$1"
    settle
}

# drag_corner DX DY: the lower right corner of the frame, in steps as a hand does.
drag_corner() {
    local width height
    read -r width height < <(get_size)
    drag $((width - 2)) $((height - 2)) "$1" "$2"
}

# drag X Y DX DY [BUTTON]: from a place in the window, in steps as a hand does.
drag() {
    timeout 5 xdotool mousemove --window "$window" "$1" "$2"
    settle
    timeout 5 xdotool mousedown "${5:-1}"
    settle
    for _ in 1 2 3 4; do
        timeout 5 xdotool mousemove_relative -- $(($3 / 4)) $(($4 / 4))
        sleep 0.1
    done
    timeout 5 xdotool mouseup "${5:-1}"
    settle
    settle
}

# get_pixel X Y: red, green and blue of a pixel of the window, each from 0 to 255.
get_pixel() {
    timeout 20 xwd -silent -id "$window" | xwdtopnm -quiet | pamcut -left "$1" -top "$2" -width 1 -height 1 |
        pamdepth -quiet 255 | pnmtoplainpnm | tail -n 1 | xargs
}

# take_picture FILE.png: of the window.
take_picture() {
    timeout 20 xwd -silent -id "$window" | xwdtopnm -quiet | pnmtopng -quiet >"$1"
    [ -s "$1" ] || desktop_error "the picture $1 could not be taken"
}

# take_screen_picture FILE.png: of all that the screen shows, without the black round it.
take_screen_picture() {
    timeout 20 xwd -silent -root | xwdtopnm -quiet | pnmcrop -quiet -black | pnmtopng -quiet >"$1"
    [ -s "$1" ] || desktop_error "the picture $1 could not be taken"
}
