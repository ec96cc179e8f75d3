# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# Sliders by mouse and keyboard.

# In the component: 3 pixels of edge, 16 of toggle, 2 of gap, and the thumb is 10 wide.
TOGGLE_X=11
THUMB_X=26

# start_slider FIELDS: a slider from 0 to 100, with nothing but the toggle beside it, whose thumb goes 300 pixels.
start_slider() {
    start_dialog 'TopLevelDialog { label "Tested"' \
        "DialogIntegerSlider { auditorID \"speed\" labelVisibility FALSE width 334 fixedWidth TRUE max 100 $1 } }"
    read -r x y width height < <(get_place speed)
    y=$((y + height / 2))
}

# get_values: the values that the auditors have heard of, in one line.
get_values() { tr -d '\r' <"$events" | cut -d '"' -f 6 | paste -s -d ' '; }

test_dragOfTheThumb_givesItsValueAtTheRelease() {
    start_slider 'valueVisible FALSE'
    drag $((x + THUMB_X)) "$y" 180 0
    expect_equal values 60 "$(get_values)"
}

test_dragWithTheToggleChecked_givesAValueAtEachMotion() {
    start_slider 'valueVisible FALSE'
    click_at $((x + TOGGLE_X)) "$y"
    drag $((x + THUMB_X)) "$y" 180 0
    # A busy machine may make one motion of two.
    local values
    values=$(get_values)
    expect_equal "last value" 60 "${values##* }"
    [ "$(wc -w <<<"$values")" -ge 2 ] || desktop_error "there was no value on the way: $values"
}

test_dragBeyondTheEnd_staysAtIt() {
    start_slider 'valueVisible FALSE'
    drag $((x + THUMB_X)) "$y" 400 60
    expect_equal values 100 "$(get_values)"
}

test_clickOnTheBar_bringsTheThumbThere() {
    start_slider 'valueVisible FALSE'
    click_at $((x + THUMB_X + 150)) "$y"
    expect_equal values 50 "$(get_values)"
}

test_arrowKeys_moveTheThumbByAHundredth() {
    start_slider 'valueVisible FALSE'
    click_at $((x + THUMB_X + 150)) "$y"
    press_key Right
    press_key Right
    press_key Left
    expect_equal values '50 51 52 51' "$(get_values)"
}

test_typingInTheEditBox_givesANumberAtEnter() {
    start_slider ''
    click_at $((x + width - 12)) "$y"
    press_key Home
    press_key shift+End
    for key in 4 x 2; do
        press_key "$key"
    done
    expect_equal values '' "$(get_values)"
    press_key Return
    expect_equal values 42 "$(get_values)"
}

test_sliderBar_showsItsColors() {
    start_slider 'valueVisible FALSE colors [ 1 0 0, 0 0 1 ] shadedColors FALSE'
    expect_equal 'left band' '255 0 0' "$(get_pixel $((x + THUMB_X + 60)) "$y")"
    expect_equal 'right band' '0 0 255' "$(get_pixel $((x + THUMB_X + 240)) "$y")"
}
