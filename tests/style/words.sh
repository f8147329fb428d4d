#!/bin/bash
# What has no place in the tree: notes of things left to do, and references to papers that a reader
# does not have. The patterns are written so that they do not match themselves.
# words.sh [FOLDER]: the project by default.
set -euo pipefail
cd "${1:-$(dirname "$0")/../..}"
found=0

Forbid() {
    local reason=$1
    shift
    if grep -rnIE --exclude-dir=build --exclude-dir=.git --exclude-dir=third_party "$@" .; then
        echo "^ $reason" >&2
        found=1
    fi
}

Forbid "a note of something left to do" '\<(TO[D]O|FIX[M]E|X[X]X|HA[C]K)\>'
Forbid "a reference to a paper outside the tree" \
    '\<[P]arts? [0-9]+\.[0-9]+|\<[s]pecification\>|\<[i]mplementer\>|[t]he requirement'
Forbid "a path of one machine" '(^|[^A-Za-z0-9_.])/(wor[k]|hom[e]/[a-z]+)/'
Forbid "trailing blanks" --include='*.cpp' --include='*.h' --include='*.cmake' \
    --include='CMakeLists.txt' --include='*.sh' '[[:blank:]]+$'
exit $found
