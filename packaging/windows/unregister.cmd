@echo off
rem Removes what register.cmd wrote; the files stay.      usage: unregister.cmd
call "%~dp0each-width.cmd" /s /u
