@echo off
rem Called by the others: regsvr32 with these options for the DLL of every width that the system runs.
rem Hosts of 32 bits need the DLL of 32 bits, also on a system of 64 bits.
setlocal
set failed=0
set options=%*
set wide=%SystemRoot%\System32
rem A program of 32 bits sees the other folder under that name.
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set wide=%SystemRoot%\Sysnative
set arch=%PROCESSOR_ARCHITECTURE%
if defined PROCESSOR_ARCHITEW6432 set arch=%PROCESSOR_ARCHITEW6432%
if /i "%arch%"=="x86" (
  call :run "%SystemRoot%\System32" x86
) else (
  call :run "%wide%" x64
  if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :run "%SystemRoot%\SysWOW64" x86
)
exit /b %failed%

:run
"%~1\regsvr32.exe" %options% "%~dp0%2\Lumenote.dll"
if errorlevel 1 (
  echo Lumenote.dll %2 : erreur
  set failed=1
) else (
  echo Lumenote.dll %2 : OK
)
exit /b 0
