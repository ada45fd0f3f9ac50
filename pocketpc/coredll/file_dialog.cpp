// The device's two file dialogs: full screen, over the documents folder and the folders in it. The
// desktop's are wider than a small screen is.
#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/coredll/message_box.h"

namespace {

constexpr wchar_t kClass[] = L"PocketPC.FileDialog";
constexpr wchar_t kDocuments[] = L"\\My Documents";
constexpr int kMargin = 6, kRow = 28, kControl = 21, kLabel = 52, kButton = 60, kDropDown = 140;
enum { kName = 100, kFolder, kFiles };

class FileDialog {
  public:
    FileDialog(OPENFILENAMEW& request, bool save) : request_(request), save_(save) {}

    bool Run() {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.lpszClassName = kClass;
        windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
        windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        RegisterClassW(&windowClass);
        const RECT area = shell::VisibleWorkArea();
        const HWND owner = request_.hwndOwner;
        hwnd_ = CreateWindowExW(WS_EX_CONTROLPARENT, kClass, Title(), WS_POPUP, area.left, area.top,
                                area.right - area.left, area.bottom - area.top, owner, nullptr,
                                nullptr, this);
        if (!hwnd_) return false;
        CreateControls();
        ListFolders();
        ListFiles();
        const bool ownerWasEnabled = owner && !EnableWindow(owner, FALSE);
        ShowWindow(hwnd_, SW_SHOW);
        SetFocus(save_ ? name_ : files_);
        RunLoop();
        if (ownerWasEnabled) EnableWindow(owner, TRUE);
        DestroyWindow(hwnd_);
        DeleteObject(font_);
        return accepted_;
    }

