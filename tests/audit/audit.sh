#!/bin/bash
# Proves of a finished program that the loader of Windows XP accepts it, whatever service pack.
#   audit.sh imports ALLOWED HEADERS        every imported function is on the list
#   audit.sh common-controls HEADERS        comctl32's InitCommonControls is imported
#   audit.sh libraries HEADERS              nothing is imported but from those that each program has
#   audit.sh service-packs LATER HEADERS    none of them came with a service pack
#   audit.sh asked LATER PROGRAM            of those functions the program names the ones marked so
#   audit.sh headers KIND HEADERS           32-bit, for Windows 5.1, and windowed with a manifest, or
#                                           console; an installer may be for an earlier Windows, and
#                                           so may a plug-in, which has no manifest
#   audit.sh instructions DISASSEMBLY       nothing that a processor without SSE cannot run
#   audit.sh size PROGRAM BYTES             the file is no larger than that
#   audit.sh code-end MAP                   prints where the linker put the end of the code
#   audit.sh program KIND ALLOWED LATER BYTES OBJDUMP PROGRAM MAP
#                                           all of that for one program: common-controls for a
#                                           windowed one; libraries for a console one, which asks
#                                           for no function of a service pack
#   audit.sh suite ALLOWED MORE LATER OBJDUMP PROGRAM MAP
#                                           imports from either list, service-packs, headers of a
#                                           console program and instructions
#   audit.sh installer ALLOWED MORE LATER BYTES OBJDUMP INSTALLER UNINSTALLER PLUG-INS
#                                           the same of an installer, its uninstaller and all DLLs in
#                                           the folder of its plug-ins, and size of the installer
# HEADERS is what `objdump -p` prints, DISASSEMBLY what `objdump -d` prints. Every violation is one
# line; the exit code is 1 when there is any.
set -euo pipefail

# Rows of the import tables are the lines led by a tab. Older versions of objdump print address, hint
# and name, and an import by number alone as "\t800000b2\t  178  <none>"; newer ones print address,
# number, hint and name, and that as "\t000070f8    178  <none> <none>".
Imports() {
    awk '
        /^\tDLL Name: / {
            dll = tolower($3)
            sub(/\.dll$/, "", dll)
            next
        }
        /^\t[0-9a-f]+\t +[0-9]+  [^ ]/ {
            print dll "!" ($3 == "<none>" ? "#" $2 : $3)
            next
        }
        /^\t[0-9a-f]+  +(<none>|[0-9]+) +(<none>|[0-9a-f]+) +[^ ]/ {
            print dll "!" ($4 == "<none>" ? "#" $2 : $4)
        }
    ' "$1" | LC_ALL=C sort -u
}

CheckImports() {
    local allowed=$1 found unknown
    found=$(Imports "$2")
    if [[ -z $found ]]; then
        echo "no import table found"
        return 1
    fi
    unknown=$(LC_ALL=C comm -13 <(grep -v '^#' "$allowed" | LC_ALL=C sort -u) <(echo "$found"))
    [[ -z $unknown ]] && return
    sed 's/^/not known to be exported by XP SP3: /' <<<"$unknown"
    return 1
}

# Without it the common controls of the manifest are not loaded, and no window comes up.
CheckCommonControls() {
    if ! grep -qx 'comctl32!InitCommonControls' <<<"$(Imports "$1")"; then
        echo "comctl32!InitCommonControls is not imported"
        return 1
    fi
}

# The others take longer to load than the console program takes to do its work.
CheckLibraries() {
    local others
    others=$(Imports "$1" | sed -E '/^(advapi32|kernel32|msvcrt)!/d')
    [[ -z $others ]] && return
    sed 's/^/from a library that is not for the console: /' <<<"$others"
    return 1
}

# The names alone, since a line of the list tells more.
CheckServicePacks() {
    local later
    later=$(LC_ALL=C comm -12 <(sed '/^#/d; s/ .*//' "$1" | LC_ALL=C sort -u) <(Imports "$2"))
    [[ -z $later ]] && return
    sed 's/^/came with a service pack: /' <<<"$later"
    return 1
}

