# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# The viewer: its window, and its events from a real mouse and keyboard, on both targets.

# start_viewer TARGET: 400 by 300 pixels with a red cube in the middle, whose lines go to $events.
start_viewer() {
    events=$FOLDER/viewer.txt
    if [ "$1" = linux ]; then
        runner=
        left=0 top=0
        start_program "$events" Tested "$PANELIX_ROOT/build/native/bin/desktop-viewer"
    else
        runner=wine
        left=$FRAME top=$((FRAME + TITLE_HEIGHT))
        start_program "$events" Tested "$PROGRAMS/desktop-viewer.exe"
    fi
    wait_for_line "$events" "size 400 300"
}

click_inside() { click_at $((left + $1)) $((top + $2)) "${3:-1}"; }
drag_inside() { drag $((left + $1)) $((top + $2)) "$3" "$4" "${5:-1}"; }
color_inside() { get_pixel $((left + $1)) $((top + $2)); }

get_camera() { tr -d '\r' <"$events" | grep '^camera' | tail -n 1; }
get_depth() { get_camera | cut -d ' ' -f 4; }

# is_less A B
is_less() { awk -v a="$1" -v b="$2" 'BEGIN { exit !(a < b) }'; }

# The brightest part of a colour: red, green or blue.
name_color() { awk '{ print ($1 > $2 && $1 > $3) ? "red" : ($3 > $1 && $3 > $2) ? "blue" : "none" }' <<<"$1"; }

check_picture() {
    start_viewer "$1"
    expect_equal "middle" red "$(name_color "$(color_inside 200 150)")"
    expect_equal "background" "38 41 46" "$(color_inside 5 5)"
}
test_viewerOnLinux_showsTheScene() { check_picture linux; }
test_viewerOnWindows_showsTheScene() { check_picture windows; }

check_click() {
    start_viewer "$1"
    local before
    before=$(get_camera)
    click_inside 200 150
    wait_for_line "$events" pressed
    expect_equal "colour" blue "$(name_color "$(color_inside 200 150)")"
    expect_equal "camera" "$before" "$(get_camera)"
}
test_viewerOnLinux_clickThatTheSceneTakes_changesThePicture() { check_click linux; }
test_viewerOnWindows_clickThatTheSceneTakes_changesThePicture() { check_click windows; }

check_drag() {
    start_viewer "$1"
    local before
    before=$(get_camera)
    drag_inside 10 10 200 0
    [ "$(get_camera)" != "$before" ] || desktop_error "the camera did not move"
    # Two thirds of a half turn: the camera looks from behind.
    is_less "$(get_depth)" 0 || desktop_error "the camera moved too little: $(get_camera)"
}
test_viewerOnLinux_dragBesideTheScene_turnsTheCamera() { check_drag linux; }
test_viewerOnWindows_dragBesideTheScene_turnsTheCamera() { check_drag windows; }

check_drag_outwards() {
    start_viewer "$1"
    drag_inside 390 150 100 0 3
    local atTheEdge
    atTheEdge=$(get_depth)
    # A third of a half turn, nearly all of it outside of the window.
    is_less "$atTheEdge" "$(awk '/^camera/ { print $4 * 0.6; exit }' "$events")" ||
        desktop_error "the mouse was lost at the edge of the window"
}
test_viewerOnLinux_dragOutOfTheWindow_goesOn() { check_drag_outwards linux; }
test_viewerOnWindows_dragOutOfTheWindow_goesOn() { check_drag_outwards windows; }

check_wheel() {
    start_viewer "$1"
    local first near
    first=$(get_camera)
    click_inside 200 150 4
    near=$(get_depth)
    is_less "$near" "${first##* }" || desktop_error "the wheel did not zoom: $near after $first"
    press_key Home
    expect_equal "camera after Home" "$first" "$(get_camera)"
}
test_viewerOnLinux_wheelAndHome_zoomAndViewAll() { check_wheel linux; }
test_viewerOnWindows_wheelAndHome_zoomAndViewAll() { check_wheel windows; }

check_keys() {
    start_viewer "$1"
    press_key a
    press_key shift+a
    press_key Left
    press_key ctrl+c
    wait_for_line "$events" "key 61 61"
    wait_for_line "$events" "key 61 41"
    wait_for_line "$events" "key ff51 0"
    wait_for_line "$events" "key 63 0"
}
test_viewerOnLinux_keys_bringTheirCharacters() { check_keys linux; }
test_viewerOnWindows_keys_bringTheirCharacters() { check_keys windows; }

test_viewerOnLinux_otherSize_reachesTheView() {
    start_viewer linux
    timeout 5 xdotool windowsize "$window" 500 350
    wait_for_line "$events" "size 500 350"
    settle
    expect_equal "middle" red "$(name_color "$(color_inside 250 175)")"
    expect_equal "new corner" "38 41 46" "$(color_inside 495 345)"
}
test_viewerOnWindows_otherSize_reachesTheView() {
    start_viewer windows
    drag_corner 100 48
    wait_for_line "$events" "size 500 348"
    settle
    expect_equal "new corner" "38 41 46" "$(color_inside 495 343)"
}

test_viewerOnWindows_closed_endsTheProgram() {
    start_viewer windows
    local width height status=0
    read -r width height < <(get_size)
    click_at $((width - FRAME - 10)) $((FRAME + 9))
    wait_for_end || status=$?
    expect_equal "exit status" 0 $status
    wait_for_line "$events" closed
}

test_viewerOnLinux_withoutADisplay_saysSo() {
    local status=0
    DISPLAY='' "$PANELIX_ROOT/build/native/bin/desktop-viewer" >"$FOLDER/viewer.txt" 2>&1 || status=$?
    expect_equal "exit status" 1 $status
    expect_contains message "there is no display" "$(cat "$FOLDER/viewer.txt")"
}
