#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

// Every text of a resource library once, in this order: dialogs with their lists, menus, strings.
// `createDialog` creates the dialog with an id as a child of a window, or gives null.
std::vector<std::wstring> CollectTexts(
    HMODULE library, const std::function<HWND(unsigned id, HWND parent)>& createDialog);
