# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# Push buttons by mouse and keyboard.

start_three_buttons() {
    start_dialog 'TopLevelDialog { label "Tested"' \
        'DialogPushButton { auditorID "first"  label "First"  buttonLabel "One" }' \
        'DialogPushButton { auditorID "second" label "Second" buttonLabel "Two" }' \
        'DialogPushButton { auditorID "third"  label "Third"  buttonLabel "Three" } }'
}

test_click_reachesTheAuditorWithIdLabelAndValue() {
    start_three_buttons
    click_on second
    expect_equal events 'dialogPushButton "second" "Second" "Two"' "$(tr -d '\r' <"$events")"
}

test_clickOnDisabledButton_doesNothing() {
    start_dialog 'TopLevelDialog { label "Tested"' \
        'DialogPushButton { auditorID "off" buttonLabel "Off" enable FALSE }' \
        'DialogPushButton { auditorID "on" buttonLabel "On" } }'
    click_on off
    click_on on
    expect_equal events on "$(get_events)"
}

test_pressLeavingTheButton_doesNothing() {
    start_three_buttons
    local x y width height
    read -r x y width height < <(get_place first)
    xdotool mousemove --window "$window" $((x + width - 15)) $((y + height / 2)) mousedown 1
    settle
    xdotool mousemove_relative 0 $((height + 4)) mouseup 1
    settle
    click_on third
    expect_equal events third "$(get_events)"
}

test_tab_walksTheButtonsInTheirOrderAndRound() {
    start_three_buttons
    click_on first
    for _ in 1 2 3; do
        press_key Tab
        press_key space
    done
    expect_equal events 'first second third first' "$(get_events)"
}

test_shiftTab_walksTheButtonsBackwards() {
    start_three_buttons
    click_on third
    for _ in 1 2 3; do
        press_key shift+Tab
        press_key space
    done
    expect_equal events 'third second first third' "$(get_events)"
}

test_tab_skipsTheDisabledButton() {
    start_dialog 'TopLevelDialog { label "Tested"' \
        'DialogPushButton { auditorID "first" buttonLabel "One" }' \
        'DialogPushButton { auditorID "second" buttonLabel "Two" enable FALSE }' \
        'DialogPushButton { auditorID "third" buttonLabel "Three" } }'
    click_on first
    press_key Tab
    press_key space
    expect_equal events 'first third' "$(get_events)"
}

test_tab_walksNestedColumnsOneAfterTheOther() {
    start_dialog 'TopLevelDialog { label "Tested" ColumnDialog {' \
        'RowDialog { DialogPushButton { auditorID "a1" } DialogPushButton { auditorID "a2" } }' \
        'RowDialog { DialogPushButton { auditorID "b1" } DialogPushButton { auditorID "b2" } } }' \
        'DialogPushButton { auditorID "last" } }'
    click_on a1
    for _ in 1 2 3 4; do
        press_key Tab
        press_key space
    done
    expect_equal events 'a1 a2 b1 b2 last' "$(get_events)"
}

test_tab_keepsItsOrderAfterTheWindowWasResized() {
    start_three_buttons
    drag_corner 80 60
    # The first button's right end has moved with the window's.
    local width height
    read -r width height < <(get_size)
    click_at $((width - FRAME - 20)) $((FRAME + TITLE_HEIGHT + 20))
    press_key Tab
    press_key space
    expect_equal events 'first second' "$(get_events)"
}

test_tabAfterTheDialogOpened_reachesTheFirstButton() {
    start_three_buttons
    press_key Tab
    press_key space
    expect_equal events first "$(get_events)"
}
