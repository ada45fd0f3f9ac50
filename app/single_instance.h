#pragma once

#include <windows.h>

#include <optional>

// Takes the mutex `className` for the life of the process. No value: this instance may run. A value
// is the code with which it ends: 0 when another instance was brought to the front, else a failure.
std::optional<HRESULT> EndsBecauseOfOtherInstance(const wchar_t* className);
