#!/bin/bash
# Each forbidden thing is found in a folder that holds nothing else, and clean text passes; so are
# two files' own functions of one name.
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

mkdir "$work/room"
echo "add_room(room SOURCES one.cpp two.cpp)" >"$work/room/CMakeLists.txt"
Own() {
    printf 'namespace room {\nnamespace {\n%s\n}\n}\n' "$1"
}
Own 'int Twice(int number) { return 2 * number; } using Word = int;' >"$work/room/one.cpp"
for clash in 'long Twice(long number) { return 2 * number; }' 'constexpr int Twice = 2;' \
    'struct Twice {};' 'enum { Twice };' 'const std::string Twice(other);'; do
    Own "$clash" >"$work/room/two.cpp"
    if "$here/names.sh" "$work" 2>/dev/null; then
        echo "not found twice: $clash" >&2
        failures=$((failures + 1))
    fi
done
Own 'int Thrice(int number) { return 3 * number; } using Word = int;' >"$work/room/two.cpp"
if ! "$here/names.sh" "$work"; then
    failures=$((failures + 1))
fi
exit $((failures > 0))
