@echo off
rem Prüft Quillmore auf diesem Rechner; Liesmich.txt sagt, was dabei geschieht und was nicht.
"%~dp0Teile\Pruefung.exe" %1
if "%1"=="" pause
