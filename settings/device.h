#pragma once

// What the device is, asked once for the process; and which other programs it has, asked anew each
// time, as they come and go while this one runs.

// Whether the device has a phone.
bool IsPhoneDevice();

// Whether the finance program, whose scheduled transactions the diary can show, is installed.
bool IsFinanceProgramPresent();

// Whether another personal information manager is installed that the plug-in can work with.
bool IsAgendaFusionPresent();
bool IsPocketInformantPresent();
bool IsAgendaOnePresent();

// Whether the sibling plug-in that shows the weather is registered with the Today screen.
bool IsWeatherPluginRegistered();

// A Pocket PC of the first kind, with system version 3.
bool IsEarlyPocketPc();

// A Pocket PC whose Today screen has highlight colours of its own, from system version 4.21 on.
bool HasTodayHighlight();

// A Pocket PC with the newer databases, from system version 5 on.
bool IsNewerPocketPc();
