# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# panelix-view and panelix-check from the command line.

EXAMPLE=examples/first-dialog/first-dialog.lum

test_view_help_namesTheOptions() {
    run_program panelix-view --help
    expect_equal status 0 "$status"
    local option
    for option in --id --events --tree --scene --both --size --camera --play --snapshot --skin; do
        expect_contains help "$option" "$output"
    done
}

test_view_wrongUse_isToldFromAFault() {
    run_program panelix-view --nonsense "$EXAMPLE"
    expect_equal status 2 "$status"
    run_program panelix-view
    expect_equal status 2 "$status"
}

test_view_valuesThatAreNone_areWrongUse() {
    local values
    for values in '--size 5x' '--size 0x5' '--size 9000x5' '--camera side' '--camera 0' '--tree xml' '--scene --both'; do
        # shellcheck disable=SC2086 # a list of words
        run_program panelix-view $values "$EXAMPLE"
        expect_equal "status of $values" 2 "$status"
    done
    run_program panelix-view --snapshot '' "$EXAMPLE"
    expect_equal status 2 "$status"
}

test_view_missingFile_isAFault() {
    run_program panelix-view nowhere.lum
    expect_equal status 1 "$status"
    expect_equal message "LuInput::openFile: nowhere.lum: error: the file can't be read: it does not exist" "$output"
}

test_view_directory_isAFault() {
    run_program panelix-view examples
    expect_equal status 1 "$status"
    expect_contains message "it is a directory" "$output"
}

test_view_withoutADisplay_isAFault() {
    DISPLAY='' run_program panelix-view --tree "$EXAMPLE"
    expect_equal status 1 "$status"
    expect_contains message "Create Base Window failed" "$output"
}

test_wineRun_withoutADisplay_givesOne() {
    local output
    output=$(DISPLAY='' tools/wine-run "$PROGRAMS/panelix-view.exe" --tree "$EXAMPLE" 2>&1)
    expect_contains message "there is no display" "$output"
    expect_contains tree '      DialogPushButton "red" at 0 0 size ' "$output"
}

test_view_fileWithoutComponents_isAFault() {
    printf '%s\n' '#Lumora V2.0 ascii' 'Separator { }' >"$FOLDER/bare.lum"
    run_program panelix-view "$FOLDER/bare.lum"
    expect_equal status 1 "$status"
    expect_contains message "Cannot find any Panelix component" "$output"
}

test_view_tree_hasALineForEachComponent() {
    run_program panelix-view --tree "$EXAMPLE"
    expect_equal status 0 "$status"
    expect_equal lines "$(grep -cE '^ *(TopLevel|Row|Column|Dialog)[A-Za-z]* (\{|$)' "$EXAMPLE")" \
        "$(wc -l <<<"$output")"
    expect_contains tree '      DialogPushButton "red" at 0 0 size ' "$output"
}

test_view_tree_ofAnIdBeginsThere() {
    run_program panelix-view --tree --id red "$EXAMPLE"
    expect_equal status 0 "$status"
    expect_contains tree 'DialogPushButton "red"' "$(head -n 1 <<<"$output")"
    expect_equal lines 1 "$(wc -l <<<"$output")"
}

test_view_treeAsJson_showsFieldsAndWindows() {
    run_program panelix-view --tree json "$EXAMPLE"
    expect_equal status 0 "$status"
    expect_contains tree '"value": "\"Green\""' "$output"
    expect_contains tree '"class": "Button"' "$output"
    expect_contains tree '"text": "Green"' "$output"
}

test_view_unknownSkin_isAFault() {
    run_program panelix-view --skin nonsense --tree "$EXAMPLE"
    expect_equal status 1 "$status"
    expect_contains message 'panelix-view: there is no skin "nonsense"' "$output"
}

test_view_skinOfADirectory_isTaken() {
    run_program panelix-view --skin data/Panelix/skins/default --tree "$EXAMPLE"
    expect_equal status 0 "$status"
    expect_contains tree '      DialogPushButton "red" at 0 0 size ' "$output"
}

test_view_snapshot_isAPictureAsLargeAsTheWindow() {
    run_program panelix-view --snapshot "$FOLDER/picture.png" "$EXAMPLE"
    expect_equal status 0 "$status"
    read_places "$EXAMPLE"
    local colours
    colours=$(pngtopnm -quiet "$FOLDER/picture.png" | ppmhist -quiet -noheader | wc -l)
    # Frame, title, face, edges, texts: many more than a blank area has.
    [ "$colours" -gt 10 ] || desktop_error "the picture has only $colours colours"
    expect_contains size "$(run_program panelix-view --tree "$EXAMPLE"; head -n 1 <<<"$output" | sed 's/.*size \([0-9]*\) \([0-9]*\)/\1 by \2/')" \
        "$(pngtopnm -quiet "$FOLDER/picture.png" | pnmfile)"
}

