# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# The frame of a dialog: its corner, its size, its scroll bars, its title bar.

start_one_button() {
    start_dialog "TopLevelDialog { label \"Tested\" ${1:-}" \
        'DialogPushButton { auditorID "wide" labelVisibility FALSE buttonLabel "Wide" } }'
}

test_dragAtTheCorner_resizesTheWindowAndItsContent() {
    start_one_button
    local width height newWidth newHeight
    read -r width height < <(get_size)
    drag_corner 120 60
    read -r newWidth newHeight < <(get_size)
    expect_equal size "$((width + 120)) $((height + 60))" "$newWidth $newHeight"
    # Here was nothing before.
    click_at $((newWidth - FRAME - 10)) $((newHeight - FRAME - 10))
    expect_equal events wide "$(get_events)"
}

test_dragInwards_stopsAtTheLeastSize() {
    start_one_button 'minWidth 180 minHeight 90 width 260 height 160'
    drag_corner -240 -120
    expect_equal size "180 90" "$(get_size)"
}

test_dragOutwards_stopsAtTheLargestSize() {
    start_one_button 'maxWidth 300 maxHeight 200 width 260 height 160'
    drag_corner 200 120
    # Wine keeps the mouse itself within the limit, so that a pixel is missing.
    expect_equal size "299 199" "$(get_size)"
}

test_notResizable_keepsItsSize() {
    start_one_button 'resizable FALSE width 260 height 160'
    drag_corner 80 80
    expect_equal size "260 160" "$(get_size)"
}

test_closeOfTheTitleBar_hidesTheDialogAndEndsTheProgram() {
    start_one_button
    local width height
    read -r width height < <(get_size)
    click_at $((width - FRAME - 10)) $((FRAME + 9))
    local status=0
    wait_for_end || status=$?
    expect_equal "exit status" 0 $status
}

test_closeOfOneDialog_leavesTheOtherOne() {
    printf '%s\n' '#Lumora V2.0 ascii' 'TopLevelDialog { label "Other" width 200 position 400 0 DialogPushButton { } }' \
        >"$FOLDER/other.lum"
    printf '%s\n' '#Lumora V2.0 ascii' 'TopLevelDialog { label "Tested" width 200 DialogPushButton { } }' >"$FOLDER/one.lum"
    start_program "$FOLDER/events.txt" Tested "$PROGRAMS/panelix-view.exe" "$FOLDER/one.lum" "$FOLDER/other.lum"
    local width height status=0
    read -r width height < <(get_size)
    click_at $((width - FRAME - 10)) $((FRAME + 9))
    is_running || desktop_error "the program ended with the first of two dialogs"
    window=$(xdotool search --onlyvisible --name '^Other$' | head -n 1)
    read -r width height < <(get_size)
    click_at $((width - FRAME - 10)) $((FRAME + 9))
    wait_for_end || status=$?
    expect_equal "exit status" 0 $status
}
