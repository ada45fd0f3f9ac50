// A program that shows an empty window and waits: the least that a start takes.
#include <windows.h>

#include <string>
#include <vector>

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int showCommand) {
    const std::wstring name = L"EmptyWindow";
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = name.c_str();
    RegisterClassW(&windowClass);
    const HWND window = CreateWindowExW(0, name.c_str(), name.c_str(), WS_OVERLAPPED, 0, 26, 320,
                                        294, nullptr, nullptr, instance, nullptr);
    ShowWindow(window, showCommand);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
