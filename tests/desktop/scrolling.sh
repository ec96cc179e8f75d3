# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# A dialog too small for its content.

# Eight buttons in the room of three.
start_small_dialog() {
    local i buttons=()
    for i in 1 2 3 4 5 6 7 8; do
        buttons+=("DialogPushButton { auditorID \"b$i\" labelVisibility FALSE buttonLabel \"$i\" }")
    done
    start_dialog 'TopLevelDialog { label "Tested" width 200 height 120 minHeight 80' "${buttons[@]}" '}'
}

# The button in the middle of the dialog, by a click on it; another one stands there when the content is scrolled.
get_button_in_the_middle() {
    local count
    count=$(wc -l <"$events")
    click_at 80 60
    wait_until has_more_lines "$count" || desktop_error "nothing was pressed"
    tail -n 1 "$events" | cut -d '"' -f 2
}

has_more_lines() { [ "$(wc -l <"$events")" -gt "$1" ]; }

# The dialog learns the wheel's step when settings of the user have changed.
tell_settings() {
    run_wine "$FOLDER/settings.txt" 60 "$PROGRAMS/desktop-tellSettings.exe" ||
        desktop_error "the settings could not be told"
    settle
}

turn_wheel() {
    local button=$1 notches=$2
    timeout 5 xdotool mousemove --window "$window" 80 60
    timeout 30 xdotool click --repeat "$notches" --delay 20 "$button"
    settle
}

test_wheel_scrollsOnceSettingsHaveBeenTold() {
    start_small_dialog
    expect_equal "before" b2 "$(get_button_in_the_middle)"
    tell_settings
    turn_wheel 5 25
    # Three lines for each notch, of a pixel each, are three buttons of 25 pixels.
    expect_equal "scrolled" b5 "$(get_button_in_the_middle)"
    turn_wheel 4 25
    expect_equal "scrolled back" b2 "$(get_button_in_the_middle)"
}

test_arrowOfTheScrollBar_scrollsTheContent() {
    start_small_dialog
    local width height
    expect_equal "before" b2 "$(get_button_in_the_middle)"
    read -r width height < <(get_size)
    timeout 5 xdotool mousemove --window "$window" $((width - FRAME - 8)) $((height - FRAME - 8))
    timeout 30 xdotool click --repeat 50 --delay 40 1
    settle
    expect_equal "scrolled" b4 "$(get_button_in_the_middle)"
}

test_enlargedWindow_showsAllWithoutScrolling() {
    start_small_dialog
    drag_corner 0 200
    local width height
    read -r width height < <(get_size)
    click_at $((width / 2)) $((FRAME + TITLE_HEIGHT + 10))
    click_at $((width - FRAME - 10)) $((height - FRAME - 10))
    # Where the scroll bar was there are buttons now.
    expect_equal events 'b1 b8' "$(get_events)"
}
