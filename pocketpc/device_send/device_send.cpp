// Tells the running program something from a shell: "close" closes it, "command N" sends it a
// menu's command. Waits, for at most ten seconds, until a close is done.
#include <windows.h>

#include <cwchar>

int wmain(int count, wchar_t** arguments) {
    const HWND window = FindWindowW(L"DiarySettings_MainWnd", nullptr);
    if (!window || count < 2) return 1;
    if (count == 3 && wcscmp(arguments[1], L"command") == 0) {
        PostMessageW(window, WM_COMMAND, wcstoul(arguments[2], nullptr, 10), 0);
        return 0;
    }
    if (wcscmp(arguments[1], L"close") != 0) return 1;
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
    PostMessageW(window, WM_CLOSE, 0, 0);
    return WaitForSingleObject(process, 10'000) == WAIT_OBJECT_0 ? 0 : 1;
}
