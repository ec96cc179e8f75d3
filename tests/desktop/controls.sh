# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# Controls with a value by mouse and keyboard.

# get_lines: what the auditor heard up to now.
get_lines() { tr -d '\r' <"$events"; }

start_check_boxes() {
    start_dialog 'TopLevelDialog { label "Tested"' \
        'DialogCheckBox { auditorID "fog"  label "Fog"  onString "Thick" offString "None" }' \
        'DialogCheckBox { auditorID "rain" label "Rain" onString "It rains" state TRUE }' \
        'DialogCheckBox { auditorID "off"  label "Off"  onString "Never" enable FALSE } }'
}

test_clickOnCheckBox_turnsItAndTellsItsState() {
    start_check_boxes
    click_on fog
    click_on rain
    click_on fog
    expect_equal events "$(printf '%s\n' 'dialogCheckBox "fog" "Fog" "TRUE"' 'dialogCheckBox "rain" "Rain" "FALSE"' \
        'dialogCheckBox "fog" "Fog" "FALSE"')" "$(get_lines)"
}

test_clickOnDisabledCheckBox_doesNothing() {
    start_check_boxes
    click_on off
    click_on fog
    expect_equal events fog "$(get_events)"
}

test_pressLeavingTheCheckBox_leavesItsState() {
    start_check_boxes
    local x y width height
    read -r x y width height < <(get_place fog)
    xdotool mousemove --window "$window" $((x + width - 15)) $((y + height / 2)) mousedown 1
    settle
    xdotool mousemove_relative 0 $((height + 4)) mouseup 1
    settle
    click_on fog
    expect_equal events 'dialogCheckBox "fog" "Fog" "TRUE"' "$(get_lines)"
}

test_spaceOnCheckBox_turnsIt() {
    start_check_boxes
    press_key Tab
    press_key space
    press_key space
    expect_equal events "$(printf '%s\n' 'dialogCheckBox "fog" "Fog" "TRUE"' 'dialogCheckBox "fog" "Fog" "FALSE"')" \
        "$(get_lines)"
}

test_tab_walksCheckBoxesAndButtons() {
    start_dialog 'TopLevelDialog { label "Tested"' \
        'DialogCheckBox { auditorID "first" onString "One" }' \
        'DialogPushButton { auditorID "second" buttonLabel "Two" }' \
        'DialogCheckBox { auditorID "third" onString "Three" } }'
    click_on first
    for _ in 1 2 3; do
        press_key Tab
        press_key space
    done
    expect_equal events 'first second third first' "$(get_events)"
}
