#include "tests/ui/driver.h"

#include <commctrl.h>
#include <prsht.h>

#include "pocketpc/include/aygshell.h"
#include "resources/ids.h"

namespace ui {

namespace {

constexpr wchar_t kMainWindow[] = L"DiarySettings_MainWnd";
constexpr UINT kOpenEntry = 2255;
constexpr DWORD kLimit = 10'000;  // milliseconds
constexpr int kTextLength = 512;

// Memory of another process, for messages that carry addresses.
class RemoteMemory {
  public:
    RemoteMemory(HWND window, std::size_t size) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ =
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        address_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
    }
    ~RemoteMemory() {
        VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    BYTE* address() const { return static_cast<BYTE*>(address_); }
    void Write(const void* data, std::size_t size) const {
        WriteProcessMemory(process_, address_, data, size, nullptr);
    }
    std::wstring ReadText(std::size_t offset) const {
        wchar_t text[kTextLength] = {};
        ReadProcessMemory(process_, address() + offset, text, sizeof text - sizeof(wchar_t),
                          nullptr);
        return text;
    }

  private:
    HANDLE process_;
    void* address_;
};

// Sends a message with a structure whose text buffer follows it, and reads the text back.
template <typename Structure>
std::wstring RemoteText(HWND window, UINT message, WPARAM wParam, Structure structure,
                        wchar_t* Structure::*textMember) {
    const RemoteMemory memory(window, sizeof structure + kTextLength * sizeof(wchar_t));
    void* const text = memory.address() + sizeof structure;
    structure.*textMember = static_cast<wchar_t*>(text);
    memory.Write(&structure, sizeof structure);
    SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(memory.address()));
    return memory.ReadText(sizeof structure);
}

std::wstring FolderOfTests() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring text = path;
    return text.substr(0, text.rfind(L'\\') + 1);
}

std::vector<HWND> VisibleDialogs(DWORD process) {
    std::vector<HWND> dialogs;
    for (const wchar_t* const className : {L"#32770", L"PocketPC.FileDialog"}) {
        HWND window = nullptr;
        while ((window = FindWindowExW(nullptr, window, className, nullptr))) {
            DWORD id = 0;
            GetWindowThreadProcessId(window, &id);
            if (id == process && IsWindowVisible(window)) dialogs.push_back(window);
        }
    }
    return dialogs;
}

}  // namespace

Program::Program(const std::wstring& arguments) {
    const std::wstring program = FolderOfTests() + L"DiarySettings.exe";
    std::wstring given = arguments;
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(program.c_str(), given.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        nullptr, &started)) {
        return;
    }
    CloseHandle(started.hThread);
    process_ = started.hProcess;
    id_ = started.dwProcessId;
}

Program::~Program() {
    if (IsRunning()) TerminateProcess(process_, 99);
    WaitForSingleObject(process_, kLimit);
    CloseHandle(process_);
}

HWND Program::Main() const {
    HWND found = nullptr;
    Until([&] {
        HWND window = nullptr;
        while ((window = FindWindowExW(nullptr, window, kMainWindow, nullptr))) {
            DWORD id = 0;
            GetWindowThreadProcessId(window, &id);
            if (id == id_ && IsWindowVisible(window)) found = window;
        }
        return found || !IsRunning();
    });
    return found;
}

HWND Program::Sheet(const std::wstring& title) const {
    HWND found = nullptr;
    Until([&] {
        for (const HWND dialog : VisibleDialogs(id_)) {
            if (Text(dialog) == title) found = dialog;
        }
        return found || !IsRunning();
    });
    return found;
}

bool Program::Dismiss() const {
    const HWND box = Sheet(L"Lum Diary Options");
    return box && Ok(box);
}

std::vector<std::wstring> Program::OpenSheets() const {
    std::vector<std::wstring> titles;
    for (const HWND dialog : VisibleDialogs(id_)) titles.push_back(Text(dialog));
    return titles;
}

void Program::Open(int entry, int page) const { PostMessageW(Main(), kOpenEntry, entry, page); }

bool Program::IsRunning() const { return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT; }

void Program::Close() const { PostMessageW(Main(), WM_CLOSE, 0, 0); }

std::optional<DWORD> Program::CloseAndWait() const {
    Close();
    return WaitForExit();
}

std::optional<DWORD> Program::WaitForExit() const {
    DWORD code = 0;
    if (!Until([&] { return !IsRunning(); }) || !GetExitCodeProcess(process_, &code)) {
        return std::nullopt;
    }
    return code;
}

HWND Page(HWND sheet, int control) {
    HWND page = nullptr;
    const bool shown = Until([&] {
        page = PropSheet_GetCurrentPageHwnd(sheet);
        return page && IsWindowVisible(page) && (!control || GetDlgItem(page, control));
    });
    return shown ? page : nullptr;
}

void TurnTo(HWND sheet, int page) { SendMessageW(sheet, PSM_SETCURSEL, page, 0); }

std::wstring TabText(HWND sheet, int page) {
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.cchTextMax = kTextLength;
    return RemoteText(PropSheet_GetTabControl(sheet), TCM_GETITEMW, page, item, &TCITEMW::pszText);
}

bool Ok(HWND sheet) {
    PostMessageW(sheet, WM_COMMAND, IDOK, 0);
    return Until([&] { return !IsWindow(sheet); });
}

bool Cancel(HWND sheet) {
    PostMessageW(sheet, WM_COMMAND, IDCANCEL, 0);
    return Until([&] { return !IsWindow(sheet); });
}