  private:
    void RunLoop() {
        MSG message;
        while (!ended_) {
            if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
                // The end of the program is the concern of its own loop.
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            if (IsDialogMessageW(hwnd_, &message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    HWND Add(const wchar_t* type, const wchar_t* text, DWORD style, int id, int x, int y, int width,
             int height) {
        const HWND control =
            CreateWindowExW(0, type, text, WS_CHILD | WS_VISIBLE | style, shell::Scale(x),
                            shell::Scale(y), shell::Scale(width), shell::Scale(height), hwnd_,
                            reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
        return control;
    }

    void CreateControls() {
        font_ = shell::CreateBarFont(FW_NORMAL);
        const int column = kMargin + kLabel;
        int y = kMargin;
        if (save_) {
            Add(L"STATIC", L"Name:", 0, -1, kMargin, y + 3, kLabel, kControl);
            name_ = Add(L"EDIT", FileName().c_str(), WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, kName,
                        column, y, 0, kControl);
            y += kRow;
        }
        Add(L"STATIC", L"Folder:", 0, -1, kMargin, y + 3, kLabel, kControl);
        folder_ = Add(L"COMBOBOX", L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, kFolder, column,
                      y, 0, kDropDown);
        y += kRow;
        files_ =
            Add(L"LISTBOX", L"",
                LBS_NOTIFY | LBS_SORT | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | WS_TABSTOP,
                kFiles, kMargin, y, 0, 0);
        Add(L"BUTTON", L"OK", WS_TABSTOP, IDOK, kMargin, 0, kButton, kControl);
        Add(L"BUTTON", L"Cancel", WS_TABSTOP, IDCANCEL, 2 * kMargin + kButton, 0, kButton,
            kControl);
        Layout();
    }

    // The fields reach to the right margin, the buttons stand at the bottom, the list fills the
    // rest.
    void Layout() const {
        RECT client;
        GetClientRect(hwnd_, &client);
        const int right = client.right - shell::Scale(kMargin);
        const int buttons = client.bottom - shell::Scale(kRow);
        const auto stretch = [&](HWND control, int height) {
            if (!control) return;
            RECT area;
            GetWindowRect(control, &area);
            MapWindowPoints(nullptr, hwnd_, reinterpret_cast<POINT*>(&area), 2);
            const int rest = static_cast<int>(buttons - shell::Scale(kMargin) - area.top);
            MoveWindow(control, area.left, area.top, right - area.left,
                       height ? height : std::max(0, rest), TRUE);
        };
        stretch(name_, shell::Scale(kControl));
        stretch(folder_, shell::Scale(kDropDown));
        stretch(files_, 0);
        // Above the panel there may be no room for it.
        RECT files;
        GetWindowRect(files_, &files);
        ShowWindow(files_, files.bottom - files.top < shell::Scale(kControl) ? SW_HIDE : SW_SHOWNA);
        for (const int id : {IDOK, IDCANCEL}) {
            const int x = id == IDOK ? kMargin : 2 * kMargin + kButton;
            SetWindowPos(GetDlgItem(hwnd_, id), nullptr, shell::Scale(x), buttons, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }

    void FitAbovePanel() const {
        const RECT area = shell::VisibleWorkArea();
        MoveWindow(hwnd_, area.left, area.top, area.right - area.left, area.bottom - area.top,
                   TRUE);
    }

    std::wstring FileName() const {
        const std::wstring path = request_.lpstrFile;
        return path.substr(path.find_last_of(L'\\') + 1);
    }

    static std::vector<WIN32_FIND_DATAW> Entries(const std::wstring& pattern) {
        std::vector<WIN32_FIND_DATAW> entries;
        WIN32_FIND_DATAW entry;
        const HANDLE find = FindFirstFileW(pattern.c_str(), &entry);
        if (find == INVALID_HANDLE_VALUE) return entries;
        do {
            if (entry.cFileName[0] != L'.') entries.push_back(entry);
        } while (FindNextFileW(find, &entry));
        FindClose(find);
        return entries;
    }

    void ListFolders() {
        SendMessageW(folder_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"My Documents"));
        for (const WIN32_FIND_DATAW& entry : Entries(std::wstring(kDocuments) + L"\\*")) {
            if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) continue;
            SendMessageW(folder_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.cFileName));
        }
        SendMessageW(folder_, CB_SETCURSEL, 0, 0);
    }

    std::wstring Folder() const {
        const LRESULT index = SendMessageW(folder_, CB_GETCURSEL, 0, 0);
        if (index <= 0) return kDocuments;
        wchar_t name[MAX_PATH] = {};
        SendMessageW(folder_, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(name));
        return std::wstring(kDocuments) + L"\\" + name;
    }

    void ListFiles() {
        SendMessageW(files_, LB_RESETCONTENT, 0, 0);
        // The first pair of the filter: its text, its pattern.
        const wchar_t* filter = request_.lpstrFilter;
        const wchar_t* pattern = filter ? filter + wcslen(filter) + 1 : L"*";
        for (const WIN32_FIND_DATAW& entry : Entries(Folder() + L"\\" + pattern)) {
            if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
            SendMessageW(files_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.cFileName));
        }
        if (!save_) SendMessageW(files_, LB_SETCURSEL, 0, 0);
    }

    std::wstring SelectedFile() const {
        wchar_t name[MAX_PATH] = {};
        const LRESULT index = SendMessageW(files_, LB_GETCURSEL, 0, 0);
        if (index >= 0) SendMessageW(files_, LB_GETTEXT, index, reinterpret_cast<LPARAM>(name));
        return name;
    }

    int Ask(const std::wstring& question) const {
        return Pocket_MessageBoxW(hwnd_, question.c_str(), Title(), MB_YESNO | MB_ICONQUESTION);
    }

    void Tell(const wchar_t* problem) const {
        Pocket_MessageBoxW(hwnd_, problem, Title(), MB_OK | MB_ICONEXCLAMATION);
    }

    const wchar_t* Title() const { return save_ ? L"Save As" : L"Open"; }

    void Accept() {
        wchar_t typed[MAX_PATH] = {};
        if (save_) GetWindowTextW(name_, typed, MAX_PATH);
        std::wstring path = save_ ? typed : SelectedFile();
        if (path.empty()) return Tell(save_ ? L"Enter a name." : L"Choose a file.");
        if (path[0] != L'\\') path = Folder() + L"\\" + path;
        if (path.find(L'.', path.find_last_of(L'\\')) == std::wstring::npos &&
            request_.lpstrDefExt) {
            path.append(L".").append(request_.lpstrDefExt);
        }
        if (path.size() >= request_.nMaxFile) return Tell(L"The name is too long.");
        if (save_ && request_.Flags & OFN_OVERWRITEPROMPT &&
            GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES &&
            Ask(L"Replace " + path.substr(path.find_last_of(L'\\') + 1) + L"?") != IDYES) {
            return;
        }
        wcscpy(request_.lpstrFile, path.c_str());
        request_.nFileOffset = static_cast<WORD>(path.find_last_of(L'\\') + 1);
        request_.nFileExtension = static_cast<WORD>(path.find_last_of(L'.') + 1);
        accepted_ = ended_ = true;
    }

    void OnCommand(int id, int code) {
        if (id == IDOK || (id == kFiles && code == LBN_DBLCLK)) {
            Accept();
        } else if (id == IDCANCEL) {
            ended_ = true;
        } else if (id == kFolder && code == CBN_SELCHANGE) {
            ListFiles();
        } else if (id == kFiles && code == LBN_SELCHANGE && save_) {
            SetWindowTextW(name_, SelectedFile().c_str());
        }
    }

    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
            SetWindowLongPtrW(hwnd, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(create->lpCreateParams));
        }
        auto* const dialog = reinterpret_cast<FileDialog*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
        switch (message) {
            case WM_SIZE:
                if (dialog->files_) dialog->Layout();
                return 0;
            case WM_SETTINGCHANGE:
                if (wParam == shell::kSetSipInfo) dialog->FitAbovePanel();
                return 0;
            case WM_COMMAND: dialog->OnCommand(LOWORD(wParam), HIWORD(wParam)); return 0;
            case WM_CLOSE: dialog->ended_ = true; return 0;
            case WM_DESTROY: dialog->ended_ = true; break;  // It may go with its owner.
            case WM_CTLCOLORSTATIC:
                return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
        }
        return DefWindowProcW(hwnd, message, wParam, lParam);
    }

    OPENFILENAMEW& request_;
    const bool save_;
    HWND hwnd_ = nullptr, name_ = nullptr, folder_ = nullptr, files_ = nullptr;
    HFONT font_ = nullptr;
    bool ended_ = false, accepted_ = false;
};

BOOL Show(OPENFILENAMEW* request, bool save) {
    if (!request || request->lStructSize != sizeof *request || !request->lpstrFile) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return FileDialog(*request, save).Run();
}

}  // namespace

extern "C" {

BOOL WINAPI Pocket_GetOpenFileNameW(OPENFILENAMEW* request) { return Show(request, false); }
BOOL WINAPI Pocket_GetSaveFileNameW(OPENFILENAMEW* request) { return Show(request, true); }

}  // extern "C"
