#include "controls/explanation.h"

namespace {

LRESULT CALLBACK LabelProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    switch (message) {
        case WM_NCHITTEST: return HTTRANSPARENT;  // The page is tapped.
        case WM_GETDLGCODE: return DLGC_STATIC;   // Return and Escape are the sheet's.
    }
    return CallWindowProcW(procedure, hwnd, message, wParam, lParam);
}

}  // namespace

void ShowExplanation(HWND control, const std::wstring& text) {
    SetWindowTextW(control, text.c_str());
    SetWindowLongPtrW(
        control, GWLP_USERDATA,
        SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(LabelProcedure)));
}
