#pragma once

#include <windows.h>

// Trials of how a program takes failures, set up in the device's registry under
// HKEY_LOCAL_MACHINE\Software\Stand-in\Messaging. The values, all numbers, are read when the first
// of a program's sessions begins; without the key nothing fails and nothing is reported:
//
//   FailCall    the call that fails, counted from 1 on; FailWith is what it returns (E_FAIL)
//   TableRows   the rows after which every table ends
//   RowColumns  the columns that rows have at most
//   NoSubtree   not 0: stores lack PR_IPM_SUBTREE_ENTRYID
//   NullEntry   not 0: an identifier that is null opens a store's root folder
//
// When the last session has ended, and at each change after that, these are written: Calls, and of
// what is still there Objects, RowSets and Buffers; WrongFrees counts frees of what is no buffer.
namespace trials {

void Begin();
void End();

// To be asked at the beginning of each call: whether it shall fail.
HRESULT NextCall();
ULONG TableRows();
ULONG RowColumns();
bool NoSubtree();
bool NullEntry();

enum Counter { kObjects, kRowSets, kBuffers, kWrongFrees, kCounterCount };
void Count(Counter counter, LONG change);

// An object that is counted for as long as it lives.
class Counted {
  public:
    Counted() { Count(kObjects, 1); }
    ~Counted() { Count(kObjects, -1); }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
};

}  // namespace trials
