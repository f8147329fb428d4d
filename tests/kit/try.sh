#!/bin/bash
# try.sh ARCHIVE [PART]: unpacks the kit into a fresh prefix and runs it as its user would. Whatever
# it runs passes, Ergebnis.txt has one line for each case, and nothing else is there that was not
# before: no key or value in the registry, no file or folder on drive C:. PART as in runner.cpp.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/wine-environment"
source "$(dirname "${BASH_SOURCE[0]}")/../support/prefixdump.sh"
archive=$(realpath "$1")
part=${2:-1}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)

Leave() {
    EndWine
    EndDisplay
    rm -r "$work"
}

UseWine "$root/build/kit-prefix"
trap Leave EXIT
if [[ -e $prefix ]]; then
    EndWine
    rm -rf "$prefix"
fi
"$root/tools/prefix" "$prefix"
# A place as a person has it, with blanks and umlauts.
folder="./Dokumente und Einstellungen/$baseline_user/Desktop/Prüfung für XP"
mkdir -p "$prefix/drive_c/$folder"
cd "$prefix/drive_c/$folder"
cmake -E tar xf "$archive"
mv Quillmore-Pruefung/* .
rmdir Quillmore-Pruefung

StartDisplay
# What a first start leaves behind is not the kit's.
InWine timeout 60 wine Teile/contract_child.exe sleep 1 >/dev/null 2>&1 || true
Dump() {
    DumpPrefix ! -path "$folder/Ergebnis.txt"
}
Dump >"$work/before"
code=0
InWine timeout --kill-after=10 900 wine cmd /c Pruefen.cmd "$part" >"$work/said" 2>/dev/null ||
    code=$?
cat "$work/said"
Dump >"$work/after"

failed=0
if ((code != 0)); then
    echo "the kit ended with code $code" >&2
    sed -n '/^Was nicht/,/^Alle/p' Ergebnis.txt >&2
    failed=1
fi
if ! diff "$work/before" "$work/after" >"$work/left"; then
    echo "left behind:" >&2
    cat "$work/left" >&2
    failed=1
fi
# A line for each case: verdict, suite and sentence.
if ! diff <(grep -v -e '^#' -e '^\[' -e '^$' "$here/cases.txt" | LC_ALL=C sort) \
    <(tr -d '\r' <Ergebnis.txt | sed '1,/^Alle/d' |
        awk -F '\t' '$1 == "bestanden" || $1 == "nicht versucht" { print $2 ": " $3 }' |
        LC_ALL=C sort) >&2; then
    echo "Ergebnis.txt is not whole" >&2
    failed=1
fi
grep -a -A 6 '^Fälle' Ergebnis.txt | tr -d '\r'
exit $failed
