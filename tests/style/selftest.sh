#!/bin/bash
# Each forbidden thing is found in a folder that holds nothing else, and clean text passes; so are
# two files' own functions of one name, paths that lead nowhere, and what breaks the plan of the rooms.
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

mkdir -p "$work"/papers/{docs,src/low}
touch "$work/papers/src/low/a.h"
Names() {
    echo "See $1." >"$work/papers/docs/paper.md"
    "$here/paths.sh" "$work/papers" 2>/dev/null
}
for path in '`src/low/a.h`' 'src/low/' '`src/low/a.h`, and `build/src/b.h`' \
    '`src/platform/uptime.h`, src/low' '`src/low/a.h` and `src/low/b*.h`'; do
    if ! Names "$path"; then
        echo "taken for missing: $path" >&2
        failures=$((failures + 1))
    fi
done
for path in '`src/low/b.h`' 'src/high/' '`docs/other.md` and `src/low/a.h`' 'no path'; do
    if Names "$path"; then
        echo "not found missing: $path" >&2
        failures=$((failures + 1))
    fi
done

# A house of two rooms and a suite; each change of it breaks one rule of its plan.
House() {
    rm -rf "$work/house"
    mkdir -p "$work"/house/{src/{low,high,program},tests/low}
    cd "$work/house"
    printf 'add_room(low FLOOR 0\n  SOURCES\n    a.cpp\n    b.cpp)\n' >src/low/CMakeLists.txt
    printf 'add_room(high FLOOR 1\n  SOURCES\n    c.cpp\n  USES\n    low)\n' \
        >src/high/CMakeLists.txt
    printf 'add_suite(low\n  SOURCES\n    a.cpp\n    b.cpp)\n' >tests/low/CMakeLists.txt
    touch src/low/{a,b}.cpp src/low/a.h src/high/c.h
    echo '#include "low/a.h"' >src/high/c.cpp
    echo '#include <windows.h>' >src/program/main.cpp
}
House
if ! python3 "$here/rooms.py" "$work/house"; then
    failures=$((failures + 1))
fi
Breaks() {
    House
    eval "$1"
    if python3 "$here/rooms.py" "$work/house" 2>/dev/null; then
        echo "not found: $1" >&2
        failures=$((failures + 1))
    fi
}
Breaks "echo '#include \"high/c.h\"' >src/low/a.cpp"
Breaks "sed -i 's/FLOOR 0/FLOOR 1/' src/low/CMakeLists.txt"
Breaks "sed -i 's/ FLOOR 1//' src/high/CMakeLists.txt"
Breaks "sed -i '/USES/,\$ d; s/c.cpp/c.cpp)/' src/high/CMakeLists.txt"
Breaks "echo >src/high/c.cpp"
Breaks "echo '#include <windows.h>' >src/low/a.h"
Breaks "echo '#include \"nowhere/a.h\"' >src/low/a.cpp"
Breaks "touch src/low/c.cpp"
Breaks "rm src/low/b.cpp"
Breaks "touch src/loose.cpp"
Breaks "mkdir src/new && touch src/new/a.cpp"
Breaks "printf 'add_suite(low\n  SOURCES\n    b.cpp\n    a.cpp)\n' >tests/low/CMakeLists.txt"
Breaks "printf 'add_suite(low\n  SOURCES\n    a.cpp b.cpp)\n' >tests/low/CMakeLists.txt"
Breaks "printf 'add_library(x a.cpp b.cpp)\n' >tests/low/CMakeLists.txt"
Breaks "printf 'set(CASES\n  b.cpp\n  a.cpp)\n' >tests/low/CMakeLists.txt"
exit $((failures > 0))
