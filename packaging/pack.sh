#!/bin/bash
# pack.sh OUTPUT VERSION NUMBERS WORK SIGN QUILLMORE QUILLMORECMD MANUAL: makes in the folder OUTPUT
# the archive, the installer and their sums, out of copies in the folder WORK. Unless SIGN is empty,
# it is a command that signs the program whose path it gets as its last argument.
# The same files always give the same bytes.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$here/..
output=$1
version=$2
numbers=$3
work=$4
sign=$5
name=Quillmore-$version
shift 5

Sign() {
    if [[ -n $sign ]]; then
        bash -euc "$sign \"\$1\"" sign "$1"
    fi
}

if ! command -v makensis >/dev/null; then
    echo "makensis is missing: run tools/install xp" >&2
    exit 1
fi
cd "$output"
rm -rf "$work" "$name.zip" "$name-Setup.exe" SHA256SUMS
mkdir -p "$work/files"
cp "$@" "$work/files"
for program in "$work"/files/*.exe; do
    Sign "$program"
done
# 2.3.8 is v2.38 in the title of the window.
sed "s/@SHORT_VERSION@/$version/; s/@TITLE_VERSION@/v${version%.*}${version##*.}/" \
    "$here/Liesmich.txt" >"$work/Liesmich.txt"
"$root/tools/windows-text" "$work/Liesmich.txt" >"$work/files/Liesmich.txt"
# The licences of what is linked in ask to go along.
{ cat "$root/LICENSE"; echo; cat "$root/THIRD-PARTY.md"; } >"$work/Lizenz.txt"
"$root/tools/windows-text" "$work/Lizenz.txt" >"$work/files/Lizenz.txt"
"$root/tools/zip" "$name.zip" "$work/files" --flat

"$root/tools/windows-text" "$here/Sicherung.cmd" 850 >"$work/files/Sicherung.cmd"
# The uninstaller is packed into the installer; what is to be signed of it, and looked at, is a copy.
cat >"$work/uninstaller" <<SCRIPT
#!/bin/bash
set -euo pipefail
$([[ -z $sign ]] || echo "$sign \"\$1\"")
cp "\$1" "$work/Entfernen.exe"
SCRIPT
chmod +x "$work/uninstaller"
makensis -V4 -WX -NOCD -INPUTCHARSET UTF8 "-DFILES=$work/files" \
    "-DICON=$root/resources/Quillmore.ico" "-DOUTPUT=$name-Setup.exe" \
    "-DUNINSTALLER=$work/uninstaller" "-DVERSION=$version" "-DVERSION_NUMBERS=$numbers" \
    "$here/Quillmore.nsi" >"$work/log" || { tail -20 "$work/log" >&2; exit 1; }
# What of the maker's own goes into the installer, to be looked at.
plugins=$(sed -n 's|^Processing default plugins: "\(.*\)/\*\.dll"$|\1|p' "$work/log" | head -1)
mkdir "$work/plugins"
sed -n 's/^File: "\(.*\.dll\)"->"$PLUGINSDIR.*/\1/p' "$work/log" | sort -u |
    while read -r plugin; do
        cp "$plugins/$plugin" "$work/plugins"
    done
Sign "$name-Setup.exe"
sha256sum "$name.zip" "$name-Setup.exe" >SHA256SUMS
