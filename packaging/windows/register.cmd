@echo off
rem Registers Lumenote.dll where it lies: for all users, or for the current one where that is not
rem allowed.      usage: register.cmd [user]     "user" registers for the current user in any case
setlocal
set options=/s
if /i "%~1"=="user" set options=/s /n /i:user
call "%~dp0each-width.cmd" %options%