namespace {

GUITHREADINFO StateOf(HWND window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info;
}

void Press(HWND focus, WPARAM key) {
    PostMessageW(focus, WM_KEYDOWN, key, 1);
    PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

bool TabTo(HWND page, int control) {
    constexpr int kMostControls = 40;
    const HWND wanted = GetDlgItem(page, control);
    for (int i = 0; i < kMostControls; ++i) {
        const HWND focus = StateOf(page).hwndFocus;
        if (focus == wanted) return true;
        Press(focus, VK_TAB);
        if (!Until([&] { return StateOf(page).hwndFocus != focus; })) return false;
    }
    return false;
}

}  // namespace

HWND FocusOf(HWND window) { return StateOf(window).hwndFocus; }

bool FocusIs(HWND page, int control) { return FocusOf(page) == GetDlgItem(page, control); }

void PostKeys(HWND window, std::initializer_list<WPARAM> keys) {
    for (const WPARAM key : keys) PostMessageW(window, WM_KEYDOWN, key, 0);
}

bool PickSource(HWND chooser, std::initializer_list<WPARAM> keys) {
    PostMessageW(chooser, WM_COMMAND, IDM_SHOW_SOURCES, 0);
    const auto isOpen = [chooser] { return (StateOf(chooser).flags & GUI_INMENUMODE) != 0; };
    // A menu shows a moment before it takes the keys.
    const auto takesKeys = [&] {
        return isOpen() && IsWindowVisible(FindWindowW(L"#32768", nullptr));
    };
    if (!Until([&] { return !IsWindow(chooser) || takesKeys(); })) return false;
    PostKeys(FocusOf(chooser), keys);
    PostKeys(FocusOf(chooser), {VK_RETURN});
    return Until([&] { return !isOpen(); });
}

bool ClickByKeys(HWND page, int control) {
    if (!TabTo(page, control)) return false;
    const bool before = IsChecked(page, control);
    Press(GetDlgItem(page, control), VK_SPACE);
    return Until([&] { return IsChecked(page, control) != before; });
}

bool SelectByKeys(HWND page, int control, int index) {
    if (!TabTo(page, control)) return false;
    const HWND list = GetDlgItem(page, control);
    Press(list, VK_HOME);
    for (int i = 0; i < index; ++i) Press(list, VK_DOWN);
    return Until([&] { return SendMessageW(list, CB_GETCURSEL, 0, 0) == index; });
}

// By message, as GetWindowText does not look into controls of other processes.
std::wstring Text(HWND window) {
    wchar_t text[kTextLength] = {};
    SendMessageW(window, WM_GETTEXT, kTextLength, reinterpret_cast<LPARAM>(text));
    return text;
}

std::wstring Text(HWND page, int control) { return Text(GetDlgItem(page, control)); }

bool IsChecked(HWND page, int control) {
    return SendDlgItemMessageW(page, control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool IsEnabled(HWND page, int control) {
    return IsWindowEnabled(GetDlgItem(page, control)) != FALSE;
}

void Click(HWND page, int control) { SendDlgItemMessageW(page, control, BM_CLICK, 0, 0); }

void Select(HWND page, int control, int index) {
    const HWND list = GetDlgItem(page, control);
    SendMessageW(list, CB_SETCURSEL, index, 0);
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(control, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

void Select(HWND page, int control, const wchar_t* text) {
    const LRESULT index =
        SendDlgItemMessageW(page, control, CB_FINDSTRINGEXACT, -1, reinterpret_cast<LPARAM>(text));
    Select(page, control, static_cast<int>(index));
}

void SendKeys(HWND window, std::initializer_list<WPARAM> keys) {
    for (const WPARAM key : keys) SendMessageW(window, WM_KEYDOWN, key, 0);
}

void AskForHelp(HWND window) {
    HELPINFO info = {};
    info.cbSize = sizeof info;
    info.iContextType = HELPINFO_WINDOW;
    info.hItemHandle = window;
    SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
}

std::wstring Selected(HWND page, int control) {
    const LRESULT index = SendDlgItemMessageW(page, control, CB_GETCURSEL, 0, 0);
    wchar_t text[kTextLength] = {};
    if (index >= 0) {
        SendDlgItemMessageW(page, control, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
    }
    return text;
}

std::wstring Ticks(HWND list) {
    std::wstring rows;
    const LRESULT count = SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT state = SendMessageW(list, LVM_GETITEMSTATE, i, LVIS_STATEIMAGEMASK);
        rows += state == INDEXTOSTATEIMAGEMASK(2) ? L'x' : L'-';
    }
    return rows;
}

std::wstring MenuBarText(HWND parent, int index) {
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_BYINDEX;
    info.cchText = kTextLength;
    return RemoteText(SHFindMenuBar(parent), TB_GETBUTTONINFOW, index, info,
                      &TBBUTTONINFOW::pszText);
}

bool PressInMenu(HWND parent, int index, wchar_t key) {
    const HWND bar = SHFindMenuBar(parent);
    RECT area;
    GetClientRect(bar, &area);
    const LPARAM middle = MAKELPARAM(area.right * (2 * index + 1) / 4, area.bottom / 2);
    PostMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    PostMessageW(bar, WM_LBUTTONUP, 0, middle);
    const bool opened = Until([] { return IsWindowVisible(FindWindowW(L"#32768", nullptr)); });
    PostMessageW(parent, WM_CHAR, key, 0);
    return opened;
}

Plugin::Plugin() {
    hwnd_ = MakeWindow(L"LumDiaryTimeHelperWnd_1.0", Procedure);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Plugin::~Plugin() { DestroyWindow(hwnd_); }

std::vector<Plugin::Update> Plugin::Updates() {
    Until([] { return true; });
    return updates_;
}

LRESULT CALLBACK Plugin::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT update = RegisterWindowMessageW(L"LumDiary_UpdateSettings");
    if (message == update) {
        reinterpret_cast<Plugin*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA))
            ->updates_.push_back({wParam, lParam});
        return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

}  // namespace ui
