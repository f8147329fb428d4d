#!/bin/bash
# cases.sh SUITE.EXE...: each case of these suites stands in cases.txt below one class, and nothing
# else does. Those that docs/on-xp.md names are cases.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

for program in "$@"; do
    suite=$(basename "$program" .exe)
    "$here/../../tools/wine" "$program" --list-test-cases |
        tr -d '\r' | grep -v -e '^\[doctest\]' -e '^===' | sed "s/^/${suite#test_}: /"
done | LC_ALL=C sort >"$work/there"
grep -v -e '^#' -e '^\[' -e '^$' "$here/cases.txt" | LC_ALL=C sort >"$work/classed"
found=0
if lines=$(LC_ALL=C uniq -d "$work/classed") && [[ -n $lines ]]; then
    sed 's/^/in more than one class: /' <<<"$lines" >&2
    found=1
fi
if lines=$(LC_ALL=C comm -23 "$work/there" "$work/classed") && [[ -n $lines ]]; then
    sed 's|^|in no class of tests/kit/cases.txt: |' <<<"$lines" >&2
    found=1
fi
if lines=$(LC_ALL=C comm -13 "$work/there" <(LC_ALL=C uniq "$work/classed")) && [[ -n $lines ]]; then
    sed 's/^/classed, but no case: /' <<<"$lines" >&2
    found=1
fi
if lines=$(grep -oE '`(contract|windows): [^`]+`' "$here/../../docs/on-xp.md" | tr -d '`' |
    LC_ALL=C sort -u | LC_ALL=C comm -23 - "$work/there") && [[ -n $lines ]]; then
    sed 's/^/named in docs, but no case: /' <<<"$lines" >&2
    found=1
fi
if ((found == 0)); then
    echo "$(wc -l <"$work/there") cases, each in one class"
fi
exit $found
