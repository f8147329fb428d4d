; The installer. pack.sh defines
;   FILES      the folder with what it installs
;   ICON       the icon of installer and uninstaller
;   OUTPUT     the installer
;   UNINSTALLER  a command that gets the finished uninstaller before it is packed
;   VERSION, VERSION_NUMBERS
; Exit codes: Liesmich.txt has them all.
Unicode true
SetCompressor /SOLID lzma
; The same files give the same installer, whenever they were made.
SetDateSave off
AllowSkipFiles off
RequestExecutionLevel highest

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh
!include WinVer.nsh

Name "Quillmore ${VERSION}"
Caption "Installation von Quillmore ${VERSION}"
UninstallCaption "Quillmore entfernen"
BrandingText " "
; The usual captions are wider than the buttons.
DetailsButtonText "&Details"
UninstallButtonText "&Entfernen"
OutFile "${OUTPUT}"
; Whoever looks for a folder gets one of his own in it. Not a folder by itself: none is named yet.
!define UNNAMED "-\Quillmore"
InstallDir "${UNNAMED}"
!uninstfinalize '"${UNINSTALLER}" "%1"' = 0

VIProductVersion "${VERSION_NUMBERS}"
VIFileVersion "${VERSION_NUMBERS}"
VIAddVersionKey /LANG=1031 "CompanyName" "Quillmore"
VIAddVersionKey /LANG=1031 "FileDescription" "Installation von Quillmore"
VIAddVersionKey /LANG=1031 "FileVersion" "${VERSION_NUMBERS}"
VIAddVersionKey /LANG=1031 "LegalCopyright" "Copyright (c) 2026 Quillmore contributors"
VIAddVersionKey /LANG=1031 "ProductName" "Quillmore"
VIAddVersionKey /LANG=1031 "ProductVersion" "${VERSION_NUMBERS}"

!define ENTRIES "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define ENTRY "${ENTRIES}\Quillmore"
!define RUN "Software\Microsoft\Windows\CurrentVersion\Run"
!define STORE "Software\VB and VBA Program Settings"
!define DRIVES_STORE "${STORE}\dmVDriveC"
; Message boxes of the installer and of the uninstaller.
!define TITLE "Quillmore"

!define CANCELLED 1
!define NOT_WRITTEN 2
!define NOT_XP 3
!define RUNNING 4
!define NO_RIGHTS 5
!define WRONG_FOLDER 6

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
; High contrast is for all of a window.
!define MUI_BGCOLOR "SYSCLR:Window"
!define MUI_TEXTCOLOR "SYSCLR:WindowText"
!define MUI_ABORTWARNING
!define MUI_CUSTOMFUNCTION_ABORT Cancelled
!define MUI_CUSTOMFUNCTION_UNABORT un.Cancelled

Page custom AskForWhom TakeForWhom
!define MUI_PAGE_HEADER_TEXT "Wohin?"
!define MUI_PAGE_HEADER_SUBTEXT "In welchen Ordner Quillmore ${VERSION} installiert wird."
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipKnownFolder
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE TakeFolder
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Ordner"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Quillmore legt sein Fehlerprotokoll neben dem Programm ab. Der Ordner sollte deshalb einer sein, in den Sie schreiben dürfen."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
Page custom ShowDone TakeDone

UninstPage custom un.AskWhatElse un.TakeWhatElse
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "German"

LangString ^DirBrowseText ${LANG_GERMAN} "Wählen Sie den Ordner, in dem der Ordner „Quillmore“ liegen soll:"

; "all" or "user", and whether the choice is left; the folder that the command line names, and the
; one that an earlier version lies in, or nothing.
Var kind
Var admin
Var named
Var earlier
; Whether none of our files was in the folder before: "yes" or "no".
Var fresh
Var boxAll
Var boxUser
Var boxStart
Var boxManual
; Of the uninstaller: what there is, and what is to go with it.
Var boxStore
Var boxLog
Var boxRun
Var dropStore
Var dropLog
Var dropRun
Var row

Function Cancelled
  SetErrorLevel ${CANCELLED}
FunctionEnd

Function un.Cancelled
  SetErrorLevel ${CANCELLED}
FunctionEnd

!macro Common prefix

; Whether whoever runs this may install for all users: "yes" or "no".
Function ${prefix}AskRights
  UserInfo::GetAccountType
  Pop $0
  StrCpy $admin no
  ${If} $0 == "Admin"
    StrCpy $admin yes
  ${EndIf}
