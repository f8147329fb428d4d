#!/bin/bash
# silent.sh INSTALLER NEWER VISITOR DRIVER: the installer and its uninstaller by their switches, for
# all users and for one, in a prefix that is afterwards as it was before. NEWER is the installer of a
# later version.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
archive=$(realpath "${1%-Setup.exe}.zip")
Begin silent "$@"
Dump >"$work/before"

# Limited PROGRAM [SWITCH...]: as a user who is no administrator.
Limited() {
    Run Paket/visitor.exe limited "\"$1\"" "${@:2}"
}

# The log, the drives' own settings, a file of the user's and an entry in the autostart for the program of FOLDER.
Furnish() {
    echo log >"$1/Quillmore.log"
    echo mine >"$1/Meins.txt"
    Run reg add "$store\\dmVDriveC\\Config" /v chkAll /d 1 /f >/dev/null
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

# The console program, which is taken to run while its file cannot be written.
RefusedForConsole() {
    local status=0
    Lock "$for_all/QuillmoreCmd.exe"
    Ends 4 Run Paket/Newer.exe /S || status=1
    Unlock
    return $status
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

# With a stand-in that cannot back up all; of one that is called Wine tells only that it failed.
BackupPartly() {
    local code=0
    mkdir Teil
    sed 's/^"%~dp0QuillmoreCmd.exe"/call "%~dp0Teil.cmd"/' "$for_all/Sicherung.cmd" >Teil/Sicherung.cmd
    printf '@echo etwas>%%2\r\n@exit /b 3\r\n' >Teil/Teil.cmd
    Run cmd /c 'C:\Teil\Sicherung.cmd' </dev/null >"$work/partly" || code=$?
    rm -r Teil
    cat "$work/partly"
    ((code != 0)) && grep -aq 'Der Rest liegt' "$work/partly" && ! grep -aq 'nicht gelungen' "$work/partly" &&
        grep -aq 'Quillmore-Sicherung .* (3)\.reg"' "$work/partly"
}

RemovedWithout() {
    Remove "$for_all" && Absent HKLM "$for_all" "$menu_all" && Kept "$for_all" && SameSettings
}

# Somebody's own files that are called as ours, alone in a folder.
Foreign() {
    mkdir "$1"
    for name in Anleitung.mht Liesmich.txt Lizenz.txt Quillmore.log; do
        echo "somebody's" >"$1/$name"
    done
}

# Spared FOLDER [NAME]: they are as they were, with nothing but NAME beside them.
Spared() {
    local name
    for name in Anleitung.mht Liesmich.txt Lizenz.txt Quillmore.log; do
        diff <(echo "somebody's") "$1/$name" || return 1
    done
    diff <(printf '%s\n' Anleitung.mht Liesmich.txt Lizenz.txt Quillmore.log ${2:+"$2"} | sort) \
        <(ls "$1" | sort)
}

ForeignFolder() {
    Ends 6 Run Paket/Setup.exe /S '/D=C:\Fremd' && Spared Fremd && Absent HKLM Nichts "$menu_all"
}

# An entry that says so is not believed about a folder with a file called as the uninstaller.
ForeignEntry() {
    echo "somebody's" >Fremd/Entfernen.exe
    Run reg add "HKLM\\$entry" /v InstallLocation /d 'C:\Fremd' /f >/dev/null
    Ends 0 Run Paket/Setup.exe /S || return 1
    diff <(echo "somebody's") Fremd/Entfernen.exe && rm Fremd/Entfernen.exe && Spared Fremd &&
        Installed HKLM "$version" "$for_all" "$menu_all"
}

# The uninstaller knows of no other folder than the one that was installed to.
StrayUninstaller() {
    cp "$for_all/Entfernen.exe" Fremd
    Ends 6 Run Fremd/Entfernen.exe /S /ALLES '_?=C:\Fremd' && Remove Fremd /ALLES &&
        Spared Fremd Entfernen.exe && Installed HKLM "$version" "$for_all" "$menu_all"
}

OtherKindThere() {
    Ends 6 Run Paket/Setup.exe /S /EINBENUTZER "/D=$(WindowsPath "$for_all")" &&
        Installed HKLM "$version" "$for_all" "$menu_all" && Absent HKCU Nichts "$menu_one"
}

BothKinds() {
    Ends 0 Run Paket/Setup.exe /S /EINBENUTZER && Installed HKCU "$version" "$for_one" "$menu_one" &&
        Installed HKLM "$version" "$for_all" "$menu_all"
}

# As for an administrator who starts what another user has installed for himself.
LostEntry() {
    Run reg export "HKCU\\$entry" 'C:\Paket\entry.reg' /y >/dev/null
    Run reg delete "HKCU\\$entry" /f >/dev/null
    Ends 6 Run "$for_one/Entfernen.exe" /S "_?=$(WindowsPath "$for_one")" || return 1
    Run regedit /S 'C:\Paket\entry.reg'
    rm Paket/entry.reg
    Installed HKCU "$version" "$for_one" "$menu_one" &&
        Installed HKLM "$version" "$for_all" "$menu_all"
}

OneOfBoth() {
    Remove "$for_one" && Absent HKCU "$for_one" "$menu_one" &&
        Installed HKLM "$version" "$for_all" "$menu_all"
}

Unpacked() {
    mkdir Ausgepackt
    cmake -E tar xf "$archive"
    mv "${archived[@]}" Ausgepackt
    Ends 0 Run Paket/Setup.exe /S '/D=C:\Ausgepackt' &&
        Installed HKLM "$version" Ausgepackt "$menu_all" && Remove Ausgepackt
}

# What is kept on purpose is put away by hand; then nothing is left.
PutAway() {
    rm "$for_all/Quillmore.log" "$for_all/Meins.txt"
    rmdir "$for_all"
    Run reg delete "$store" /f >/dev/null
    Run reg delete "$run" /v Quillmore /f >/dev/null
}

RemovedLimited() {
    Limited "$(WindowsPath "$for_one")\\Entfernen.exe" /S && Absent HKCU "$for_one" "$menu_one"
}

archived=(Anleitung.mht Liesmich.txt Lizenz.txt Quillmore.exe QuillmoreCmd.exe)
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
Check "so is an upgrade while the console program runs" RefusedForConsole
Furnish "$for_all" anderswo
Check "a newer version replaces it and keeps settings, log and files of others" \
    Upgrade HKLM "$for_all" "$menu_all"
Check "a file in use makes an upgrade end with 2" LockedFile Ends 2 Run Paket/Newer.exe /S
Check "a removal that is stopped by a file in use ends with 2 and can be tried again" \
    LockedFile StaysForAnotherTry
Check "what it has removed already comes back" Upgrade HKLM "$for_all" "$menu_all"
Check "the backup goes to the documents, and a second one spares the first" BackupTwice
Check "one that lacks something says so, and where it is" BackupPartly
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
Check "and without them it is removed" RemovedLimited

mkdir "Ablage für alle"
folder="Ablage für alle/Größe & Maß"
Check "a folder with blanks and umlauts" \
    Ends 0 Run Paket/Setup.exe /S "/D=C:\\Ablage" für 'alle\Größe' '&' Maß
Check "gets all files" Installed HKLM "$version" "$folder" "$menu_all"
Check "whatever its name, removal is complete" Remove "$folder"
rmdir "Ablage für alle"
echo "somebody's" >"$menu_all/Quillmore"
Check "what cannot be written whole ends with 2" Ends 2 Run Paket/Setup.exe /S
rm "$menu_all/Quillmore"
Check "and leaves nothing: disk and registry are as before those three" Unchanged

Foreign Fremd
Check "a folder with somebody's file of such a name is refused with 6, and spared" ForeignFolder
Check "and it is whatever an entry says" ForeignEntry
Check "an uninstaller that came there removes nothing" StrayUninstaller
rm -r Fremd
Check "the folder of the other kind is refused with 6" OtherKindThere
Check "both kinds can be there side by side" BothKinds
Check "with the entry of neither, removal is refused with 6" LostEntry
Check "removing one spares the other" OneOfBoth
Check "and then the other goes" Remove "$for_all"
Check "what was unpacked somewhere can be installed there" Unpacked
Check "disk and registry are as before, at the end" Unchanged
End