# A function that is asked for by its name has it in the program, ended by a NUL.
CheckAsked() {
    local function pack asked name status=0
    while read -r function pack asked; do
        [[ $function == \#* ]] && continue
        name=${function#*!}
        # To its end: whoever feeds a grep that leaves early fails.
        if tr '\0' '\n' <"$2" | LC_ALL=C grep -aE "(^|[^A-Za-z0-9_])$name\$" >/dev/null; then
            [[ -n $asked ]] && continue
            echo "came with service pack $pack and is named without being marked: $function"
        else
            [[ -z $asked ]] && continue
            echo "marked as asked for, but not named: $function"
        fi
        status=1
    done <"$1"
    return $status
}

CheckHeaders() {
    local subsystem
    case $1 in
        windowed | installer | plug-in) subsystem=00000002 ;;
        console) subsystem=00000003 ;;
        *) echo "no kind of program: $1" && return 1 ;;
    esac
    awk -v kind="$1" -v subsystem=$subsystem '
        function Expect(label, wanted) {
            found = label in field ? field[label] : "absent"
            if (found != wanted) {
                print label " is " found ", not " wanted
                bad = 1
            }
        }
        function ExpectAtMost(label, major, minor) {
            found = (("Major" label) in field) ? field["Major" label] "." field["Minor" label] : "absent"
            if (found == "absent" || field["Major" label] + 0 > major ||
                (field["Major" label] + 0 == major && field["Minor" label] + 0 > minor)) {
                print label " is " found ", later than " major "." minor
                bad = 1
            }
        }
        /file format/ { field["file format"] = $NF }
        /^Magic/ { field["Magic"] = $NF }
        /^M(aj|in)or(OSystem|Subsystem)Version/ { field[$1] = $2 }
        /^Subsystem\t/ { field[$1] = $2 }
        # Resources are a tree of type, name and language. Type 24 is a manifest, and number 1 the
        # one that the loader of a program reads.
        /^[0-9a-f]+   Entry: / { manifest = /ID: 0x000018,/ }
        /^[0-9a-f]+     Entry: ID: 0x000001,/ && manifest { field["manifest"] = "present" }
        /^Entry d / { field["delayed imports"] = $3 }
        END {
            Expect("file format", "pei-i386")
            Expect("Magic", "(PE32)")
            if (kind == "windowed" || kind == "console") {
                Expect("MajorOSystemVersion", "5")
                Expect("MinorOSystemVersion", "1")
                Expect("MajorSubsystemVersion", "5")
                Expect("MinorSubsystemVersion", "1")
            } else {
                ExpectAtMost("OSystemVersion", 5, 1)
                ExpectAtMost("SubsystemVersion", 5, 1)
            }
            Expect("Subsystem", subsystem)
            if (kind == "windowed" || kind == "installer") Expect("manifest", "present")
            # Functions in a table of their own would escape the look at the imports.
            Expect("delayed imports", "00000000")
            exit bad
        }
    ' "$2"
}

# %xmm came with SSE, %ymm and %zmm later; the others named here touch no such register.
CheckInstructions() {
    awk -F '\t' '
        NF >= 3 { ++seen }
        NF >= 3 && ($3 ~ /%[xyz]mm[0-9]/ ||
                    $3 ~ /^(lfence|mfence|sfence|clflush|movnti|ldmxcsr|stmxcsr|popcnt|prefetch)/) {
            print "not on every processor of XP: " $0
            bad = 1
        }
        END {
            if (seen < 1) { print "no instruction found"; bad = 1 }
            exit bad
        }
    ' "$1"
}

