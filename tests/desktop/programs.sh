# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # variables of tests/desktop/run
# panelix-view and panelix-check from the command line.

EXAMPLE=examples/first-dialog/first-dialog.lum

test_view_help_namesTheOptions() {
    run_program panelix-view --help
    expect_equal status 0 "$status"
    local option
    for option in --id --events --tree --snapshot --skin; do
        expect_contains help "$option" "$output"
    done
}

test_view_wrongUse_isToldFromAFault() {
    run_program panelix-view --nonsense "$EXAMPLE"
    expect_equal status 2 "$status"
    run_program panelix-view
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

test_view_snapshotThatCannotBeWritten_isAFault() {
    run_program panelix-view --snapshot "$FOLDER/nowhere/picture.png" "$EXAMPLE"
    expect_equal status 1 "$status"
    expect_contains message "can't be written" "$output"
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
