#!/bin/sh
# The read pass and the write pass against bare loops of the same registry calls, in instructions.
# Call: passes.sh <folder of the built measuring programs>
set -eu
here=$(cd "$(dirname "$0")" && pwd)
. "$here/limits.txt"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
program=$1/passes
baseline=$here/../resources/xp-baseline.reg

# Instructions within the given function and all that it calls.
Instructions() {
    valgrind --tool=callgrind --callgrind-out-file="$work/out" --collect-atstart=no \
        --toggle-collect="$1" "$program" "$baseline" >"$work/log" 2>&1 || {
        cat "$work/log" >&2
        exit 1
    }
    sed -n 's/^summary: *//p' "$work/out"
}

Compare() {
    ours=$(Instructions "Measured$1Pass")
    bare=$(Instructions "Measured$1Loop")
    test "${ours:-0}" -gt 0 && test "${bare:-0}" -gt 0 || {
        echo "passes: nothing counted" >&2
        exit 1
    }
    awk -v name="$1" -v ours="$ours" -v bare="$bare" -v limit="$passes" 'BEGIN {
        ratio = ours / bare
        printf "%-10s instructions ours %d bare %d ratio %.2f limit %.2f %s\n", name " pass", ours,
               bare, ratio, limit, ratio <= limit ? "ok" : "TOO SLOW"
        exit ratio <= limit ? 0 : 1
    }'
}

failed=0
"$program" "$baseline" prove || failed=1
Compare Read || failed=1
Compare Write || failed=1
exit $failed
