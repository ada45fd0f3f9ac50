#pragma once

#include <windows.h>

#include <string>

// What this device is, read once from \device.ini at the root of the current drive.
struct Device {
    std::wstring hive = L"Default";             // the name of its registry
    DWORD major = 5, minor = 2, build = 19208;  // of the operating system
    std::wstring platform = L"PocketPC";
};

const Device& ThisDevice();

// Whether \device.ini makes a record's own identifier a number; read anew by each call.
bool RecordIdentifiersAreNumbers();
