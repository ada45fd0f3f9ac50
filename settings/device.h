#pragma once

// Whether the device has a phone. Asked once; the answer holds for the process.
bool IsPhoneDevice();

// Whether the finance program, whose scheduled transactions the diary can show, is installed.
bool IsFinanceProgramPresent();

// Whether another personal information manager is installed that the plug-in can work with.
bool IsAgendaFusionPresent();
bool IsPocketInformantPresent();
bool IsAgendaOnePresent();
