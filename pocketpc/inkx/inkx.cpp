#include "pocketpc/include/inkx.h"

#include "pocketpc/include/richink.h"

namespace {

constexpr UINT kGetRichInk = WM_USER + 532;
constexpr int kText = 1;  // id of the text part

// Ink cannot be drawn here: the control consists of its text part.
LRESULT CALLBACK InkProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND text = GetDlgItem(hwnd, kText);
    switch (message) {
        case WM_CREATE:
            CreateWindowExW(0, L"RichInk", reinterpret_cast<CREATESTRUCTW*>(lParam)->lpszName,
                            WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE, 0, 0, 0, 0, hwnd,
                            reinterpret_cast<HMENU>(INT_PTR{kText}), nullptr, nullptr);
            return 0;
        case WM_SIZE: MoveWindow(text, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE); return 0;
        case WM_SETFOCUS: SetFocus(text); return 0;
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
        case WM_SETFONT: return SendMessageW(text, message, wParam, lParam);
        case kGetRichInk: return reinterpret_cast<LRESULT>(text);
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

}  // namespace

void WINAPI InitInkX() {
    InitRichInkDLL();
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = InkProcedure;
    windowClass.style = CS_GLOBALCLASS;
    windowClass.hInstance = GetModuleHandleW(L"inkx.dll");
    windowClass.lpszClassName = L"InkX";
    RegisterClassW(&windowClass);
}
