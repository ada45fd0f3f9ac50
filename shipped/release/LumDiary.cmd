@echo off
rem Makes a simulated device beside this file, gives it a drive of its own, and opens the program on it. A language such
rem as fr behind the command is that of the program, which the device keeps.
rem Paths stand in quotes and never behind "call" or between brackets, where &, ^ and ) in them would count.
setlocal EnableExtensions DisableDelayedExpansion
title Lum Diary
set "package=%~dp0"
set "program=%package%program"
set "device=%package%device"
set "installed=%device%\Program Files\Lum Diary"
if not exist "%program%\DiarySettings.exe" goto incomplete
if not "%~1"=="" if not "%~1"=="en" if not exist "%package%translations\LumDiary_%~1.txt" goto no_language

if not exist "%device%\" md "%device%" 2>nul
rem A file that no other folder has tells which drive is this device: one of an earlier start, or a new one.
set "mark=found-%RANDOM%%RANDOM%.tmp"
type nul >"%device%\%mark%" 2>nul
if not exist "%device%\%mark%" goto read_only
set "drive="
set "letters=P Q R S T U V W X Y Z O N M L K J I H G F E D"
for %%L in (%letters%) do if exist %%L:\%mark% set "drive=%%L:"
for %%L in (%letters%) do call :take_drive %%L
del "%device%\%mark%"
if not defined drive goto no_drive
cd /d %drive%\

rem A device that is there already is opened as it is.
"%program%\device_send.exe" today
if %errorlevel%==0 goto open
xcopy "%package%files" "%device%" /e /h /q /y >nul
if not %errorlevel%==0 goto not_furnished
if not exist device.ini copy "%program%\device.ini" device.ini >nul
if "%~1"=="" goto furnish
if exist "%installed%\LumDiary_en.txt" move /y "%installed%\LumDiary_en.txt" "%installed%\LumDiary_en.txt.before" >nul
echo %~1>.language
:furnish
set "language=en"
if exist .language set /p language=<.language
rem Whatever the language, the program reads LumDiary_en.txt.
if exist "%package%translations\LumDiary_%language%.txt" copy /y "%package%translations\LumDiary_%language%.txt" "%installed%\LumDiary_en.txt" >nul
if exist "%package%translations\LumDiary_%language%.htm" copy /y "%package%translations\LumDiary_%language%.htm" "%installed%\LumDiary.htm" >nul
"%program%\devicectl.exe" set "HKLM\SOFTWARE\Apps\Lum Diary" InstallDir string "\Program Files\Lum Diary"
if not %errorlevel%==0 goto not_furnished
"%program%\devicectl.exe" set HKLM\Drivers\Display\GPE LogicalPixelsX dword 96
if not %errorlevel%==0 goto not_furnished
"%program%\devicectl.exe" furnish "%program%\owner.txt"
if not %errorlevel%==0 goto not_furnished
"%program%\devicectl.exe" screen 240x320
if not %errorlevel%==0 goto not_furnished
start "" /d %drive%\ "%program%\today.exe"

:open
start "" /d %drive%\ "%program%\DiarySettings.exe"
echo Lum Diary is in the upper left corner of your screen. The device is drive %drive%
echo.
echo Press a key in this window to put the device away. Its settings stay.
:wait
pause >nul
"%program%\device_send.exe" today
if not %errorlevel%==0 goto away
"%program%\device_send.exe" away
if %errorlevel%==0 goto away
echo The program is asking something. Answer it, then press a key here.
goto wait
:away
cd /d "%package%"
subst %drive% /d >nul 2>nul
exit /b 0

:take_drive
if defined drive exit /b
if exist %1:\ exit /b
subst %1: "%device%" >nul 2>nul
if exist %1:\%mark% set "drive=%1:"
exit /b

:incomplete
echo The folder "program" is missing here. Unpack the whole archive, then start LumDiary.cmd from there.
goto failed
:no_language
echo There is no translation %1; see the folder "translations".
goto failed
:read_only
echo Nothing can be written to this folder. Move it, for example to your documents, and start LumDiary.cmd there.
goto failed
:no_drive
echo Windows made no drive of the folder "device". That takes a free drive letter, and a folder on a disk of this PC.
goto failed
:not_furnished
echo The device could not be set up; what is wrong stands above.
cd /d "%package%"
subst %drive% /d >nul 2>nul
:failed
pause
exit /b 1
