// Tells what runs on the device something from a shell, and fails where it does not run: "close"
// closes the program, "command N" sends it a menu's command, "today" asks whether the Today screen
// shows, "away" closes the program and then the Today screen. Waits, for at most ten seconds, until
// what is closed has ended.
#include <windows.h>

#include <cwchar>

namespace {

HWND Program() { return FindWindowW(L"DiarySettings_MainWnd", nullptr); }
HWND Today() { return FindWindowW(L"DesktopExplorerWindow", L"Desktop"); }

bool Close(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
    PostMessageW(window, WM_CLOSE, 0, 0);
    return WaitForSingleObject(process, 10'000) == WAIT_OBJECT_0;
}

bool Command(const wchar_t* number) {
    return PostMessageW(Program(), WM_COMMAND, wcstoul(number, nullptr, 10), 0) != FALSE;
}

bool Tell(int count, wchar_t** words) {
    const auto says = [&](const wchar_t* verb, int length) {
        return count == length && wcscmp(words[1], verb) == 0;
    };
    if (says(L"command", 3)) return Program() && Command(words[2]);
    if (says(L"close", 2)) return Program() && Close(Program());
    if (says(L"today", 2)) return Today() != nullptr;
    if (says(L"away", 2)) return (!Program() || Close(Program())) && Today() && Close(Today());
    return false;
}

}  // namespace

int wmain(int count, wchar_t** arguments) { return Tell(count, arguments) ? 0 : 1; }
