#!/bin/bash
# Feeds the audit a sample that is in order, and then the same sample with one thing wrong at a
# time: it must name that thing and fail.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
failures=0

Report() {
    echo "failed: $1" >&2
    failures=$((failures + 1))
}

Accepts() {
    local name=$1
    shift
    "$here/audit.sh" "$@" >"$work/said" || Report "$name: refused with $(<"$work/said")"
}

# Refuses NAME MESSAGE SED-SCRIPT SAMPLE AUDIT-ARGUMENT...; the doctored sample is added as last.
Refuses() {
    local name=$1 message=$2 script=$3 sample=$here/samples/$4 code=0
    shift 4
    sed "$script" "$sample" >"$work/sample"
    if cmp -s "$sample" "$work/sample"; then
        Report "$name: the sample was not changed"
    fi
    "$here/audit.sh" "$@" "$work/sample" >"$work/said" || code=$?
    if ((code != 1)); then
        Report "$name: exit code $code"
    elif ! grep -qF -- "$message" "$work/said"; then
        Report "$name: said $(<"$work/said")"
    fi
}

imports=(imports "$here/samples/allowed.txt")
Accepts "known functions pass" "${imports[@]}" "$here/samples/headers.txt"
Refuses "an unknown function" "shell32!SHGetKnownFolderPath" \
    's/ShellExecuteA/SHGetKnownFolderPath/' headers.txt "${imports[@]}"
Refuses "a known function of an unknown DLL" "bcrypt!ShellExecuteA" \
    's/SHELL32.dll/bcrypt.dll/' headers.txt "${imports[@]}"
Refuses "an unknown ordinal" "shell32!#179" \
    's/  178  <none>/  179  <none>/' headers.txt "${imports[@]}"
Refuses "a text without imports" "no import table found" '/^\t/d' headers.txt "${imports[@]}"

Accepts "known functions pass, as newer tools print them" \
    "${imports[@]}" "$here/samples/headers-newer.txt"
Refuses "an unknown function, as newer tools print it" "shell32!SHGetKnownFolderPath" \
    's/ShellExecuteA/SHGetKnownFolderPath/' headers-newer.txt "${imports[@]}"
Refuses "an unknown ordinal, as newer tools print it" "shell32!#179" \
    's/  178  <none>/  179  <none>/' headers-newer.txt "${imports[@]}"

Accepts "common controls that are initialised pass" common-controls "$here/samples/headers.txt"
Refuses "common controls that are not initialised" "InitCommonControls is not imported" \
    '/InitCommonControls/d' headers.txt common-controls

Accepts "the libraries of each program pass" libraries "$here/samples/headers-console.txt"
Refuses "a library that the console program is to do without" "the console: ole32!RegCloseKey" \
    's/ADVAPI32.dll/ole32.dll/' headers-console.txt libraries

later=$here/samples/service-packs.txt
Accepts "functions of the first XP pass" service-packs "$later" "$here/samples/headers.txt"
Refuses "a function of a service pack" "came with a service pack: shell32!LaterFunction" \
    's/ShellExecuteA/LaterFunction/' headers.txt service-packs "$later"
Refuses "a function that should only be asked for" "came with a service pack: kernel32!GetDllD" \
    's/SHELL32.dll/KERNEL32.dll/; s/ShellExecuteA/GetDllDirectoryW/' headers.txt \
    service-packs "$later"

Accepts "a function that is asked for passes" asked "$later" "$here/samples/texts.txt"
Refuses "a marked function that is not asked for" "not named: kernel32!GetDllDirectoryW" \
    '/GetDllDirectoryW/d' texts.txt asked "$later"
Refuses "an unmarked function that is asked for" \
    "service pack 2 and is named without being marked: shell32!LaterFunction" \
    's/OfMine//' texts.txt asked "$later"

Accepts "headers for XP pass" headers windowed "$here/samples/headers.txt"
Refuses "a later system" "MajorOSystemVersion is 6" \
    's/^\(MajorOSystemVersion\t\)5/\16/' headers.txt headers windowed
Refuses "an earlier subsystem" "MajorSubsystemVersion is 4" \
    's/^\(MajorSubsystemVersion\t\)5/\14/' headers.txt headers windowed
Refuses "Windows 2000" "MinorSubsystemVersion is 0" \
    's/^\(MinorSubsystemVersion\t\)1/\10/' headers.txt headers windowed
Refuses "another minor version of the system" "MinorOSystemVersion is 2" \
    's/^\(MinorOSystemVersion\t\)1/\12/' headers.txt headers windowed
Refuses "a console program" "Subsystem is 00000003" \
    's/^\(Subsystem\t*\)00000002/\100000003/' headers.txt headers windowed
Refuses "64 bits" "file format is pei-x86-64" 's/pei-i386/pei-x86-64/' headers.txt headers windowed
Refuses "64-bit magic" "Magic is (PE32+)" 's/(PE32)/(PE32+)/' headers.txt headers windowed
Refuses "a missing manifest" "manifest is absent" 's/ID: 0x000018/ID: 0x000010/' headers.txt headers windowed
Refuses "a library's manifest" "manifest is absent" 's/ID: 0x000001/ID: 0x000002/' headers.txt headers windowed
Refuses "delayed imports" "delayed imports is 00007400" \
    's/^Entry d 00000000/Entry d 00007400/' headers.txt headers windowed
Accepts "headers of a console program pass" headers console "$here/samples/headers-console.txt"
Refuses "a windowed program for the console" "Subsystem is 00000002" \
    's/^\(Subsystem\t*\)00000003/\100000002/' headers-console.txt headers console
