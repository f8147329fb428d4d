#!/bin/sh
# Instructions a row of a list view at 10,000, 20,000 and 40,000 rows. With more rows each may cost a
# little more, since sorting and looking one up pass more of them, but not as many times more.
# Call: listrows.sh <folder of the built measuring programs>
set -eu
. "$(dirname "$0")/limits.txt"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Instructions a row within the given function and all that it calls.
PerRow() {
    valgrind --tool=callgrind --callgrind-out-file="$work/out" --collect-atstart=no \
        --toggle-collect="$1" "$programs/listrows" "$2" >"$work/log" 2>&1 || {
        cat "$work/log" >&2
        exit 1
    }
    sed -n 's/^summary: *//p' "$work/out" | awk -v rows="$2" '{ printf "%d", $1 / rows }'
}

programs=$1
failed=0
for step in Fill Sort SortedFill FirstRowRemoval; do
    few=$(PerRow "Measured$step" 10000)
    more=$(PerRow "Measured$step" 20000)
    many=$(PerRow "Measured$step" 40000)
    test "${few:-0}" -gt 0 && test "${many:-0}" -gt 0 || {
        echo "listrows: nothing counted" >&2
        exit 1
    }
    awk -v name="$step" -v few="$few" -v more="$more" -v many="$many" -v limit="$list_rows" 'BEGIN {
        ratio = many / few
        printf "%-16s instructions a row %d %d %d ratio %.2f limit %.2f %s\n", name, few, more,
               many, ratio, limit, ratio <= limit ? "ok" : "TOO SLOW"
        exit ratio <= limit ? 0 : 1
    }' || failed=1
done
exit $failed
