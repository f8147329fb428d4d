#!/bin/bash
# silent.sh INSTALLER NEWER VISITOR DRIVER: the installer and its uninstaller by their switches, for
# all users and for one, in a prefix that is afterwards as it was before. NEWER is the installer of a
# later version.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
Begin silent "$@"
Dump >"$work/before"

# Limited PROGRAM [SWITCH...]: as a user who is no administrator.
Limited() {
    Run Paket/visitor.exe limited "\"$1\"" "${@:2}"
}

# The log, a file of the user's and an entry in the autostart for the program of FOLDER.
Furnish() {
    echo log >"$1/Quillmore.log"
    echo mine >"$1/Meins.txt"
    Run reg add "$run" /v Quillmore /d "\"$(WindowsPath "$2")\\Quillmore.exe\"" /f >/dev/null
}

Settings() {
    Run reg query "$store" /s | tr -d '\r'
}

SameSettings() {
    Settings | diff "$work/settings" -
}

Kept() {
    diff <(echo log) "$1/Quillmore.log" && diff <(echo mine) "$1/Meins.txt"
}

# Starts the program of FOLDER, which asks for a first confirmation.
StartProgram() {
    Run Paket/driver.exe start "$(WindowsPath "$1")\\Quillmore.exe" >/dev/null &&
        Run Paket/driver.exe wait frmFirstInfo && Run Paket/driver.exe click Command2 &&
        Run Paket/driver.exe wait frmMain
}

RefusedForNow() {
    Ends 4 Run Paket/Newer.exe /S &&
        Ends 4 Run "$for_all/Entfernen.exe" /S "_?=$(WindowsPath "$for_all")" &&
        Installed HKLM "$version" "$for_all" "$menu_all"
}

Upgrade() {
    Settings >"$work/settings"
    Ends 0 Run Paket/Newer.exe /S && Installed "$1" 9.8.7 "$2" "$3" && Kept "$2" && SameSettings
}

# While somebody reads the manual.
LockedFile() {
    local status=0
    Lock "$for_all/Anleitung.mht"
    "$@" || status=1
    Unlock
    return $status
}

StaysForAnotherTry() {
    Ends 2 Run "$for_all/Entfernen.exe" /S "_?=$(WindowsPath "$for_all")" || return 1
    Remove "$for_all" || return 1
    [[ -f $for_all/Entfernen.exe && -f $for_all/Anleitung.mht ]] &&
        [[ $(Value "HKLM\\$entry" DisplayVersion) == 9.8.7 ]] && Kept "$for_all"
}

Backup() {
    Run cmd /c "$(WindowsPath "$for_all")\\Sicherung.cmd" </dev/null
}

BackupTwice() {
    local first
    Ends 0 Backup || return 1
    first=$(cd "$documents" && find . -name '*.reg' -printf '%f')
    [[ $first == "Quillmore-Sicherung "*.reg && $first != *"("* ]] || { echo "made: $first"; return 1; }
    cp "$documents/$first" "$work/first.reg"
    Ends 0 Backup || return 1
    cmp "$documents/$first" "$work/first.reg" && [[ -s "$documents/${first%.reg} (2).reg" ]] &&
        (($(find "$documents" -name '*.reg' | wc -l) == 2))
}

RemovedWithout() {
    Remove "$for_all" && Absent HKLM "$for_all" "$menu_all" && Kept "$for_all" && SameSettings
}

# What is kept on purpose is put away by hand; then nothing is left.
PutAway() {
    rm "$for_all/Quillmore.log" "$for_all/Meins.txt"
    rmdir "$for_all"
    Run reg delete "$store" /f >/dev/null
    Run reg delete "$run" /v Quillmore /f >/dev/null
}