FunctionEnd

Function ${prefix}SetKind
  ${If} $kind == all
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
FunctionEnd

; Whether the folders in $0 and $1 are the same, also by their short names: "yes" or "no" in $R1. One
; that is not there is no other's.
Function ${prefix}CompareFolders
  StrCpy $R1 no
  GetFullPathName /SHORT $0 $0
  GetFullPathName /SHORT $1 $1
  ${If} $0 != ""
  ${AndIf} $0 == $1
    StrCpy $R1 yes
  ${EndIf}
FunctionEnd

; A program that runs cannot be opened for writing, whoever has started it.
Function ${prefix}WaitForProgram
  Push "Quillmore.exe"
  Call ${prefix}WaitForFile
  Push "QuillmoreCmd.exe"
  Call ${prefix}WaitForFile
FunctionEnd

Function ${prefix}WaitForFile
  Pop $0
  ${DoWhile} ${FileExists} "$INSTDIR\$0"
    SetFileAttributes "$INSTDIR\$0" NORMAL
    ClearErrors
    FileOpen $1 "$INSTDIR\$0" a
    ${IfNot} ${Errors}
      FileClose $1
      Return
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 läuft noch oder ist gesperrt.$\r$\n$\r$\nBeenden Sie das Programm, auch wenn es nur als Symbol neben der Uhr liegt, und wählen Sie dann „Wiederholen“." /SD IDCANCEL IDCANCEL`
      SetErrorLevel ${RUNNING}
      Quit
    ${EndIf}
  ${Loop}
FunctionEnd

!macroend
!insertmacro Common ""
!insertmacro Common "un."

; --- Installing ------------------------------------------------------------------------------

; Of all that is called as ours is.
!macro ForEachFile what
  !insertmacro ${what} "Quillmore.exe"
  !insertmacro ${what} "QuillmoreCmd.exe"
  !insertmacro ${what} "Anleitung.mht"
  !insertmacro ${what} "Liesmich.txt"
  !insertmacro ${what} "Lizenz.txt"
  !insertmacro ${what} "Sicherung.cmd"
  !insertmacro ${what} "Entfernen.exe"
!macroend

!macro SeeFile name
  ${If} ${FileExists} "$INSTDIR\${name}"
    StrCpy $fresh no
  ${EndIf}
!macroend

!macro DeleteFile name
  Delete "$INSTDIR\${name}"
!macroend

; The folder of an earlier version of this kind, or nothing. What its entry says twice is believed.
Function FindEarlier
  ${If} $kind == all
    ReadRegStr $earlier HKLM "${ENTRY}" "InstallLocation"
    ReadRegStr $0 HKLM "${ENTRY}" "UninstallString"
  ${Else}
    ReadRegStr $earlier HKCU "${ENTRY}" "InstallLocation"
    ReadRegStr $0 HKCU "${ENTRY}" "UninstallString"
  ${EndIf}
  StrLen $1 $earlier
  ${If} $1 < 4
  ${OrIf} $0 != '"$earlier\Entfernen.exe"'
  ${OrIfNot} ${FileExists} "$earlier\Entfernen.exe"
    StrCpy $earlier ""
  ${EndIf}
FunctionEnd

Function TakeKind
  Call SetKind
  Call FindEarlier
  ${If} $earlier != ""
    StrCpy $INSTDIR $earlier
  ${ElseIf} $INSTDIR != ""
  ${ElseIf} $named != ""
    StrCpy $INSTDIR $named
  ${ElseIf} $kind == all
    StrCpy $INSTDIR "$PROGRAMFILES\Quillmore"
  ${Else}
    StrCpy $INSTDIR "$LOCALAPPDATA\Quillmore"
  ${EndIf}
FunctionEnd

; Nothing that somebody else keeps in the folder may be overwritten, or go with us one day; and of
; two installations in one folder, removing one would take the other's files. Why the folder cannot
; be taken, or nothing, in $R0.
Function FindObstacle
  StrCpy $R0 ""
  StrCpy $fresh yes
  !insertmacro ForEachFile SeeFile
  ${If} $fresh == yes
  ${OrIf} $INSTDIR == $earlier
    Return
  ${EndIf}
  ${If} $kind == all
    ReadRegStr $0 HKCU "${ENTRY}" "InstallLocation"
    StrCpy $2 "nur für Sie"
  ${Else}
    ReadRegStr $0 HKLM "${ENTRY}" "InstallLocation"
    StrCpy $2 "für alle Benutzer"
  ${EndIf}
  StrCpy $1 $INSTDIR
  Call CompareFolders
  ${If} $R1 == yes
    StrCpy $R0 "Hier ist Quillmore schon $2 installiert."
  ; Whoever unpacked the archive there wants to have it installed there.
  ${ElseIfNot} ${FileExists} "$INSTDIR\Quillmore.exe"
    StrCpy $R0 "Hier liegen andere Dateien, die so heißen$\r$\nwie die von Quillmore; sie würden überschrieben."
  ${EndIf}
