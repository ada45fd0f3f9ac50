#include "app/main_frame.h"

#include <commctrl.h>

#include <iterator>

#include "app/about_dialog.h"
#include "app/export_import.h"
#include "app/language/language_table.h"
#include "app/language/module.h"
#include "app/open_entry.h"
#include "appearance/drawing/fonts.h"
#include "appearance/drawing/theme_colors.h"
#include "base/scale.h"
#include "controls/launch_help.h"
#include "controls/modal_windows.h"
#include "resources/ids.h"

namespace {

// The version of the common controls that the program is written for, 2.12.
constexpr WPARAM kCommonControlsVersion = 524;
constexpr int kListFontHeight = 13;
// Three entries in a row on a screen of 240 pixels, each with room for two lines of text.
constexpr int kEntryWidth = 80, kEntryHeight = 76;
constexpr int kAnyHeight = 0x2000;  // more than the entries take in whatever order
// Without column headings. The extended window style means one-tap activation to the device's list
// view; it is sent as a list view style as well.
constexpr DWORD kListStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | LVS_ICON |
                             LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS |
                             LVS_AUTOARRANGE | LVS_NOCOLUMNHEADER;
constexpr DWORD kListExtendedStyle = 0x40;
// Sent by the device when a tap may become tap-and-hold; 1 says that nothing follows.
constexpr UINT kNotifyRecognizeGesture = static_cast<UINT>(-50);

// The menu's commands and whether they can be chosen.
struct CommandState {
    UINT command;
    bool enabled;
};
constexpr UINT kLastCommand = 0xFFFF;
constexpr CommandState kCommandStates[] = {
    {IDM_EXPORT, true},
    {IDM_IMPORT, true},
    {kLastCommand, true},
};

}  // namespace

bool MainFrame::Create(const RECT& rect) {
    return Window::Create(kMainWindowClass, L"", WS_OVERLAPPED, rect, nullptr, ModuleInstance());
}

std::optional<LRESULT> MainFrame::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_HELP: LaunchHelp(L"options_main_screen"); return 1;
        case WM_CREATE: return OnCreate() ? 0 : -1;
        case WM_COMMAND:
            if (OnCommand(LOWORD(wParam))) return 0;
            return std::nullopt;
        case WM_CLOSE: OnClose(); return 0;
        case WM_DESTROY: OnDestroy(); return 0;
        case WM_OPEN_ENTRY: Open(wParam, lParam); return 0;
        case WM_NOTIFY: return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_INITMENUPOPUP: OnInitMenuPopup(reinterpret_cast<HMENU>(wParam)); return 0;
        case WM_ACTIVATE:
            SHHandleWMActivate(hwnd(), wParam, lParam, &activateInfo_, 0);
            if (LOWORD(wParam) != WA_INACTIVE) SetFocus(listView_);
            return 0;
        case WM_SETTINGCHANGE:
            SHHandleWMSettingChange(hwnd(), wParam, lParam, &activateInfo_);
            return 0;
        case WM_SETFOCUS: SetFocus(listView_); return 0;
        case WM_SIZE:
            // Before it is shown it gets its last size.
            if (IsWindowVisible(hwnd())) LayOut({LOWORD(lParam), HIWORD(lParam)});
            return 0;
        case WM_SHOWWINDOW:
            if (wParam) {
                RECT area;
                GetClientRect(hwnd(), &area);
                LayOut({area.right, area.bottom});
            }
            return std::nullopt;
    }
    return std::nullopt;
}

bool MainFrame::OnCreate() {
    startTabs_ = TabSettings::Read();
    GetThemeColors().Refresh();
    SetWindowTextW(hwnd(), LanguageTable::LoadSource(IDS_APP_TITLE).c_str());

    SHMENUBARINFO bar = {};
    bar.cbSize = sizeof bar;
    bar.hwndParent = hwnd();
    bar.dwFlags = SHCMBF_HMENU;
    bar.nToolBarId = IDM_MAIN;
    bar.hInstRes = ResourceLibrary();
    SHCreateMenuBar(&bar);

    ApplySharedFonts(hwnd());

    updateMessage_ = RegisterWindowMessageW(L"LumDiary_UpdateSettings");
    SHDoneButton(hwnd(), SHDB_SHOW);
    activateInfo_.cbSize = sizeof activateInfo_;
    CreateListView();
    FillListView();
    GetLanguageTable().TranslateWindow(hwnd());
    GetLanguageTable().TranslateMenuBar(hwnd());
    return true;
}

// At once as wide as it is going to be, and so high that nothing is scrolled.
void MainFrame::CreateListView() {
    RECT client = {};
    GetClientRect(hwnd(), &client);
    listView_ =
        CreateWindowExW(kListExtendedStyle, WC_LISTVIEWW, L"", kListStyle, 0, 0, client.right,
                        kAnyHeight, hwnd(), nullptr, ModuleInstance(), nullptr);
    SendMessageW(listView_, CCM_SETVERSION, kCommonControlsVersion, 0);
    SendMessageW(listView_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_ONECLICKACTIVATE);
    SendMessageW(listView_, LVM_SETICONSPACING, 0,
                 MAKELPARAM(ScaleX(kEntryWidth), ScaleY(kEntryHeight)));

    savedListFont_ = reinterpret_cast<HFONT>(SendMessageW(listView_, WM_GETFONT, 0, 0));
    const HGDIOBJ base = savedListFont_ ? savedListFont_ : GetStockObject(SYSTEM_FONT);
    LOGFONTW font = {};
    GetObjectW(base, sizeof font, &font);
    font.lfWeight = FW_BOLD;
    font.lfHeight = ScaleY(kListFontHeight);
    font.lfWidth = 0;
    listFont_.Reset(CreateFontIndirectW(&font));
    SendMessageW(listView_, WM_SETFONT, reinterpret_cast<WPARAM>(listFont_.get()), FALSE);
}

