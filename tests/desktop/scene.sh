# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# Windows and a scene of the same dialog, side by side on one screen.

SCENE_WIDTH=400
SCENE_HEIGHT=300

has_scene() {
    window=$(timeout 5 xdotool search --onlyvisible --name '^panelix-view$' 2>/dev/null | head -n 1) || true
    [ -n "$window" ]
}

# click_in_scene ID: on the right end of a component of the panel, which is seen from the front in the middle of the
# scene's window, a unit a pixel. Its children stand as far from its corner as a window's from its frame's.
click_in_scene() {
    local x y width height panelWidth panelHeight
    read -r x y panelWidth panelHeight < <(get_place panel)
    read -r x y width height < <(get_place "$1")
    click_at $((FRAME + SCENE_WIDTH / 2 - panelWidth / 2 + x + width - 15)) \
        $((FRAME + TITLE_HEIGHT + SCENE_HEIGHT / 2 - panelHeight / 2 + y + height / 2))
}

test_viewBoth_clicksInTheWindowAndInTheScene_reachTheAuditor() {
    dialog=$FOLDER/dialog.lum
    events=$FOLDER/events.txt
    # Away from where the scene's window will stand.
    printf '%s\n' '#Lumora V2.0 ascii' 'TopLevelDialog { auditorID "panel" label "Tested" position 700 500' \
        'DialogPushButton { auditorID "first"  label "First"  buttonLabel "One" }' \
        'DialogPushButton { auditorID "second" label "Second" buttonLabel "Two" } }' >"$dialog"
    read_places "$dialog"
    start_program "$events" Tested "$PROGRAMS/panelix-view.exe" --events --both \
        --size "${SCENE_WIDTH}x$SCENE_HEIGHT" "$dialog"
    local dialogWindow=$window
    # The scene's window comes last, and until then nobody takes the clicks.
    wait_until has_scene || desktop_error "the scene's window did not come"
    local sceneWindow=$window
    settle
    window=$dialogWindow
    click_on first
    expect_equal "events after the click in the window" 'first' "$(get_events)"
    window=$sceneWindow
    click_in_scene second
    expect_equal "events after the click in the scene" 'first second' "$(get_events)"
    click_in_scene first
    window=$dialogWindow
    click_on second
    expect_equal "events after both again" 'first second first second' "$(get_events)"
}
