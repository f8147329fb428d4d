#!/bin/sh
# Instructions a file for the rules of names and attributes, on ten thousand files.
# Call: cleanuprules.sh <folder of the built measuring programs>
set -eu
. "$(dirname "$0")/limits.txt"
files=10000

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
valgrind --tool=callgrind --callgrind-out-file="$work/out" --collect-atstart=no \
    --toggle-collect=MeasuredRules "$1/cleanuprules" >"$work/log" 2>&1 || {
    cat "$work/log" >&2
    exit 1
}
count=$(sed -n 's/^summary: *//p' "$work/out")
test "${count:-0}" -gt 0 || {
    echo "cleanuprules: nothing counted" >&2
    exit 1
}
awk -v count="$count" -v files=$files -v limit="$cleanup_rules" 'BEGIN {
    each = count / files
    printf "clean-up rules instructions a file %d limit %d ratio %.2f %s\n", each, limit, each / limit,
           each <= limit ? "ok" : "TOO SLOW"
    exit each <= limit ? 0 : 1
}'
