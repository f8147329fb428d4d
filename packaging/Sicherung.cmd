@echo off
setlocal
title Sicherung der Einstellungen
rem Der Ordner "Eigene Dateien", wo immer er liegt.
set "Ordner="
for /f "tokens=1,2,*" %%a in ('reg query "HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders" /v Personal') do if "%%b"=="REG_SZ" set "Ordner=%%c"
if not defined Ordner set "Ordner=%USERPROFILE%"

rem Eine Sicherung vom selben Tag bleibt.
set "Tag=%DATE:/=-%"
set "Datei=%Ordner%\Quillmore-Sicherung %Tag%.reg"
set Nummer=1
:frei
if not exist "%Datei%" goto sichern
set /a Nummer=Nummer+1
set "Datei=%Ordner%\Quillmore-Sicherung %Tag% (%Nummer%).reg"
goto frei

:sichern
echo Quillmore sichert die Einstellungen von Windows, die es ändern kann ...
echo.
"%~dp0QuillmoreCmd.exe" backup "%Datei%"
set Ergebnis=%ERRORLEVEL%
echo.
if not "%Ergebnis%"=="0" goto misslungen
echo Die Sicherung ist fertig. Sie liegt hier:
echo.
echo   "%Datei%"
echo.
echo So holen Sie in der Eingabeaufforderung alles wieder zurück:
echo.
echo   "%~dp0QuillmoreCmd.exe" restore "%Datei%"
echo.
echo Die Sicherung kann ein Kennwort der automatischen Anmeldung enthalten.
echo Geben Sie sie nicht aus der Hand.
goto ende

:misslungen
if exist "%Datei%" goto teilweise
echo Die Sicherung ist nicht gelungen. Der Grund steht oben.
goto ende

:teilweise
echo Nicht alles ließ sich sichern; was fehlt und warum, steht oben. Der Rest liegt
echo hier:
echo.
echo   "%Datei%"
echo.
echo Auch er kann ein Kennwort der automatischen Anmeldung enthalten.
echo Geben Sie die Datei nicht aus der Hand.

:ende
echo.
pause
exit /b %Ergebnis%
