#include "pocketpc/common/input_panel.h"

#include <algorithm>

#include "pocketpc/common/shell_windows.h"

namespace shell {

namespace {

// A property of the desktop's window, so that every process of the device sees it.
constexpr wchar_t kProperty[] = L"PocketPC.InputPanel";
constexpr UINT kLongestAnswer = 2000;  // milliseconds
constexpr int kHeight = 80;            // at 96 dots per inch; unconfirmed

}  // namespace

UINT InputPanelMessage() {
    static const UINT message = RegisterWindowMessageW(L"PocketPC.InputPanelChange");
    return message;
}

bool InputPanelIsUp() { return GetPropW(GetDesktopWindow(), kProperty) != nullptr; }

void SetInputPanel(bool up) {
    const HWND desktop = GetDesktopWindow();
    if (up == InputPanelIsUp()) return;
    if (up) {
        SetPropW(desktop, kProperty, desktop);
    } else {
        RemovePropW(desktop, kProperty);
    }
    for (HWND bar = nullptr; (bar = FindWindowExW(nullptr, bar, L"HHTaskBar", nullptr));) {
        SendMessageTimeoutW(bar, InputPanelMessage(), 0, 0, SMTO_ABORTIFHUNG, kLongestAnswer,
                            nullptr);
    }
}

RECT InputPanelArea(SIZE screen) {
    const int bottom = screen.cy - BarHeight();
    return {0, bottom - Scale(kHeight), screen.cx, bottom};
}

RECT VisibleWorkArea() {
    RECT area = WorkArea();
    if (InputPanelIsUp()) area.bottom = std::max(area.top, InputPanelArea(Screen()).top);
    return area;
}

}  // namespace shell