version=$(basename "$1" -Setup.exe)
version=${version#Quillmore-}
documents="Dokumente und Einstellungen/$baseline_user/Eigene Dateien"

Check "another Windows is refused with 3" OtherWindows Ends 3 Run Paket/Setup.exe /S
Check "and nothing of it was written" Absent HKLM "$for_all" "$menu_all"
Check "with /ANDERESWINDOWS it installs" OtherWindows Ends 0 Run Paket/Setup.exe /S /ANDERESWINDOWS
Check "all files, the menu and the entry are there, for all users" \
    Installed HKLM "$version" "$for_all" "$menu_all"
Check "the installed program starts" StartProgram "$for_all"
Check "while it runs, upgrade and removal are refused with 4" RefusedForNow
Check "it ends" EndProgram "$for_all"
Furnish "$for_all" anderswo
Check "a newer version replaces it and keeps settings, log and files of others" \
    Upgrade HKLM "$for_all" "$menu_all"
Check "a file in use makes an upgrade end with 2" LockedFile Ends 2 Run Paket/Newer.exe /S
Check "a removal that is stopped by a file in use ends with 2 and can be tried again" \
    LockedFile StaysForAnotherTry
Check "what it has removed already comes back" Upgrade HKLM "$for_all" "$menu_all"
Check "the backup goes to the documents, and a second one spares the first" BackupTwice
# Wine's own command interpreter leaves files behind.
rm -f "$documents"/*.reg users/*/Temp/CMD*.tmp
Check "without administrator's rights it is not removed, which is told by 5" Ends 5 Limited \
    "$(WindowsPath "$for_all")\\Entfernen.exe" /S "_?=$(WindowsPath "$for_all")"
Check "nor anything of it" Installed HKLM 9.8.7 "$for_all" "$menu_all"
Check "removal leaves settings, log, files of others and the autostart of another folder" \
    RemovedWithout
Check "the autostart of another folder is as it was" \
    test "$(Value "$run" Quillmore)" = '"C:\anderswo\Quillmore.exe"'
PutAway
Check "disk and registry are as before" Unchanged

Check "for one user by a switch" Ends 0 Run Paket/Setup.exe /S /EINBENUTZER
Check "all files, the menu and the entry are there, for one user" \
    Installed HKCU "$version" "$for_one" "$menu_one"
Check "and no entry for all" Absent HKLM "$for_all" "$menu_all"
Check "the program starts from there" StartProgram "$for_one"
Check "and ends" EndProgram "$for_one"
Furnish "$for_one" "$for_one"
Check "an upgrade without the switch stays with one user" Upgrade HKCU "$for_one" "$menu_one"
rm "$for_one/Meins.txt"
Check "removal with /ALLES" Remove "$for_one" /ALLES
Check "leaves nothing: disk and registry are as before" Unchanged

Check "without administrator's rights it installs for one user" \
    Ends 0 Limited 'C:\Paket\Setup.exe' /S
Check "with all files, the menu and the entry" Installed HKCU "$version" "$for_one" "$menu_one"
Run reg add "$run" /v Quillmore /d "\"$(WindowsPath "$for_one")\\Quillmore.exe\"" /f >/dev/null
Check "and without them it is removed" Ends 0 Limited "$(WindowsPath "$for_one")\\Entfernen.exe" /S

mkdir "Ablage für alle"
folder="Ablage für alle/Größe & Maß"
Check "a folder with blanks and umlauts" \
    Ends 0 Run Paket/Setup.exe /S "/D=C:\\Ablage" für 'alle\Größe' '&' Maß
Check "gets all files" Installed HKLM "$version" "$folder" "$menu_all"
Check "whatever its name, removal is complete" Remove "$folder"
rmdir "Ablage für alle"
mkdir -p "$for_all/Liesmich.txt"
Check "a file that cannot be written ends with 2" Ends 2 Run Paket/Setup.exe /S
Check "and makes no entry" test -z "$(Value "HKLM\\$entry" DisplayName)"
rm -r "$for_all"
Check "disk and registry are as before those three" Unchanged
End
