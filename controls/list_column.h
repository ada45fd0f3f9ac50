// The only column of a list view that shows details.
#pragma once

#include <windows.h>

#include <commctrl.h>

inline void AddColumn(HWND list) {
    LVCOLUMNW column = {};
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
}

// As wide as the list, beside the scroll bar if it has one now.
inline void FitColumn(HWND list) {
    RECT area;
    GetClientRect(list, &area);
    SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, area.right);
}