FunctionEnd

Function .onInit
  ${If} $INSTDIR == "${UNNAMED}"
    StrCpy $INSTDIR ""
  ${EndIf}
  StrCpy $named $INSTDIR
  ${GetParameters} $R0
  ${WinVerGetBuild} $0
  ${If} $0 != 2600
    ClearErrors
    ${GetOptions} $R0 "/ANDERESWINDOWS" $1
    ${If} ${Errors}
      ${If} ${Cmd} `MessageBox MB_YESNO|MB_DEFBUTTON2|MB_ICONEXCLAMATION "Quillmore ist NUR für Windows XP (Build 2600) gemacht. Dieses Windows ist ein anderes (Build $0); hier startet das Programm nicht, und seine Einstellungen wären falsch.$\r$\n$\r$\nTrotzdem installieren?" /SD IDNO IDNO`
        SetErrorLevel ${NOT_XP}
        Quit
      ${EndIf}
    ${EndIf}
  ${EndIf}

  Call AskRights
  ClearErrors
  ${GetOptions} $R0 "/EINBENUTZER" $1
  ${If} ${Errors}
  ${AndIf} $admin == yes
    ; Who has it for himself alone keeps it so.
    StrCpy $kind all
    Call FindEarlier
    ${If} $earlier == ""
      StrCpy $kind user
      Call FindEarlier
      ${If} $earlier == ""
        StrCpy $kind all
      ${EndIf}
    ${EndIf}
  ${Else}
    StrCpy $kind user
  ${EndIf}
  ${If} ${Silent}
    Call TakeKind
    Call FindObstacle
    ${If} $R0 != ""
      SetErrorLevel ${WRONG_FOLDER}
      Quit
    ${EndIf}
  ${EndIf}
FunctionEnd

; What there is of the kind in $kind already, in $R0.
Function DescribeEarlier
  StrCpy $R0 ""
  Call FindEarlier
  ${If} $earlier == ""
    Return
  ${EndIf}
  ${If} $kind == all
    ReadRegStr $0 HKLM "${ENTRY}" "DisplayVersion"
    StrCpy $R0 "$\r$\nFür alle Benutzer: $0 in $earlier"
  ${Else}
    ReadRegStr $0 HKCU "${ENTRY}" "DisplayVersion"
    StrCpy $R0 "$\r$\nNur für Sie: $0 in $earlier"
  ${EndIf}
FunctionEnd

Function AskForWhom
  !insertmacro MUI_HEADER_TEXT "Für wen?" "Für wen Quillmore ${VERSION} installiert wird."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 28u "Quillmore stellt Windows XP ein und pflegt es. Es wird in einen Ordner kopiert und ins Startmenü eingetragen; an Windows selbst ändert sich dadurch nichts."
  Pop $0
  ${NSD_CreateRadioButton} 0 36u 100% 12u "Für &alle Benutzer dieses Computers"
  Pop $boxAll
  ${NSD_CreateRadioButton} 0 52u 100% 12u "Nur für &mich"
  Pop $boxUser
  ${If} $kind == all
    ${NSD_Check} $boxAll
  ${Else}
    ${NSD_Check} $boxUser
  ${EndIf}
  ${If} $admin != yes
    EnableWindow $boxAll 0
    ${NSD_CreateLabel} 0 76u 100% 28u "Für alle Benutzer kann nur installieren, wer Administratorrechte hat. Auch die meisten Einstellungen von Quillmore verlangen sie."
    Pop $0
  ${EndIf}
  Push $kind
  StrCpy $kind all
  Call DescribeEarlier
  StrCpy $R1 $R0
  StrCpy $kind user
  Call DescribeEarlier
  StrCpy $R1 "$R1$R0"
  Pop $kind
  ${If} $R1 != ""
    nsDialogs::CreateControl ${__NSD_Label_CLASS} ${__NSD_Label_STYLE}|${SS_NOPREFIX} ${__NSD_Label_EXSTYLE} 0 106u 100% 34u "Schon installiert (bei gleicher Wahl ersetzt „Weiter“ es sogleich):$R1"
    Pop $0
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function TakeForWhom
  ${NSD_GetState} $boxAll $0
  StrCpy $1 $kind
  StrCpy $kind user
  ${If} $0 == ${BST_CHECKED}
    StrCpy $kind all
  ${EndIf}
  ; Another kind has another folder, unless the command line named one.
  ${If} $1 != $kind
    StrCpy $INSTDIR ""
  ${EndIf}
  Call TakeKind
