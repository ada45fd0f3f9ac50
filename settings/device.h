#pragma once

// Whether the device has a phone. Asked once; the answer holds for the process.
bool IsPhoneDevice();

// Whether the finance program, whose scheduled transactions the diary can show, is installed.
bool IsFinanceProgramPresent();

// Whether the device is a Pocket PC with system version 5 or later, whose databases are of the
// newer kind. Asked once; the answer holds for the process.
bool IsNewerDatabasePlatform();