Refuses "a console program for a later system" "MinorSubsystemVersion is 2" \
    's/^\(MinorSubsystemVersion\t\)1/\12/' headers-console.txt headers console

Accepts "plain instructions pass" instructions "$here/samples/disassembly.txt"
Refuses "an SSE2 register" "xmm0" 's/fldl   0x8(%esp)/movsd  0x8(%esp),%xmm0/' disassembly.txt \
    instructions
Refuses "an instruction of SSE2 without its registers" "mfence" 's/ret/mfence/' disassembly.txt \
    instructions
Refuses "a text without instructions" "no instruction found" '/^  40/d' disassembly.txt \
    instructions

if [[ $("$here/audit.sh" code-end "$here/samples/map.txt") != 0x00447738 ]]; then
    Report "the end of the code is where the first exception table begins"
fi
Refuses "a map without exception tables" "does not say" 's/gcc_except_table/other/' map.txt code-end

head -c 100 /dev/zero >"$work/hundred"
Accepts "a file of the limit's size" size "$work/hundred" 100
if "$here/audit.sh" size "$work/hundred" 99 >/dev/null; then
    Report "a file larger than the limit passed"
fi

Accepts "an earlier system passes for an installer" headers installer \
    <(sed -E 's/^(Major(OS|Subs)ystemVersion\t)5/\14/' "$here/samples/headers.txt")
Refuses "an installer for a later system" "OSystemVersion is 6.1, later than 5.1" \
    's/^\(MajorOSystemVersion\t\)5/\16/' headers.txt headers installer
Refuses "an installer for a later subsystem" "SubsystemVersion is 5.2, later than 5.1" \
    's/^\(MinorSubsystemVersion\t\)1/\12/' headers.txt headers installer
Refuses "an installer without a manifest" "manifest is absent" \
    's/ID: 0x000018/ID: 0x000010/' headers.txt headers installer
Accepts "a plug-in needs no manifest" headers plug-in \
    <(sed 's/ID: 0x000018/ID: 0x000010/' "$here/samples/headers.txt")

# A whole installer, of which a stand-in for objdump says what stands in the texts of that name.
mkdir -p "$work/package/plug-ins"
touch "$work/package/"{Setup.exe,Entfernen.exe,plug-ins/Some.dll}
cat >"$work/objdump" <<'SCRIPT'
#!/bin/bash
cat "$2$1"
SCRIPT
chmod +x "$work/objdump"
installer=(installer "$here/samples/allowed.txt" /dev/null "$later" 100 "$work/objdump"
    "$work/package/Setup.exe" "$work/package/Entfernen.exe" "$work/package/plug-ins")
Describe() {
    local file
    for file in "$work/package/"{Setup.exe,Entfernen.exe,plug-ins/Some.dll}; do
        cp "$here/samples/headers.txt" "$file-p"
        cp "$here/samples/disassembly.txt" "$file-d"
    done
}
# Spoils NAME MESSAGE SED-SCRIPT FILE: refused with FILE changed, one of those of the package.
Spoils() {
    local code=0
    Describe
    sed -i "$3" "$work/package/$4"
    "$here/audit.sh" "${installer[@]}" >"$work/said" || code=$?
    if ((code != 1)); then
        Report "$1: exit code $code"
    elif ! grep -qxF -- "$2" "$work/said"; then
        Report "$1: said $(<"$work/said")"
    fi
}
Describe
Accepts "an installer in order" "${installer[@]}"
newer='not known to be exported by XP SP3: shell32!SHGetKnownFolderPath'
Spoils "a newer function in the installer" "Setup.exe: $newer" \
    's/ShellExecuteA/SHGetKnownFolderPath/' Setup.exe-p
Spoils "a newer function in the uninstaller" "Entfernen.exe: $newer" \
    's/ShellExecuteA/SHGetKnownFolderPath/' Entfernen.exe-p
Spoils "a newer function in a plug-in" "Some.dll: $newer" \
    's/ShellExecuteA/SHGetKnownFolderPath/' plug-ins/Some.dll-p
Spoils "a function of a service pack in an installer" \
    "Setup.exe: came with a service pack: shell32!LaterFunction" \
    's/ShellExecuteA/LaterFunction/' Setup.exe-p
Spoils "an SSE2 instruction in a plug-in" \
    "$(printf 'Some.dll: not on every processor of XP: %s' "$(sed -n 's/ret/mfence/p' \
        "$here/samples/disassembly.txt" | head -1)")" \
    's/ret/mfence/' plug-ins/Some.dll-d
Spoils "a plug-in for a later system" "Some.dll: OSystemVersion is 6.1, later than 5.1" \
    's/^\(MajorOSystemVersion\t\)5/\16/' plug-ins/Some.dll-p
Describe
rm "$work/package/Entfernen.exe"
Spoils "a missing uninstaller" "$work/package/Entfernen.exe is not there" '' Entfernen.exe-p
touch "$work/package/Entfernen.exe"
rm "$work/package/plug-ins/Some.dll"
Spoils "an installer without its plug-ins" "$work/package/plug-ins/*.dll is not there" '' \
    plug-ins/Some.dll-p
touch "$work/package/plug-ins/Some.dll"
Describe
truncate -s 101 "$work/package/Setup.exe"
Spoils "an installer that is too large" "$work/package/Setup.exe has 101 bytes, more than 100" '' \
    Setup.exe-p

if ((failures > 0)); then
    echo "$failures failed" >&2
    exit 1
fi
echo "the audit refuses all that it should"
