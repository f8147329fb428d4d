# To be sourced by the tests of the package. What they show is one line each.
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/wine-environment"
source "$(dirname "${BASH_SOURCE[0]}")/../support/prefixdump.sh"

entry='Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillmore'
run='HKCU\Software\Microsoft\Windows\CurrentVersion\Run'
store='HKCU\Software\VB and VBA Program Settings'
programs=(Anleitung.mht Entfernen.exe Liesmich.txt Lizenz.txt Quillmore.exe QuillmoreCmd.exe Sicherung.cmd)
for_all='Programme/Quillmore'
# Where Windows has the folders of one user.
for_one="users/$baseline_user/AppData/Local/Quillmore"
failures=0

# Begin NAME INSTALLER NEWER HELPER...: a display and a fresh prefix of that name, with all of these
# in C:\Paket.
Begin() {
    local name=$1 files
    mapfile -t files < <(realpath "${@:2}")
    work=$(mktemp -d)
    trap Leave EXIT
    UseWine "$root/build/packaging-$name-prefix"
    if [[ -e $prefix ]]; then
        EndWine
        rm -rf "$prefix"
    fi
    "$root/tools/prefix" "$prefix"
    cd "$prefix/drive_c"
    mkdir Paket
    cp "${files[0]}" Paket/Setup.exe
    cp "${files[1]}" Paket/Newer.exe
    cp "${files[@]:2}" Paket
    StartDisplay
    # What a first start leaves behind is not the installer's.
    Run Paket/visitor.exe >/dev/null 2>&1 || true
}

Leave() {
    local code=$?
    EndWine
    EndDisplay
    rm -r "$work"
    exit $code
}

End() {
    if ((failures > 0)); then
        echo "$failures failed" >&2
        exit 1
    fi
}

Run() {
    InWine timeout --kill-after=10 300 wine "$@" 2>>"$work/errors"
}

# Check SENTENCE COMMAND...: prints the sentence, which holds when the command does.
Check() {
    local sentence=$1
    shift
    if "$@" >"$work/said" 2>&1; then
        echo "$sentence"
    else
        echo "FAILED: $sentence" >&2
        sed 's/^/    /' "$work/said" >&2
        failures=$((failures + 1))
        [[ -z ${pictures:-} ]] || import -window root "$pictures/failed-$failures.png"
        # A window that has stayed would be in the way of all others.
        EndWine
    fi
}

# Ends CODE COMMAND...
Ends() {
    local wanted=$1 code=0
    shift
    "$@" || code=$?
    ((code == wanted)) && return
    echo "ended with $code, not $wanted"
    tail -3 "$work/errors"
    return 1
}

# Remove FOLDER [SWITCH...]: waits for the copy of itself in which the uninstaller goes on.
Remove() {
    Run Paket/visitor.exe run "\"$(WindowsPath "$1")\\Entfernen.exe\"" /S "${@:2}"
}

# EndProgram FOLDER: its process ends a little later than its window.
EndProgram() {
    Run Paket/driver.exe close && Run Paket/visitor.exe free "$(WindowsPath "$1")\\Quillmore.exe"
}

# WindowsPath FOLDER
WindowsPath() {
    echo "C:\\${1//\//\\}"
}

Value() {
    Run reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n 's/^    .*    REG_[A-Z]*    //p'
}

# Leads LINK FOLDER FILE: the shortcut leads to the file of that folder.
Leads() {
    grep -qaF "$(WindowsPath "$2" | iconv -f UTF-8 -t CP1252)\\$3" "$1" && return
    echo "$1 does not lead to $3"
    return 1
}

# SizeTold HIVE FOLDER: the entry tells it within a tenth, in KB.
SizeTold() {
    local told size
    told=$(($(Value "$1\\$entry" EstimatedSize)))
    size=$(cd "$2" && cat "${programs[@]}" | wc -c)
    ((told * 1024 * 10 > size * 9 && told * 1024 * 10 < size * 11)) && return
    echo "told is a size of $told KB, not $((size / 1024))"
    return 1
}

