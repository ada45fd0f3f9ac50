// The stand-in's Today screen, from which the program is opened.
#include "tests/ui/device.h"

namespace {

using namespace ui;

HWND MainWindow() { return FindWindowW(L"DiarySettings_MainWnd", nullptr); }

COLORREF ScreenColor(int x, int y) {
    const HDC dc = GetDC(nullptr);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(nullptr, dc);
    return color;
}

class Today : public DeviceTest {};

TEST_F(Today, ShowsAPictureAndOpensTheProgram) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    wcscpy(wcsrchr(path, L'\\') + 1, L"today.exe");
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(CreateProcessW(path, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, nullptr,
                               &process));
    HWND items = nullptr;
    EXPECT_TRUE(Until([&] {
        const HWND screen = FindWindowW(L"DesktopExplorerWindow", nullptr);
        items = FindWindowExW(screen, nullptr, L"TodayItems", nullptr);
        return IsWindowVisible(items) != FALSE;
    }));
    // Without a picture the background has one colour.
    EXPECT_TRUE(Until([] { return ScreenColor(2, 120) != ScreenColor(2, 200); }));
    for (int i = 0; i < 2; ++i) {
        PostMessageW(items, WM_LBUTTONUP, 0, MAKELPARAM(20, 20));
        EXPECT_TRUE(Until([] { return IsWindowVisible(MainWindow()) != FALSE; }));
        PostMessageW(MainWindow(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(Until([] { return !MainWindow(); }));
    }
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 0), WAIT_TIMEOUT);
    PostMessageW(GetParent(items), WM_CLOSE, 0, 0);
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 10'000), WAIT_OBJECT_0);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

}  // namespace