FunctionEnd

; A new version goes where the earlier one is.
Function SkipKnownFolder
  ${If} $earlier != ""
    Call FindObstacle
    Abort
  ${EndIf}
FunctionEnd

Function TakeFolder
  Call FindObstacle
  ${If} $R0 != ""
    MessageBox MB_OK|MB_ICONEXCLAMATION "$INSTDIR$\r$\n$\r$\n$R0$\r$\n$\r$\nWählen Sie einen anderen Ordner."
    Abort
  ${EndIf}
FunctionEnd

Section "Quillmore" program
  AddSize 90
  Call WaitForProgram
  SetOutPath "$INSTDIR"
  File "${FILES}\Quillmore.exe"
  File "${FILES}\QuillmoreCmd.exe"
  File "${FILES}\Anleitung.mht"
  File "${FILES}\Liesmich.txt"
  File "${FILES}\Lizenz.txt"
  File "${FILES}\Sicherung.cmd"
  ClearErrors
  WriteUninstaller "$INSTDIR\Entfernen.exe"

  CreateDirectory "$SMPROGRAMS\Quillmore"
  CreateShortcut "$SMPROGRAMS\Quillmore\Quillmore.lnk" "$INSTDIR\Quillmore.exe" "" "" "" "" "" "Windows XP einstellen und pflegen"
  CreateShortcut "$SMPROGRAMS\Quillmore\Anleitung.lnk" "$INSTDIR\Anleitung.mht" "" "" "" "" "" "Die Anleitung zu Quillmore"
  CreateShortcut "$SMPROGRAMS\Quillmore\Sicherung der Einstellungen.lnk" "$INSTDIR\Sicherung.cmd" "" "$INSTDIR\QuillmoreCmd.exe" 0 "" "" "Sichert in den Ordner „Eigene Dateien“, was Quillmore ändern kann"

  SectionGetSize ${program} $0
  WriteRegStr SHCTX "${ENTRY}" "DisplayName" "Quillmore ${VERSION}"
  WriteRegStr SHCTX "${ENTRY}" "DisplayIcon" "$INSTDIR\Quillmore.exe,0"
  WriteRegStr SHCTX "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegDWORD SHCTX "${ENTRY}" "EstimatedSize" $0
  WriteRegStr SHCTX "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegDWORD SHCTX "${ENTRY}" "NoModify" 1
  WriteRegDWORD SHCTX "${ENTRY}" "NoRepair" 1
  WriteRegStr SHCTX "${ENTRY}" "Publisher" "Quillmore"
  WriteRegStr SHCTX "${ENTRY}" "QuietUninstallString" '"$INSTDIR\Entfernen.exe" /S'
  WriteRegStr SHCTX "${ENTRY}" "UninstallString" '"$INSTDIR\Entfernen.exe"'
  ${If} ${Errors}
    SetErrorLevel ${NOT_WRITTEN}
    MessageBox MB_OK|MB_ICONSTOP "Nicht alles ließ sich schreiben. Vielleicht fehlen die Rechte, oder die Festplatte ist voll." /SD IDOK
    Abort "Nicht alles ließ sich schreiben."
  ${EndIf}
SectionEnd

; Of what could not become whole nothing stays, unless there was something before.
Function .onInstFailed
  ${If} $fresh == yes
    !insertmacro ForEachFile DeleteFile
    Delete "$SMPROGRAMS\Quillmore\Quillmore.lnk"
    Delete "$SMPROGRAMS\Quillmore\Anleitung.lnk"
    Delete "$SMPROGRAMS\Quillmore\Sicherung der Einstellungen.lnk"
    RMDir "$SMPROGRAMS\Quillmore"
    ReadRegStr $0 SHCTX "${ENTRY}" "InstallLocation"
    ${If} $0 == $INSTDIR
      DeleteRegKey SHCTX "${ENTRY}"
    ${EndIf}
    ${If} $kind == user
      DeleteRegKey /ifempty HKCU "${ENTRIES}"
    ${EndIf}
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
  ${EndIf}
