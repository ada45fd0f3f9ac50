#include "pocketpc/include/richink.h"

// The class lives in the desktop's rich edit control, known under the device's name.
void WINAPI InitRichInkDLL() {
    const HMODULE library = LoadLibraryW(L"riched20.dll");
    WNDCLASSW windowClass = {};
    if (!library || !GetClassInfoW(library, L"RichEdit20W", &windowClass)) return;
    windowClass.lpszClassName = L"RichInk";
    windowClass.style |= CS_GLOBALCLASS;
    windowClass.hInstance = library;
    RegisterClassW(&windowClass);
}
