#pragma once

#include <windows.h>

#include <string>

// Shows a text in a read-only edit control that explains a page, and makes it behave as a label:
// taps and keys are not for it.
void ShowExplanation(HWND control, const std::wstring& text);
