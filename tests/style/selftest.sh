#!/bin/bash
# Each forbidden thing is found in a folder that holds nothing else, and clean text passes.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
failures=0

Finds() {
    echo "$1" >"$work/sample.cpp"
    if "$here/words.sh" "$work" >/dev/null 2>&1; then
        echo "not found: $1" >&2
        failures=$((failures + 1))
    fi
}

Finds "// TO""DO: later"
Finds "// FIX""ME"
Finds "// see Pa""rt 3.1"
Finds "// as the speci""fication says"
Finds "// left to the imple""menter"
Finds "#include \"/wor""k/main/x.h\""
Finds "int x;  "
echo "int x;  // a part of 3.1 seconds" >"$work/sample.cpp"
if ! "$here/words.sh" "$work"; then
    failures=$((failures + 1))
fi
exit $((failures > 0))
