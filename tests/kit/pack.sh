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
    sed 's/$/\r/' "$here/$text" | iconv -f UTF-8 -t WINDOWS-1252 >"$folder/$text"
done
cd "$(dirname "$folder")"
cmake -E tar cf "$archive" --format=zip "$(basename "$folder")"
