#pragma once

#include <windows.h>

// Prints tools/diarykit/known_values.inc from the pages' rows and the texts of DiaryRes.Dll.
void PrintValues(HMODULE library);
