#include "controls/preview_window.h"

#include "app/language/module.h"
#include "base/owned_handle.h"

namespace {

void Paint(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    if (!dc) return;
    RECT area;
    GetClientRect(hwnd, &area);
    const OwnedDc memory(CreateCompatibleDC(dc));
    const OwnedBitmap bitmap(CreateCompatibleBitmap(dc, area.right, area.bottom));
    if (memory && bitmap) {
        const SelectedObject selected(memory.get(), bitmap.get());
        FillRect(memory.get(), &area, GetSysColorBrush(COLOR_WINDOW));
        SetBkMode(memory.get(), TRANSPARENT);
        const HWND parent = GetParent(hwnd);
        const SelectedObject font(memory.get(),
                                  reinterpret_cast<HFONT>(SendMessageW(parent, WM_GETFONT, 0, 0)));
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_STATIC;
        item.CtlID = static_cast<UINT>(GetWindowLongW(hwnd, GWL_ID));
        item.hwndItem = hwnd;
        item.hDC = memory.get();
        item.rcItem = area;
        SendMessageW(parent, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
        BitBlt(dc, 0, 0, area.right, area.bottom, memory.get(), 0, 0, SRCCOPY);
    }
    EndPaint(hwnd, &paint);
}

LRESULT CALLBACK PreviewProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(hwnd); return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

}  // namespace

void RegisterPreviewWindow() {
    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = PreviewProcedure;
    windowClass.hInstance = ResourceLibrary();  // The one that dialogs are created with.
    windowClass.lpszClassName = kPreviewWindowClass;
    RegisterClassW(&windowClass);
}