FunctionEnd

Function ShowDone
  !insertmacro MUI_HEADER_TEXT "Fertig" "Quillmore ${VERSION} ist installiert."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 36u "Im Startmenü finden Sie unter „Quillmore“ das Programm, die Anleitung und eine Sicherung der Einstellungen. Machen Sie eine Sicherung, bevor Sie zum ersten Mal etwas übernehmen."
  Pop $0
  ${NSD_CreateCheckbox} 0 44u 100% 12u "Quillmore jetzt &starten"
  Pop $boxStart
  ${NSD_Check} $boxStart
  ${NSD_CreateCheckbox} 0 60u 100% 12u "&Anleitung öffnen"
  Pop $boxManual
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:&Fertig"
  GetDlgItem $0 $HWNDPARENT 2
  EnableWindow $0 0
  GetDlgItem $0 $HWNDPARENT 3
  EnableWindow $0 0
  nsDialogs::Show
FunctionEnd

Function TakeDone
  ${NSD_GetState} $boxManual $0
  ${If} $0 == ${BST_CHECKED}
    ExecShell "open" "$INSTDIR\Anleitung.mht"
  ${EndIf}
  ${NSD_GetState} $boxStart $0
  ${If} $0 == ${BST_CHECKED}
    SetOutPath "$INSTDIR"
    Exec '"$INSTDIR\Quillmore.exe"'
  ${EndIf}
FunctionEnd

; --- Removing --------------------------------------------------------------------------------

; Only of the folder that an entry names is it known that what lies there is ours.
Function un.onInit
  StrCpy $kind user
  ReadRegStr $0 HKCU "${ENTRY}" "InstallLocation"
  StrCpy $1 $INSTDIR
  Call un.CompareFolders
  ${If} $R1 == no
    StrCpy $kind all
    ReadRegStr $0 HKLM "${ENTRY}" "InstallLocation"
    StrCpy $1 $INSTDIR
    Call un.CompareFolders
  ${EndIf}
  ${If} $R1 == no
    MessageBox MB_OK|MB_ICONSTOP "In diesem Ordner ist Quillmore nicht installiert,$\r$\nweder für alle Benutzer noch für Sie:$\r$\n$\r$\n$INSTDIR$\r$\n$\r$\nEntfernt wird nichts." /SD IDOK
    SetErrorLevel ${WRONG_FOLDER}
    Quit
  ${EndIf}
  Call un.SetKind
  Call un.AskRights
  ${If} $kind == all
  ${AndIf} $admin != yes
    MessageBox MB_OK|MB_ICONSTOP "Quillmore ist für alle Benutzer installiert. Entfernen kann es nur, wer Administratorrechte hat." /SD IDOK
    SetErrorLevel ${NO_RIGHTS}
    Quit
  ${EndIf}

  ; The entry that starts what is going to be gone goes with it, settings and log only on request.
  StrCpy $dropStore 0
  StrCpy $dropLog 0
  StrCpy $dropRun 1
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/ALLES" $1
  ${IfNot} ${Errors}
    StrCpy $dropStore 1
    StrCpy $dropLog 1
  ${EndIf}
FunctionEnd

; Whether the program starts with Windows from this folder: 1 or 0 in $R1.
Function un.FindRun
  StrCpy $R1 0
  ReadRegStr $0 HKCU "${RUN}" "Quillmore"
  ${If} $0 == '"$INSTDIR\Quillmore.exe"'
    StrCpy $R1 1
  ${EndIf}
FunctionEnd

; Whether the user has settings: 1 or 0 in $R1.
Function un.FindStore
  StrCpy $R1 0
  EnumRegKey $0 HKCU "${STORE}\Quillmore" 0
  EnumRegKey $1 HKCU "${DRIVES_STORE}" 0
  ${If} "$0$1" != ""
    StrCpy $R1 1
  ${EndIf}
FunctionEnd

!macro AskBox box state caption
  ${NSD_CreateCheckbox} 0 "$rowu" 100% 12u "${caption}"
  Pop ${box}
  ${If} ${state} == 1
    ${NSD_Check} ${box}
  ${EndIf}
  IntOp $row $row + 16
!macroend

!macro TakeBox box state
  ${If} ${box} != ""
    ${NSD_GetState} ${box} ${state}
  ${EndIf}