# The linker puts the tables of the exception handlers behind the code into the same section, and
# read as instructions they are nonsense of any kind. Their address is on the line of the first
# table, or on the one below it.
CodeEnd() {
    awk '
        /^Linker script and memory map/ { reached = 1 }
        reached && /^ \*\(\.gcc_except_table/ { tables = 1; next }
        tables && match($0, /0x[0-9a-f]+/) { print substr($0, RSTART, RLENGTH); found = 1; exit }
        END {
            if (!found) print "the map does not say where the code ends"
            exit !found
        }
    ' "$1"
}

CheckSize() {
    local bytes
    bytes=$(stat -c %s "$1")
    if ((bytes > $2)); then
        echo "$1 has $bytes bytes, more than $2"
        return 1
    fi
}

CheckProgram() {
    local kind=$1 allowed=$2 later=$3 limit=$4 objdump=$5 program=$6 map=$7 status=0 texts code_end
    if ! code_end=$(CodeEnd "$map"); then
        echo "$code_end"
        return 1
    fi
    texts=$(mktemp -d)
    "$objdump" -p "$program" >"$texts/headers"
    "$objdump" -d --stop-address="$code_end" "$program" >"$texts/disassembly"
    CheckImports "$allowed" "$texts/headers" || status=1
    CheckServicePacks "$later" "$texts/headers" || status=1
    if [[ $kind == windowed ]]; then
        CheckCommonControls "$texts/headers" || status=1
        CheckAsked "$later" "$program" || status=1
    else
        CheckLibraries "$texts/headers" || status=1
        CheckAsked <(sed 's/ asked$//' "$later") "$program" || status=1
    fi
    CheckHeaders "$kind" "$texts/headers" || status=1
    CheckInstructions "$texts/disassembly" || status=1
    CheckSize "$program" "$limit" || status=1
    rm -r "$texts"
    if ((status == 0)); then
        echo "$program: $(stat -c %s "$program") bytes, nothing that XP lacks"
    fi
    return $status
}

CheckSuite() {
    local allowed=$1 more=$2 later=$3 objdump=$4 program=$5 map=$6 status=0 texts code_end
    if ! code_end=$(CodeEnd "$map"); then
        echo "$code_end"
        return 1
    fi
    texts=$(mktemp -d)
    "$objdump" -p "$program" >"$texts/headers"
    "$objdump" -d --stop-address="$code_end" "$program" >"$texts/disassembly"
    cat "$allowed" "$more" >"$texts/allowed"
    CheckImports "$texts/allowed" "$texts/headers" || status=1
    CheckServicePacks "$later" "$texts/headers" || status=1
    CheckHeaders console "$texts/headers" || status=1
    CheckInstructions "$texts/disassembly" || status=1
    rm -r "$texts"
    if ((status == 0)); then
        echo "$program: nothing that XP lacks"
    fi
    return $status
}

# Nothing tells where the code of these ends, but they have no tables behind it.
CheckInstaller() {
    local allowed=$1 more=$2 later=$3 limit=$4 objdump=$5 installer=$6 uninstaller=$7 plugins=$8
    local status=0 texts file kind said
    texts=$(mktemp -d)
    cat "$allowed" "$more" >"$texts/allowed"
    for file in "$installer" "$uninstaller" "$plugins"/*.dll; do
        kind=installer
        [[ $file == *.dll ]] && kind=plug-in
        if [[ ! -f $file ]]; then
            echo "$file is not there"
            status=1
            continue
        fi
        "$objdump" -p "$file" >"$texts/headers"
        "$objdump" -d "$file" >"$texts/disassembly"
        # The name before each violation, as one run looks at several files.
        said=$(
            status=0
            CheckImports "$texts/allowed" "$texts/headers" || status=1
            CheckServicePacks "$later" "$texts/headers" || status=1
            CheckHeaders $kind "$texts/headers" || status=1
            CheckInstructions "$texts/disassembly" || status=1
            exit $status
        ) || { sed "s|^|$(basename "$file"): |" <<<"$said"; status=1; }
    done
    CheckSize "$installer" "$limit" || status=1
    rm -r "$texts"
    if ((status == 0)); then
        echo "$installer: $(stat -c %s "$installer") bytes, nothing that XP lacks, nor its plug-ins"
    fi
    return $status
}

what=${1:-}
shift || true
case $what in
    imports) CheckImports "$@" ;;
    common-controls) CheckCommonControls "$@" ;;
    libraries) CheckLibraries "$@" ;;
    service-packs) CheckServicePacks "$@" ;;
    asked) CheckAsked "$@" ;;
    headers) CheckHeaders "$@" ;;
    instructions) CheckInstructions "$@" ;;
    code-end) CodeEnd "$@" ;;
    size) CheckSize "$@" ;;
    program) CheckProgram "$@" ;;
    suite) CheckSuite "$@" ;;
    installer) CheckInstaller "$@" ;;
    *) sed -n '2,/^$/s/^# \?//p' "$0" >&2; exit 2 ;;
esac
