#pragma once

// Whether the device has a phone. Asked once; the answer holds for the process.
bool IsPhoneDevice();

// Whether the finance program, whose scheduled transactions the diary can show, is installed.
bool IsFinanceProgramPresent();
