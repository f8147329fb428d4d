#!/bin/bash
# windows.sh INSTALLER NEWER VISITOR DRIVER: the windows of the installer and of its uninstaller, gone
# through by the keyboard, in a prefix that is afterwards as it was before. Each window shows all of
# its texts. NEWER is the installer of a later version. With QUILLMORE_PICTURES=FOLDER a picture of
# each goes there.
set -euo pipefail
pictures=${QUILLMORE_PICTURES:+$(realpath "$QUILLMORE_PICTURES")}
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
Begin windows "$@"
Dump >"$work/before"
version=$(basename "$1" -Setup.exe)
version=${version#Quillmore-}
dots=96
mkdir -p "${pictures:-$work/pictures}"

Start() {
    Run "$@" &
    started=$!
}

# Remover FOLDER: starts the uninstaller.
Remover() {
    Start Paket/visitor.exe run "\"$(WindowsPath "$1")\\Entfernen.exe\""
}

# The started program ends with CODE.
Ended() {
    Ends "$1" wait "$started"
}

# Visit STEP...; Page NAME STEP... also takes the picture and looks whether all can be read.
Visit() {
    Run Paket/visitor.exe "$@" || { tail -1 "$work/errors"; return 1; }
}

Page() {
    local name=$1
    shift
    Visit "$@" || return 1
    [[ -z $pictures ]] || import -window root "$pictures/$dots-$name.png"
    Visit fits
}

RefuseOther() {
    Start Paket/Setup.exe
    Page other see "NUR für Windows XP" && Visit key enter && Ended 3
}

CancelOther() {
    Start Paket/Setup.exe
    Visit see "NUR für Windows XP" key alt+j see "Für wen Quillmore $version" key escape &&
        Page cancel see "Sind Sie sicher" && Visit key enter && Ended 1
}

InstallForAll() {
    Start Paket/Setup.exe
    Page whom see "Für wen Quillmore $version" ticked "Für alle Benutzer" unticked "Nur für mich" &&
        Visit key alt+w && Page folder see "Der Ordner sollte deshalb einer sein" &&
        Visit key alt+i see "Die Installation wurde erfolgreich" key alt+w &&
        Page done see "Quillmore $version ist installiert" \
            ticked "Quillmore jetzt starten" unticked "Anleitung öffnen" && Visit key alt+f && Ended 0
}

# Of a folder with somebody's file of such a name it is told, and the page stays.
ForeignFolder() {
    mkdir Fremd
    echo "somebody's" >Fremd/Liesmich.txt
    Start Paket/Setup.exe
    Visit see "Für wen Quillmore $version" key alt+w see "Der Ordner sollte deshalb einer sein" &&
        Visit type 'C:\Fremd' key alt+i && Page foreign see "sie würden überschrieben" &&
        Visit key enter see "Der Ordner sollte deshalb einer sein" key escape \
            see "Sind Sie sicher" key enter && Ended 1 &&
        diff <(echo "somebody's") Fremd/Liesmich.txt && [[ $(ls Fremd) == Liesmich.txt ]]
}

# The folder of the command line stays whatever is chosen; where none is named, each choice has its own.
NamedFolder() {
    Start Paket/Setup.exe '/D=C:\Befohlen'
    Visit see "Für wen Quillmore $version" key alt+w see 'C:\Befohlen' key alt+z \
        see "Für wen Quillmore $version" key alt+m key alt+w see 'C:\Befohlen' key escape \
        see "Sind Sie sicher" key enter && Ended 1 || return 1
    Start Paket/Setup.exe
    Visit see "Für wen Quillmore $version" key alt+w see 'C:\Programme\Quillmore' key alt+z \
        see "Für wen Quillmore $version" key alt+m key alt+w \
        see 'AppData\Local\Quillmore' key escape see "Sind Sie sicher" key enter && Ended 1
}

# "Quillmore jetzt starten" was ticked.
ProgramCame() {
    Run Paket/driver.exe wait frmFirstInfo && Run Paket/driver.exe click Command2 &&
        Run Paket/driver.exe wait frmMain
}

UpgradeRunning() {
    Start Paket/Newer.exe
    Page earlier see "Für alle Benutzer: $version in C:\\Programme\\Quillmore" \
        ticked "Für alle Benutzer" && Visit key alt+w && Page running see "Quillmore.exe läuft noch" &&
        EndProgram "$for_all" &&
        Visit see "Quillmore.exe läuft noch" key alt+w see "Die Installation wurde erfolgreich" \
            key alt+w see "Quillmore 9.8.7 ist installiert" \
            key alt+s unticked "Quillmore jetzt starten" key alt+f && Ended 0
}

GiveUpRunning() {
    Start Paket/Newer.exe
    Visit see "Für wen Quillmore 9.8.7" key alt+w see "Quillmore.exe läuft noch" key escape && Ended 4
}

Furnish() {
    mkdir -p "$1"
    echo log >"$1/Quillmore.log"
    Run reg add "$run" /v Quillmore /d "\"$(WindowsPath "$1")\\Quillmore.exe\"" /f >/dev/null
}

LockedRemoval() {
    local status=0
    Lock "$for_all/Anleitung.mht"
    Remover "$for_all"
    Visit see "Andere Dateien im Ordner bleiben" key alt+e && Page locked see "Nicht alles ließ sich" &&
        Visit key enter && Page stopped see "Abbruch der Deinstallation" &&
        Visit key escape gone "Quillmore entfernen" && wait "$started" || status=1
    Unlock
    [[ -f $for_all/Entfernen.exe && $(Value "HKLM\\$entry" DisplayVersion) == 9.8.7 ]] || status=1
    return $status
}

# The other way round than proposed.
RemoveForAll() {
    Remover "$for_all"
    Page questions see "Andere Dateien im Ordner bleiben" ticked "Den Eintrag im Autostart" \
        unticked "Die Programmoptionen" unticked "Das Fehlerprotokoll" &&
        Visit key alt+a unticked "Den Eintrag im Autostart" key alt+p ticked "Die Programmoptionen" \
            key alt+e && Page removed see "Fertig" && Visit key alt+b && wait "$started" &&
        Absent HKLM "$for_all" "$menu_all" && [[ $(ls "$for_all") == Quillmore.log ]] &&
        [[ $(Value "$run" Quillmore) ]] && ! Run reg query "$store"
}

InstallForOne() {
    Start Paket/Setup.exe
    Visit see "Für wen Quillmore $version" ticked "Für alle Benutzer" key alt+m ticked "Nur für mich" \
        unticked "Für alle Benutzer" key alt+w see "Der Ordner sollte deshalb einer sein" key alt+i \
        see "Die Installation wurde erfolgreich" key alt+w \
        see "Quillmore $version ist installiert" key alt+s unticked "Quillmore jetzt starten" \
        key alt+f && Ended 0 && Installed HKCU "$version" "$for_one" "$menu_one"
}

CancelRemoval() {
    Remover "$for_one"
    Visit see "Andere Dateien im Ordner bleiben" key escape gone "Quillmore entfernen" &&
        wait "$started" && Installed HKCU "$version" "$for_one" "$menu_one"
}

RemoveForOne() {
    Remover "$for_one"
    Visit see "Andere Dateien im Ordner bleiben" key alt+f ticked "Das Fehlerprotokoll" key alt+e \
        see "Fertig" key alt+b && wait "$started"
}

# Who may not is told so, and can still have it for himself.
WithoutRights() {
    Start Paket/visitor.exe limited 'C:\Paket\Setup.exe'
    Page rights see "kann nur installieren, wer" ticked "Nur für mich" && Visit key escape \
        see "Sind Sie sicher" key enter && Ended 1
}

LimitedWhole() {
    Start Paket/visitor.exe limited 'C:\Paket\Setup.exe'
    Visit see "kann nur installieren, wer" key alt+w see "Der Ordner sollte deshalb einer sein" \
        key alt+i see "Die Installation wurde erfolgreich" key alt+w \
        see "Quillmore $version ist installiert" key alt+s key alt+f && Ended 0 &&
        Installed HKCU "$version" "$for_one" "$menu_one" || return 1
    Start Paket/visitor.exe limited "\"$(WindowsPath "$for_one")\\Entfernen.exe\""
    Visit see "Andere Dateien im Ordner bleiben" key alt+e see "Fertig" key alt+b && Ended 0 &&
        Absent HKCU "$for_one" "$menu_one"
}

# Of a folder that is no installation of anybody.
StrayUninstaller() {
    mkdir Fremd
    cp "$for_all/Entfernen.exe" Fremd
    Remover Fremd
    Page stray see "weder für alle Benutzer noch für Sie" && Visit key enter && wait "$started" &&
        [[ $(ls Fremd) == Entfernen.exe ]] && Installed HKLM 9.8.7 "$for_all" "$menu_all"
}

LargeFonts() {
    local status=0
    dots=120
    cp "$root/tools/display/largefonts.reg" "$prefix/drive_c/"
    Run regedit /S 'C:\largefonts.reg'
    # Read when the desktop starts.
    EndWine
    WithoutRights && ForeignFolder && rm -r Fremd && InstallForAll && ProgramCame &&
        UpgradeRunning && StrayUninstaller && rm -r Fremd && Furnish "$for_all" &&
        LockedRemoval && Run Paket/Newer.exe /S && RemoveForAll || status=1
    return $status
}

Check "another Windows: told, and no goes no further" OtherWindows RefuseOther
Check "yes goes on, and cancel ends with 1" OtherWindows CancelOther
Check "without administrator's rights it offers one user only" WithoutRights
Check "and nothing of these was written" Unchanged
Check "a folder with somebody's file of such a name is told" ForeignFolder
rm -r Fremd
Check "a folder of the command line stays, and else each choice has its own" NamedFolder
Check "without administrator's rights it installs for one user, and removes" LimitedWhole
Check "by the proposed answers it installs for all" InstallForAll
Check "all files, the menu and the entry" Installed HKLM "$version" "$for_all" "$menu_all"
Check "and starts the program" ProgramCame
Check "a running program: told, and cancel ends with 4" GiveUpRunning
Check "which was nothing to the installed files" Installed HKLM "$version" "$for_all" "$menu_all"
Check "a running program: told, and with it ended it goes on" UpgradeRunning
Check "all files, the menu and the entry of the newer version" \
    Installed HKLM 9.8.7 "$for_all" "$menu_all"
Check "an uninstaller in another folder removes nothing, and says so" StrayUninstaller
rm -r Fremd
Furnish "$for_all"
Check "a removal that is stopped by a file in use is told, and stays possible" LockedRemoval
Check "another installation mends it" Ends 0 Run Paket/Newer.exe /S
Check "removal asks, and does as told" RemoveForAll
rm -rf "$for_all"
Run reg delete "$run" /v Quillmore /f >/dev/null
Check "disk and registry are as before" Unchanged
Check "for one user" InstallForOne
Furnish "$for_one"
Check "a cancelled removal removes nothing" CancelRemoval
Check "removal with the log, and the autostart as proposed" RemoveForOne
Check "disk and registry are as before, once more" Unchanged
Check "at 120 dots an inch all can be read, too" LargeFonts
End
