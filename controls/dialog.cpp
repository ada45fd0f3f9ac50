#include "controls/dialog.h"

#include <prsht.h>

namespace {

// A property page gets its record, any other dialog the object itself. A record begins with its
// size.
Dialog* ObjectOf(HWND hwnd, LPARAM parameter) {
    const bool isPage = (GetWindowLongW(hwnd, GWL_STYLE) & WS_CHILD) != 0;
    if (!isPage) return reinterpret_cast<Dialog*>(parameter);
    return reinterpret_cast<Dialog*>(reinterpret_cast<const PROPSHEETPAGEW*>(parameter)->lParam);
}

}  // namespace

INT_PTR CALLBACK Dialog::DialogProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        if (message == WM_INITDIALOG && lParam) {
            Dialog* const created = ObjectOf(hwnd, lParam);
            created->hwnd_ = hwnd;
            SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
            return created->OnInitDialog();
        }
        Dialog* const dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
        if (!dialog) return FALSE;
        if (message == WM_NCDESTROY) {
            SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
            dialog->hwnd_ = nullptr;
            return FALSE;
        }
        return dialog->OnMessage(message, wParam, lParam).value_or(FALSE);
    } catch (...) {  // Out of memory: the message is left to the system.
        return FALSE;
    }
}

INT_PTR Dialog::Answer(LRESULT result) const {
    SetWindowLongPtrW(hwnd_, DWLP_MSGRESULT, result);
    return TRUE;
}
