# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# To be sourced behind environment.sh: starts Windows programs.

# run_wine OUTPUT SECONDS PROGRAM.exe [ARGUMENT...]: runs a program to its end, with all that it says going to the file
# OUTPUT. The result is its exit status, 124 when it took longer.
#
# To a file, not a pipe: Wine leaves processes behind that hold on to their output.
run_wine() {
    local status=0
    try_wine "$@" || status=$?
    if is_false_start "$status" "$1"; then
        try_wine "$@" || return $?
        return 0
    fi
    return "$status"
}

try_wine() {
    local output=$1 seconds=$2
    shift 2
    wine_start=$(date +%s%N)
    timeout "$seconds" wine "$@" </dev/null >"$output" 2>&1 9>&-
}

# is_false_start STATUS OUTPUT: about once in a thousand starts Wine ends at once, before the program has run. A program
# of ours that fails says so, thus an end without a word within two seconds is worth one more start.
is_false_start() {
    [ "$1" -ne 0 ] && [ ! -s "$2" ] && [ $(($(date +%s%N) - wine_start)) -lt 2000000000 ] || return 1
    echo "Wine ended with status $1 before the program ran; starting it again" >&2
}