# Installed HIVE VERSION FOLDER MENU: all files, all of the menu and the whole entry.
Installed() {
    local hive=$1 version=$2 folder=$3 menu=$4 path status=0
    path=$(WindowsPath "$folder")
    diff <(printf '%s\n' "${programs[@]}") \
        <(cd "$folder" && find . -type f ! -name Quillmore.log ! -name Meins.txt -printf '%P\n' |
            LC_ALL=C sort) || status=1
    diff <(printf '%s\n' Anleitung.lnk Quillmore.lnk "Sicherung der Einstellungen.lnk") \
        <(find "$menu/Quillmore" -printf '%P\n' | sed 1d | LC_ALL=C sort) || status=1
    Leads "$menu/Quillmore/Quillmore.lnk" "$folder" Quillmore.exe || status=1
    Leads "$menu/Quillmore/Anleitung.lnk" "$folder" Anleitung.mht || status=1
    Leads "$menu/Quillmore/Sicherung der Einstellungen.lnk" "$folder" Sicherung.cmd || status=1
    SizeTold "$hive" "$folder" || status=1
    grep -qF " $version" "$folder/Liesmich.txt" || { echo "Liesmich.txt is of another version"; status=1; }
    diff <(cat <<ENTRY
    DisplayIcon    REG_SZ    $path\\Quillmore.exe,0
    DisplayName    REG_SZ    Quillmore $version
    DisplayVersion    REG_SZ    $version
    EstimatedSize    REG_DWORD
    InstallLocation    REG_SZ    $path
    NoModify    REG_DWORD    0x1
    NoRepair    REG_DWORD    0x1
    Publisher    REG_SZ    Quillmore
    QuietUninstallString    REG_SZ    "$path\\Entfernen.exe" /S
    UninstallString    REG_SZ    "$path\\Entfernen.exe"
ENTRY
    ) <(Run reg query "$hive\\$entry" | tr -d '\r' | iconv -f CP850 -t UTF-8 |
        sed -n '/^    /{s/\(EstimatedSize *REG_DWORD\) .*/\1/;p}') || status=1
    return $status
}

menu_all="Dokumente und Einstellungen/All Users/Startmenü/Programme"
menu_one="users/$baseline_user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"

# Absent HIVE FOLDER MENU: no part of it is there; the folder may stay with files of others.
Absent() {
    local name status=0
    for name in "${programs[@]/#/$2/}" "$3/Quillmore"; do
        [[ ! -e $name ]] || { echo "$name is still there"; status=1; }
    done
    ! Run reg query "$1\\$entry" || status=1
    return $status
}

# The uninstaller's copy of itself stays; where its user may ask for that, the next start of Windows
# deletes it.
Dump() {
    DumpPrefix ! -path './users/*/Temp/~nsu*.tmp' ! -path './users/*/Temp/~nsu*.tmp/Un*.exe' |
        grep -v '^system: "PendingFileRenameOperations"='
}

# The same as before, on the disk and in the registry.
Unchanged() {
    Dump >"$work/after"
    diff "$work/before" "$work/after"
}

# OtherWindows COMMAND...: while the installer sees another one.
OtherWindows() {
    local key='HKCU\Software\Wine\AppDefaults\Setup.exe' code=0
    Run reg add "$key" /v Version /d win7 /f >/dev/null
    "$@" || code=$?
    Run reg delete "$key" /f >/dev/null
    return $code
}

# Lock FILE: until Unlock it is open, and nobody can write or delete it.
Lock() {
    : >"$work/held"
    Run Paket/visitor.exe hold "$(WindowsPath "$1")" >"$work/held" &
    holder=$!
    until [[ -s $work/held ]] || ! kill -0 "$holder" 2>/dev/null; do sleep 0.05; done
}

Unlock() {
    touch Paket/release
    wait "$holder"
    rm Paket/release
}