void MainFrame::FillListView() {
    const int width = GetSystemMetrics(SM_CXICON);
    const int height = GetSystemMetrics(SM_CYICON);
    imageList_.Reset(ImageList_Create(width, height, ILC_MASK, 0, 1));
    SendMessageW(listView_, LVM_SETIMAGELIST, LVSIL_NORMAL,
                 reinterpret_cast<LPARAM>(imageList_.get()));

    wchar_t columnName[] = L"Main";
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT;
    column.pszText = columnName;
    SendMessageW(listView_, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));

    // Measured and arranged once, not after each entry.
    SendMessageW(listView_, WM_SETREDRAW, FALSE, 0);
    int index = 0;
    for (const MainEntry& entry : MainEntries()) {
        const OwnedIcon icon(static_cast<HICON>(LoadImageW(
            ResourceLibrary(), MAKEINTRESOURCEW(entry.icon), IMAGE_ICON, width, height, 0)));
        ImageList_ReplaceIcon(imageList_.get(), -1, icon.get());

        std::wstring text = GetLanguageTable().LoadString(entry.text);
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = index;
        item.iImage = index;
        item.pszText = text.data();
        SendMessageW(listView_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        ++index;
    }
    SendMessageW(listView_, WM_SETREDRAW, TRUE, 0);
    // Where the direction keys begin.
    LVITEMW first = {};
    first.stateMask = first.state = LVIS_FOCUSED;
    SendMessageW(listView_, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&first));
}

// The list arranges its entries before it shows or hides a scroll bar. So first there is none, then
// the one that is needed, then they are arranged beside it.
void MainFrame::LayOut(SIZE client) {
    if (!listView_) return;
    const auto size = [&](LONG height) { MoveWindow(listView_, 0, 0, client.cx, height, TRUE); };
    RECT list = {};
    GetWindowRect(listView_, &list);
    if (list.right - list.left != client.cx || list.bottom - list.top != kAnyHeight)
        size(kAnyHeight);
    RECT entries = {};
    SendMessageW(listView_, LVM_GETVIEWRECT, 0, reinterpret_cast<LPARAM>(&entries));
    if (entries.bottom - entries.top > client.cy) size(client.cy - 1);
    size(client.cy);
}

bool MainFrame::OnCommand(int id) {
    switch (id) {
        case IDOK:
        case ID_APP_EXIT: PostMessageW(hwnd(), WM_CLOSE, 0, 0); return true;
        case IDM_ABOUT_BOX: ShowAboutBox(); return true;
        case ID_APP_ABOUT: {
            AboutDialog about;
            about.DoModal(GetActiveWindow());
            if (closing_) PostMessageW(hwnd(), WM_CLOSE, 0, 0);
            return true;
        }
        case IDM_EXPORT: ExportSettings(hwnd()); return true;
        case IDM_IMPORT:
            if (ImportSettings(hwnd())) settingsChanged_ = true;
            return true;
        case IDM_ACCEPTED: return true;
    }
    return false;
}

void MainFrame::ShowAboutBox() {
    MessageBoxW(hwnd(), GetLanguageTable().LoadString(IDS_ABOUT_TEXT).c_str(),
                GetLanguageTable().LoadString(IDS_APP_TITLE).c_str(), MB_ICONINFORMATION);
}

void MainFrame::OnInitMenuPopup(HMENU menu) {
    for (const CommandState* state = kCommandStates; state->command != kLastCommand; ++state) {
        EnableMenuItem(menu, state->command,
                       MF_BYCOMMAND | (state->enabled ? MF_ENABLED : MF_GRAYED));
    }
    GetLanguageTable().TranslateMenu(menu);
}

std::optional<LRESULT> MainFrame::OnNotify(const NMHDR& header) {
    if (header.hwndFrom != listView_) return std::nullopt;
    switch (header.code) {
        case LVN_ITEMACTIVATE: {
            // A key activates the focused item and, other than a tap, need not say which that is.
            const LRESULT item = SendMessageW(listView_, LVM_GETNEXTITEM, -1, LVNI_FOCUSED);
            if (item >= 0) Open(item, 0);
            return 0;
        }
        case kNotifyRecognizeGesture: return 1;
    }
    return std::nullopt;
}

void MainFrame::Open(WPARAM entry, LPARAM page) {
    if (OpenEntry(entry, page)) settingsChanged_ = true;
    if (closing_) PostMessageW(hwnd(), WM_CLOSE, 0, 0);
}

// What is open is cancelled first, from the inside out; the window closes when nothing is left.
void MainFrame::OnClose() {
    const HWND modal = ModalWindow::Innermost();
    if (!modal) {
        DestroyWindow(hwnd());
        return;
    }
    if (!IsWindowEnabled(modal)) return;  // A message box wants its answer first.
    closing_ = true;
    ModalWindow::CancelAll();
}

void MainFrame::OnDestroy() {
    ReleaseSharedFonts();
    SendMessageW(listView_, WM_SETFONT, reinterpret_cast<WPARAM>(savedListFont_), FALSE);
    imageList_.Reset();
    listFont_.Reset();
    GetThemeColors().Release();
    if (settingsChanged_) NotifyPlugin(updateMessage_, 0, startTabs_);
    if (listView_) {
        DestroyWindow(listView_);
        listView_ = nullptr;
    }
    PostQuitMessage(0);
}
