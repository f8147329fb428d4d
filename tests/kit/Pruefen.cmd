@echo off
rem Prueft Quillmore auf diesem Rechner; Liesmich.txt sagt, was dabei geschieht und was nicht.
if exist "%~dp0Teile\Pruefung.exe" goto run
echo Bitte zuerst das ganze Archiv entpacken und Pruefen.cmd aus dem neuen Ordner starten.
pause
exit /b 2
:run
"%~dp0Teile\Pruefung.exe" %1
if "%1"=="" pause
