#include "pocketpc/common/input_panel.h"

#include <algorithm>

#include "pocketpc/common/shared_number.h"
#include "pocketpc/common/shell_windows.h"

namespace shell {

namespace {

constexpr wchar_t kUp[] = L"InputPanelIsUp";
constexpr UINT kLongestAnswer = 2000;  // milliseconds
constexpr int kHeight = 80;            // at 96 dots per inch; unconfirmed

}  // namespace

UINT InputPanelMessage() {
    static const UINT message = RegisterWindowMessageW(L"PocketPC.InputPanelChange");
    return message;
}

bool InputPanelIsUp() { return SharedNumber(kUp) != 0; }

void SetInputPanel(bool up) {
    if (up == InputPanelIsUp()) return;
    SetSharedNumber(kUp, up);
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