test_view_snapshotOfAScene_isAsLargeAsAskedFor() {
    run_program panelix-view --scene --size 320x240 --snapshot "$FOLDER/front.png" "$EXAMPLE"
    expect_equal "status and output" "0 " "$status $output"
    expect_contains size "320 by 240" "$(pngtopnm -quiet "$FOLDER/front.png" | pnmfile)"
    run_program panelix-view --scene --size 320x240 --camera tilted --snapshot "$FOLDER/tilted.png" "$EXAMPLE"
    expect_equal "status and output" "0 " "$status $output"
    run_program panelix-view --scene --size 320x240 --skin slate --snapshot "$FOLDER/slate.png" "$EXAMPLE"
    expect_equal "status and output" "0 " "$status $output"
    local other
    for other in tilted slate; do
        ! cmp -s "$FOLDER/front.png" "$FOLDER/$other.png" || desktop_error "$other looks as the front does"
    done
}

test_view_playFile_isPlayedToWindowsAndScene() {
    printf '%s\n' 'press red' 'release' "snapshot $FOLDER/played.png" 'press green' 'release' >"$FOLDER/two.play"
    local rendition
    for rendition in '' --scene --both; do
        rm -f "$FOLDER/played.png"
        # shellcheck disable=SC2086 # no word, or one
        run_program panelix-view $rendition --events --play "$FOLDER/two.play" "$EXAMPLE"
        expect_equal "status with $rendition" 0 "$status"
        expect_equal "events with $rendition" "red green" "$(cut -d '"' -f 2 <<<"$output" | paste -s -d ' ')"
        [ -s "$FOLDER/played.png" ] || desktop_error "there is no picture with $rendition"
    done
}

test_view_faultyPlayFile_saysWhere() {
    printf '%s\n' 'press red' 'relase' >"$FOLDER/faulty.play"
    run_program panelix-view --scene --events --play "$FOLDER/faulty.play" "$EXAMPLE"
    expect_equal status 1 "$status"
    expect_contains message 'faulty.play:2:1: error: "relase" is no action' "$output"
    printf '%s\n' 'press red' 'release' 'press blu' >"$FOLDER/faulty.play"
    run_program panelix-view --scene --play "$FOLDER/faulty.play" "$EXAMPLE"
    expect_equal status 1 "$status"
    expect_contains message 'Line 3: there is no component with the auditorID "blu"' "$output"
}

test_view_snapshotThatCannotBeWritten_isAFault() {
    run_program panelix-view --snapshot "$FOLDER/nowhere/picture.png" "$EXAMPLE"
    expect_equal status 1 "$status"
    expect_contains message "can't be written" "$output"
}

test_scenePanel_eachButton_changesWhatIsSeenAndIsHeard() {
    local buttons=(turn larger lamp skin) before=$FOLDER/start.png button
    {
        printf 'snapshot %s\n' "$before"
        printf "press %s\nrelease\nsnapshot $FOLDER/%s.png\n" turn turn larger larger lamp lamp skin skin
        printf '%s\n' 'press window' 'release' 'press lamp' 'release'
    } >"$FOLDER/all.play"
    run_program example-scene-panel --play "$FOLDER/all.play"
    expect_equal status 0 "$status"
    expect_equal lines "${buttons[*]} window lamp" "$(paste -s -d ' ' <<<"$output")"
    for button in "${buttons[@]}"; do
        ! cmp -s "$before" "$FOLDER/$button.png" || desktop_error "nothing is seen of $button"
        before=$FOLDER/$button.png
    done
}

test_scenePanel_unknownArgument_isAFault() {
    run_program example-scene-panel titled
    expect_equal status 1 "$status"
    expect_contains message '"titled" is not understood' "$output"
}

test_check_goodFile_saysNothing() {
    run_program panelix-check "$EXAMPLE"
    expect_equal "status and output" "0 " "$status $output"
}

test_check_faultyFile_saysWhere() {
    printf '%s\n' '#Lumora V2.0 ascii' 'TopLevelDialog {' '  DialogPushButton { labl "x" } }' >"$FOLDER/faulty.lum"
    run_program panelix-check "$EXAMPLE" "$FOLDER/faulty.lum"
    expect_equal status 1 "$status"
    expect_contains message "faulty.lum:3:22: error:" "$output"
    expect_contains message '"label"' "$output"
}

test_check_missingFileAndWrongUse_differInStatus() {
    run_program panelix-check nowhere.lum
    expect_equal status 1 "$status"
    run_program panelix-check
    expect_equal status 2 "$status"
}
