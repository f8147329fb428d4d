#!/bin/bash
# pack.sh ARCHIVE FOLDER QUILLMORE PART...: puts the kit together in the folder and packs it. Its texts
# get the code page of a German Windows and ends of lines as Windows has them.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
archive=$1
folder=$2
program=$3
shift 3

rm -rf "$folder" "$archive"
mkdir -p "$folder/Teile"
cp "$program" "$folder"
cp "$@" "$folder/Teile"
cp "$here/cases.txt" "$folder/Teile/Faelle.txt"
for text in Liesmich.txt Pruefen.cmd; do
    "$here/../../tools/windows-text" "$here/$text" >"$folder/$text"
done
"$here/../../tools/zip" "$archive" "$folder"
