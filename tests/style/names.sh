#!/bin/bash
# What a file keeps to itself, in a namespace without a name, is called as nothing is that another
# file of its suite or room keeps to itself: they are compiled several at a time, and the call of
# one file's function must not find another's. Only a short name of a type may be there twice.
# names.sh [FOLDER]: the project by default.
set -euo pipefail
cd "${1:-$(dirname "$0")/../..}"

mapfile -t rooms < <(grep -lrE --include=CMakeLists.txt --exclude-dir=build '^ *add_(room|suite)\(' . | xargs dirname)
found=0
for room in "${rooms[@]}"; do
    # Folders with a list of their own are rooms of their own. The macros open the body of a test,
    # which is nobody's name.
    find "$room" -mindepth 1 -type d -exec test -e {}/CMakeLists.txt \; -prune -o \
        -name '*.cpp' -print0 |
        xargs -0r ctags -o - --sort=no --languages=C++ --kinds-C++=cefgpsuv --fields=+Z \
            -D 'TEST_CASE(name)=void Case()' -D 'TEST_CASE_FIXTURE(type,name)=void Case()' |
        awk -F'\t' '
            $1 != "Case" && !seen[$1, $2] {
                for (field = 4; field <= NF; ++field) {
                    if ($field ~ /^scope:(namespace|enum):([A-Za-z0-9_:]*::)?__anon[0-9a-f]+$/) {
                        seen[$1, $2] = 1
                        files[$1] = files[$1] " " $2
                        ++count[$1]
                    }
                }
            }
            END {
                for (name in count) {
                    if (count[name] > 1) {
                        print name " is kept by more than one file:" files[name]
                        found = 1
                    }
                }
                exit found
            }' >&2 || found=1
done
exit $found
