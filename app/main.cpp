#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>
#include <inkx.h>
#include <objbase.h>
#include <richink.h>
#include <sipapi.h>

#include <memory>

#include "app/command_line.h"
#include "app/language/language_table.h"
#include "app/language/module.h"
#include "app/main_frame.h"
#include "app/single_instance.h"
#include "controls/preview_window.h"
#include "settings/install_path.h"

namespace {

// The area below the navigation bar that the input panel does not cover.
void MoveToVisibleDesktop(HWND hwnd) {
    SIPINFO sip = {};
    sip.cbSize = sizeof sip;
    if (!SipGetInfo(&sip)) return;
    const RECT& visible = sip.rcVisibleDesktop;
    MoveWindow(hwnd, visible.left, visible.top, visible.right - visible.left,
               visible.bottom - visible.top, FALSE);
}

int Run(const wchar_t* commandLine, int showCommand) {
    SHInitExtraControls();
    RegisterPreviewWindow();  // Before the language file's template may create dialogs.
    GetLanguageTable().Load(GetInstallPath(L"LumDiary_en.txt"));

    RECT desktop = {};
    GetWindowRect(GetDesktopWindow(), &desktop);
    const auto frame = std::make_unique<MainFrame>();
    if (!frame->Create(desktop)) return 0;
    MoveToVisibleDesktop(frame->hwnd());
    ShowWindow(frame->hwnd(), showCommand);
    SetForegroundWindow(frame->hwnd());
    for (const OpenRequest& request : ParseCommandLine(commandLine)) {
        PostMessageW(frame->hwnd(), WM_OPEN_ENTRY, static_cast<WPARAM>(request.entry),
                     request.page);
    }

    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand) {
    if (const std::optional<HRESULT> code = EndsBecauseOfOtherInstance(kMainWindowClass))
        return *code;
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_DATE_CLASSES};
    InitCommonControlsEx(&controls);
    InitRichInkDLL();
    InitInkX();
    InitModule(instance);
    LoadResourceLibrary(GetInstallPath(L"DiaryRes.Dll"));

    const int result = Run(commandLine, showCommand);

    ShutDownModule();
    CoUninitialize();
    return result;
}