!macroend

Function un.AskWhatElse
  !insertmacro MUI_HEADER_TEXT "Quillmore entfernen" "Quillmore wird von diesem Computer entfernt."
  StrCpy $boxStore ""
  StrCpy $boxLog ""
  StrCpy $boxRun ""
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 36u "Entfernt werden das Programm und seine Einträge im Startmenü und unter „Software“. Was Quillmore an Windows eingestellt hat, bleibt eingestellt. Andere Dateien im Ordner bleiben."
  Pop $0
  ; As it is called, also with an "&".
  nsDialogs::CreateControl ${__NSD_Label_CLASS} ${__NSD_Label_STYLE}|${SS_NOPREFIX} ${__NSD_Label_EXSTYLE} 0 38u 100% 18u "$INSTDIR"
  Pop $0
  StrCpy $row 76
  Call un.FindRun
  ${If} $R1 == 1
    !insertmacro AskBox $boxRun $dropRun "Den Eintrag im &Autostart entfernen"
  ${EndIf}
  Call un.FindStore
  ${If} $R1 == 1
    !insertmacro AskBox $boxStore $dropStore "Die &Programmoptionen entfernen, die Quillmore sich für Sie gemerkt hat"
  ${EndIf}
  ${If} ${FileExists} "$INSTDIR\Quillmore.log"
    !insertmacro AskBox $boxLog $dropLog "Das &Fehlerprotokoll Quillmore.log löschen"
  ${EndIf}
  ${If} $row > 76
    ${NSD_CreateLabel} 0 60u 100% 12u "Außerdem:"
    Pop $0
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function un.TakeWhatElse
  !insertmacro TakeBox $boxStore $dropStore
  !insertmacro TakeBox $boxLog $dropLog
  !insertmacro TakeBox $boxRun $dropRun
FunctionEnd

; With an error stops while there is still a way to try again.
Function un.StopIfLocked
  ${IfNot} ${Errors}
    Return
  ${EndIf}
  SetErrorLevel ${NOT_WRITTEN}
  MessageBox MB_OK|MB_ICONSTOP "Nicht alles ließ sich entfernen.$\r$\nVielleicht ist eine Datei noch geöffnet.$\r$\n$\r$\nQuillmore bleibt unter „Software“ eingetragen; versuchen Sie es später noch einmal." /SD IDOK
  Abort "Nicht alles ließ sich entfernen."
FunctionEnd

Section "Uninstall"
  Call un.WaitForProgram
  ClearErrors
  Delete "$INSTDIR\Quillmore.exe"
  Delete "$INSTDIR\QuillmoreCmd.exe"
  Delete "$INSTDIR\Anleitung.mht"
  Delete "$INSTDIR\Liesmich.txt"
  Delete "$INSTDIR\Lizenz.txt"
  Delete "$INSTDIR\Sicherung.cmd"
  Delete "$SMPROGRAMS\Quillmore\Quillmore.lnk"
  Delete "$SMPROGRAMS\Quillmore\Anleitung.lnk"
  Delete "$SMPROGRAMS\Quillmore\Sicherung der Einstellungen.lnk"
  Call un.StopIfLocked
  RMDir "$SMPROGRAMS\Quillmore"

  Call un.FindRun
  ${If} $R1 == 1
  ${AndIf} $dropRun == 1
    DeleteRegValue HKCU "${RUN}" "Quillmore"
  ${EndIf}
  ${If} $dropStore == 1
    DeleteRegKey HKCU "${STORE}\Quillmore"
    ; The dialog of the drives keeps its own apart.
    DeleteRegKey HKCU "${DRIVES_STORE}"
    DeleteRegKey /ifempty HKCU "${STORE}"
  ${EndIf}
  ${If} $dropLog == 1
    ClearErrors
    Delete "$INSTDIR\Quillmore.log"
    Call un.StopIfLocked
  ${EndIf}

  ; Started by "_?=" the uninstaller runs where it lies and cannot delete itself.
  ${If} $EXEPATH != "$INSTDIR\Entfernen.exe"
    ClearErrors
    Delete "$INSTDIR\Entfernen.exe"
    Call un.StopIfLocked
  ${EndIf}
  DeleteRegKey SHCTX "${ENTRY}"
  ${If} $kind == user
    ; Of a user who has nothing else of his own the list was not there before.
    DeleteRegKey /ifempty HKCU "${ENTRIES}"
  ${EndIf}
  ; Only an empty folder goes.
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd
