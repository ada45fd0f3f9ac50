#include "tools/walk/walker.h"

#include <commctrl.h>
#include <prsht.h>

#include <utility>

#include "app/main_frame.h"
#include "app/open_entry.h"
#include "pocketpc/common/screen.h"
#include "resources/ids.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand);

namespace {

constexpr DWORD kLimit = 10'000;  // milliseconds
constexpr wchar_t kMenuClass[] = L"#32768";

DWORD WINAPI RunProgram(void*) {
    wchar_t nothing[] = L"";
    return static_cast<DWORD>(wWinMain(GetModuleHandleW(nullptr), nullptr, nothing, SW_SHOW));
}

BOOL CALLBACK AddVisible(HWND hwnd, LPARAM windows) {
    if (IsWindowVisible(hwnd)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(hwnd);
    return TRUE;
}

std::vector<HWND> WindowsOf(DWORD thread) {
    std::vector<HWND> windows;
    EnumThreadWindows(thread, AddVisible, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

// Whether something of the window is still to be painted.
BOOL CALLBACK NoteUnpainted(HWND hwnd, LPARAM unpainted) {
    if (IsWindowVisible(hwnd) && GetUpdateRect(hwnd, nullptr, FALSE)) {
        *reinterpret_cast<bool*>(unpainted) = true;
    }
    return TRUE;
}

std::string NameOf(const PageDescription& page) {
    const std::wstring anchor = page.anchor;
    return {anchor.begin(), anchor.end()};
}

}  // namespace

bool Walker::Until(const std::function<bool()>& condition) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kLimit) return false;
        Sleep(3);
    }
    return true;
}

Walker::Walker(std::vector<SIZE> screens) : screens_(std::move(screens)) {
    shell::SetScreen(screens_.front());
    thread_ = CreateThread(nullptr, 0, RunProgram, nullptr, 0, &threadId_);
    Until([this] {
        main_ = FindWindowW(kMainWindowClass, nullptr);
        return main_ && IsWindowVisible(main_);
    });
}

Walker::~Walker() {
    PostMessageW(main_, WM_CLOSE, 0, 0);
    WaitForSingleObject(thread_, kLimit);
    CloseHandle(thread_);
}

bool Walker::Walk(const std::function<void(const View&)>& visit) {
    visit_ = &visit;
    if (!Show("main_screen", main_, main_)) return false;
    const HWND about = Post(main_, WM_COMMAND, ID_APP_ABOUT);
    if (!about || !Show("about", about, about) || !Close(about)) return false;
    for (std::size_t entry = 0; entry < MainEntries().size(); ++entry) {
        const bool shown = MainEntries()[entry].pages.empty() ? ShowCategories() : ShowPages(entry);
        if (!shown) return false;
    }
    return true;
}

bool Walker::ShowPages(std::size_t entry) {
    const HWND sheet = Post(main_, WM_OPEN_ENTRY, entry);
    if (!sheet) return false;
    const auto pages = MainEntries()[entry].pages;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        SendMessageW(sheet, PSM_SETCURSEL, i, 0);
        const HWND page = PropSheet_GetCurrentPageHwnd(sheet);
        if (!page || !Show(NameOf(*pages[i]), sheet, page)) return false;
        if (pages[i]->dialog == IDD_CONTACTS_COMMON && !ShowLayouts(page)) return false;
    }
    return Close(sheet);
}

bool Walker::ShowLayouts(HWND page) {
    const HWND list = GetDlgItem(page, IDC_CONTACT_LAYOUT);
    // "Select layouts..."; below it is an empty entry.
    SendMessageW(list, CB_SETCURSEL, SendMessageW(list, CB_GETCOUNT, 0, 0) - 2, 0);
    const HWND dialog = Post(page, WM_COMMAND, MAKEWPARAM(IDC_CONTACT_LAYOUT, CBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(list));
    return dialog && Show("layouts_select", dialog, dialog) && Close(dialog);
}

bool Walker::ShowCategories() {
    const HWND dialog = Post(main_, WM_OPEN_ENTRY, MainEntries().size() - 1);
    return dialog && Show("category_icons_main", dialog, dialog) &&
           Show("category_icons_colors", dialog, dialog, Popup::kColors) && ShowChooser(dialog) &&
           Close(dialog);
}

bool Walker::ShowChooser(HWND categories) {
    const HWND chooser = Post(categories, WM_COMMAND, IDC_CATEGORY_CHOOSE);
    if (!chooser || !Show("category_icons_chooser", chooser, chooser) ||
        !Show("category_icons_sources", chooser, chooser, Popup::kSources)) {
        return false;
    }
    // The last entry of the menu.
    if (!OpenPopup(chooser, Popup::kSources)) return false;
    PostMessageW(chooser, WM_KEYDOWN, VK_UP, 1);
    const HWND folders = Post(chooser, WM_KEYDOWN, VK_RETURN, 1);
    return folders && Show("category_icons_folders", folders, folders) && Close(folders) &&
           Close(chooser);
}

HWND Walker::Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
    const HWND under = GetAncestor(window, GA_ROOT);
    PostMessageW(window, message, wParam, lParam);
    return Opened(under);
}

HWND Walker::Opened(HWND under) const {
    HWND found = nullptr;
    Until([&] {
        for (const HWND hwnd : WindowsOf(threadId_)) {
            wchar_t className[16] = {};
            GetClassNameW(hwnd, className, 16);
            if (std::wstring(className) == L"#32770" && IsWindowEnabled(hwnd) && hwnd != under) {
                found = hwnd;
            }
        }
        return found && !IsWindowEnabled(under);
    });
    return found;
}

bool Walker::Close(HWND dialog) const {
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    return Until([dialog] { return !IsWindow(dialog); });
}

// Null when it does not come.
HWND Walker::OpenPopup(HWND dialog, Popup popup) const {
    const wchar_t* className = kMenuClass;
    if (popup == Popup::kColors) {
        className = L"LumDiaryColorsListWnd.0";
        PostMessageW(dialog, WM_COMMAND, IDC_CATEGORY_COLOR,
                     reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_CATEGORY_COLOR)));
    } else {
        PostMessageW(dialog, WM_COMMAND, IDM_SHOW_SOURCES, 0);
    }
    HWND window = nullptr;
    Until([&] {
        window = FindWindowW(className, nullptr);
        return window && IsWindowVisible(window);
    });
    return window;
}

bool Walker::Show(const std::string& name, HWND window, HWND dialog, Popup popup) {
    for (const SIZE& screen : screens_) {
        shell::SetScreen(screen);
        HWND opened = nullptr;
        if (popup != Popup::kNone && !(opened = OpenPopup(dialog, popup))) return false;
        Settle();
        (*visit_)({name, window, dialog, screen});
        if (!opened) continue;
        if (popup == Popup::kColors) {
            PostMessageW(opened, WM_CLOSE, 0, 0);
        } else {
            PostMessageW(dialog, WM_CANCELMODE, 0, 0);
        }
        if (!Until([opened] { return !IsWindow(opened) || !IsWindowVisible(opened); }))
            return false;
    }
    return true;
}

// Until nothing is left to be painted.
void Walker::Settle() const {
    Until([this] {
        SendMessageW(main_, WM_NULL, 0, 0);
        bool unpainted = false;
        for (const HWND hwnd : WindowsOf(threadId_)) {
            NoteUnpainted(hwnd, reinterpret_cast<LPARAM>(&unpainted));
            EnumChildWindows(hwnd, NoteUnpainted, reinterpret_cast<LPARAM>(&unpainted));
        }
        return !unpainted;
    });
}
