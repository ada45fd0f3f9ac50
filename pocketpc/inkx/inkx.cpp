#include "pocketpc/include/inkx.h"

// The program only has the class ready; it creates no such control.
void WINAPI InitInkX() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.style = CS_GLOBALCLASS;
    windowClass.hInstance = GetModuleHandleW(L"inkx.dll");
    windowClass.lpszClassName = L"InkX";
    RegisterClassW(&windowClass);
}
