#pragma once

#include <windows.h>

// Makes calls of a kind fail, to see what a program does then. The environment variable
// POCKETPC_FAIL of the program that shall see it says which, by words such as
//
//   files:7       the seventh call of the kind "files"
//   space:3-      the third call that needs space and all after it: the device is full
//   none          none; the calls are counted all the same
//
// Counts and limits lie in memory named "PocketPC.Calls.<process id>", where another program may
// read and change them meanwhile. Without the variable there is no such memory.
namespace failing {

// Calls that need space count twice: by what they are, and as kSpace.
enum Kind { kRegistry, kFiles, kDatabases, kDrawing, kMemory, kMessaging, kSpace, kKindCount };
inline constexpr const wchar_t* kKindNames[kKindCount] = {
    L"registry", L"files", L"databases", L"drawing", L"memory", L"messaging", L"space"};

struct Calls {
    LONG made[kKindCount];
    LONG first[kKindCount], last[kKindCount];  // that fail, counted from 1; 0 when none does
};

// The memory of a process; null when it has none. For as long as this process lives.
Calls* CallsOf(DWORD process);

// To be asked once by each call: whether it shall fail. With an error that is the last one then.
bool Fails(Kind kind, DWORD error = ERROR_SUCCESS);

// For what may fail by itself or for want of space: the error, or ERROR_SUCCESS.
DWORD StoringError(Kind kind, DWORD otherError);

}  // namespace failing
