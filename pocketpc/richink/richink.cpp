#include "pocketpc/include/richink.h"

namespace {

// Loaded with the first control: it brings two more libraries, which few programs' first window
// needs.
WNDPROC RichEditProcedure() {
    const HMODULE library = LoadLibraryW(L"riched20.dll");
    WNDCLASSW windowClass = {};
    const bool known = library && GetClassInfoW(library, L"RichEdit20W", &windowClass);
    return known ? windowClass.lpfnWndProc : DefWindowProcW;
}

// Sees a window's first message and leaves the window to the rich edit control.
LRESULT CALLBACK FirstProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC procedure = RichEditProcedure();
    SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return CallWindowProcW(procedure, hwnd, message, wParam, lParam);
}

}  // namespace

// The class is the desktop's rich edit control, known under the device's name.
void WINAPI InitRichInkDLL() {
    WNDCLASSW windowClass = {};
    windowClass.lpszClassName = L"RichInk";
    windowClass.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW | CS_GLOBALCLASS;
    windowClass.cbWndExtra = sizeof(void*);  // where the control keeps itself
    windowClass.hInstance = GetModuleHandleW(L"richink.dll");
    windowClass.lpfnWndProc = FirstProcedure;
    RegisterClassW(&windowClass);
}
