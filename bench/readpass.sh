#!/bin/sh
# The read pass against a bare loop of the same platform calls, in instructions.
# Call: readpass.sh <folder of the built measuring programs>
set -eu
here=$(cd "$(dirname "$0")" && pwd)
# Ours over bare. The pass does more than call: it converts texts, compares and sets controls.
limit=1.50

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Instructions within the given function and all that it calls.
instructions() {
    valgrind --tool=callgrind --callgrind-out-file="$work/out" --collect-atstart=no \
        --toggle-collect="$1" "$built" "$here/../resources/xp-baseline.reg" \
        >"$work/calls" 2>"$work/log" || { cat "$work/calls" "$work/log" >&2; exit 1; }
    sed -n 's/^summary: *//p' "$work/out"
}

built=$1/readpass
ours=$(instructions MeasuredPass)
bare=$(instructions MeasuredBareLoop)
test "${ours:-0}" -gt 0 && test "${bare:-0}" -gt 0 || { echo "readpass: nothing counted" >&2; exit 1; }

printf 'read pass     %s\n' "$(cat "$work/calls")"
awk -v ours="$ours" -v bare="$bare" -v limit="$limit" 'BEGIN {
    ratio = ours / bare
    printf "read pass     instructions ours %d bare %d ratio %.2f limit %.2f %s\n", ours, bare,
           ratio, limit, ratio <= limit ? "ok" : "TOO SLOW"
    exit ratio <= limit ? 0 : 1
}'
