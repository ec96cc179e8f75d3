# SPDX-License-Identifier: MIT
# Makes the table of the benchmarks from lines "name N repeats value": the smallest value of each name and number,
# and what it is to be compared with. A line that is missing makes its rows say so.
{
    key = $1 " " $2
    if (!(key in best) || $4 < best[key])
        best[key] = $4
}

function number(value) {
    return value >= 100 ? sprintf("%.0f", value) : sprintf("%.1f", value)
}

# One row: ours at n, compared with a line of another name or number; the ratio shall not exceed 'target'.
function compare(what, ours, n, theirs, m, target,    a, b, ratio) {
    a = ours " " n
    b = theirs " " m
    if (!(a in best) || !(b in best)) {
        printf "%-34s %6d  not measured: %s\n", what, n, (a in best) ? b : a
        missing++
        return
    }
    ratio = best[a] / best[b]
    verdict(ratio <= target)
    printf "%-34s %6d %10s %10s  %-20s %6.2f %6.2f  %s\n", what, n, number(best[a]), number(best[b]),
        theirs " " m, ratio, target, word
}

# One row: the same, with a share of ours that the other doesn't do, both of which are measured at 1, left out.
function less(what, ours, n, share, theirs, target,    key) {
    key = ours "-without"
    if ((ours " " n) in best && (share " 1") in best)
        best[key " " n] = best[ours " " n] - best[share " 1"]
    compare(what, key, n, theirs, 1, target)
}

# One row: ours at n shall be below a fixed value.
function bound(what, ours, n, target,    a) {
    a = ours " " n
    if (!(a in best)) {
        printf "%-34s %6d  not measured: %s\n", what, n, a
        missing++
        return
    }
    verdict(best[a] <= target)
    printf "%-34s %6d %10s %10s  %-20s %6.2f %6.2f  %s\n", what, n, number(best[a]), number(target),
        "(fixed)", best[a] / target, 1, word
}

function verdict(ok) {
    word = ok ? "ok" : "MISSED"
    if (!ok)
        missed++
}

END {
    printf "%-34s %6s %10s %10s  %-20s %6s %6s\n", "", "N", "ours", "theirs", "compared with", "ratio", "target"
    split("100 1000 10000", counts)
    for (i = 1; i <= 3; i++)
        compare("load, ns per control", "panelix-load", counts[i], "qt-load", counts[i], 0.2)
    compare("load, growth", "panelix-load", 10000, "panelix-load", 100, 1.3)
    for (i = 1; i <= 3; i++)
        compare("resize, ns per control", "panelix-resize", counts[i], "qt-resize", counts[i], 1)
    for (i = 1; i <= 3; i++)
        compare("first 3D build, ns per button", "panelix-build-3d", counts[i], "qt-load", counts[i], 0.75)
    compare("build and first frame, ns a button", "panelix-first-frame", 1000, "qt-load", 1000, 1)
    compare("end of a dialog, growth", "panelix-destroy", 10000, "panelix-destroy", 1000, 1.5)
    for (i = 1; i <= 3; i++)
        compare("cold bounding box, ns per box", "panelix-bbox-cold", counts[i], "limit-bbox", counts[i], 4)
    for (i = 1; i <= 3; i++)
        bound("warm bounding box, ns", "panelix-bbox-warm", counts[i], 1000)
    compare("warm bounding box, growth", "panelix-bbox-warm", 10000, "panelix-bbox-warm", 100, 1.3)
    for (i = 1; i <= 3; i++)
        bound("warm box of a dialog, ns", "panelix-dialog-bbox-warm", counts[i], 1000)
    compare("warm box of a dialog, growth", "panelix-dialog-bbox-warm", 10000, "panelix-dialog-bbox-warm", 100,
        1.3)
    compare("nearest on a ray, ns", "panelix-pick", 1000, "limit-pick", 1000, 1)
    compare("nearest on a ray, ns", "panelix-pick", 10000, "limit-pick", 10000, 0.2)
    compare("push button on a ray, ns", "panelix-pick-button", 1000, "limit-pick", 1000, 1)
    compare("push button on a ray, ns", "panelix-pick-button", 10000, "limit-pick", 10000, 0.2)
    compare("new text of one control, growth", "panelix-set-value", 10000, "panelix-set-value", 100, 1.3)
    less("new value of a slider, no text, ns", "panelix-slider-value", 1000, "panelix-slider-text", "qt-slider-value", 3)
    compare("new value of a slider, growth", "panelix-slider-value", 1000, "panelix-slider-value", 100, 1.3)
    for (i = 1; i <= 2; i++)
        bound("motion of a slider's drag, ns", "panelix-slider-drag", counts[i], 20000)
    compare("motion of a slider's drag, growth", "panelix-slider-drag", 1000, "panelix-slider-drag", 100, 1.3)
    for (i = 1; i <= 3; i++)
        bound("motion over nothing, ns", "panelix-event-move-nothing", counts[i], 1000)
    compare("motion over nothing, growth", "panelix-event-move-nothing", 10000, "panelix-event-move-nothing", 100, 1.3)
    compare("motion over a button, growth", "panelix-event-move-button", 10000, "panelix-event-move-button", 100, 1.3)
    compare("press of nothing, growth", "panelix-event-press-nothing", 10000, "panelix-event-press-nothing", 100, 2.5)
    compare("press of a button, growth", "panelix-event-press-button", 10000, "panelix-event-press-button", 100, 2.5)
    for (i = 1; i <= 3; i++)
        bound("draw calls of a panel", "panelix-draw-calls", counts[i], 16)
    for (i = 1; i <= 3; i++)
        bound("refresh, unchanged, ns", "panelix-refresh-unchanged", counts[i], 1000)
    compare("refresh, unchanged, ns", "panelix-refresh-unchanged", 1000, "imgui-frame", 1000, 0.05)
    compare("refresh, unchanged, growth", "panelix-refresh-unchanged", 10000, "panelix-refresh-unchanged", 1000,
        1.5)
    for (i = 1; i <= 3; i++)
        bound("refresh, one new label, ns", "panelix-refresh-changed", counts[i], 50000)
    bound("push button before build, bytes", "panelix-heap", 10000, 2048)
    compare("windows under Wine, ns per button", "panelix-windows", 1000, "limit-windows", 1000, 1.15)
    printf "\n%d missed, %d not measured\n", missed, missing
    exit (missed > 0 || missing > 0)
}
