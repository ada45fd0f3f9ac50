#include "pocketpc/common/screen.h"

#include "pocketpc/common/shared_number.h"

namespace shell {

namespace {

constexpr wchar_t kSize[] = L"Screen";
constexpr UINT kLongestAnswer = 2000;  // milliseconds

void Tell(const wchar_t* className, SIZE before) {
    for (HWND hwnd = nullptr; (hwnd = FindWindowExW(nullptr, hwnd, className, nullptr));) {
        SendMessageTimeoutW(hwnd, ScreenChangeMessage(), MAKELONG(before.cx, before.cy), 0,
                            SMTO_ABORTIFHUNG, kLongestAnswer, nullptr);
    }
}

}  // namespace

UINT ScreenChangeMessage() {
    static const UINT message = RegisterWindowMessageW(L"PocketPC.ScreenChange");
    return message;
}

SIZE Screen() {
    const DWORD size = SharedNumber(kSize);
    if (size) return {LOWORD(size), HIWORD(size)};
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

void SetScreen(SIZE screen) {
    const SIZE before = Screen();
    SetSharedNumber(kSize, static_cast<DWORD>(MAKELONG(screen.cx, screen.cy)));
    // The Today screen lies below, so that it is there when programs uncover it.
    Tell(L"DesktopExplorerWindow", before);
    Tell(L"HHTaskBar", before);
}

void TurnScreen() {
    const SIZE screen = Screen();
    SetScreen({screen.cy, screen.cx});
}

}  // namespace shell
