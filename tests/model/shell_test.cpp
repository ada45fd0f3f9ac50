// The stand-in shell and property sheets, as a program with one thread sees them.
#include <aygshell.h>
#include <commctrl.h>
#include <gtest/gtest.h>
#include <sipapi.h>
#include <windows.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/windows.h"

namespace {

constexpr UINT kStep = WM_APP;

// A program's main window, and what it was told.
class Frame {
  public:
    Frame() {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"Frame";
        RegisterClassW(&windowClass);
        SHInitExtraControls();
        hwnd_ = CreateWindowExW(0, L"Frame", L"Frame", WS_OVERLAPPED, 0, kBar,
                                GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) - kBar,
                                nullptr, nullptr, windowClass.hInstance, nullptr);
        commands.clear();
        ShowWindow(hwnd_, SW_SHOW);
    }
    ~Frame() { DestroyWindow(hwnd_); }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    HWND hwnd() const { return hwnd_; }

    HWND CreateMenuBar(DWORD flags) const {
        SHMENUBARINFO info = {};
        info.cbSize = sizeof info;
        info.hwndParent = hwnd_;
        info.dwFlags = flags;
        info.nToolBarId = 100;
        info.hInstRes = GetModuleHandleW(nullptr);
        return SHCreateMenuBar(&info) ? info.hwndMB : nullptr;
    }

    static inline std::vector<int> commands;
    static inline int panelChanges = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
            case WM_COMMAND: commands.push_back(LOWORD(wParam)); return 0;
            case WM_SETTINGCHANGE: {
                static SHACTIVATEINFO info = {sizeof info, nullptr, 0, 0, 0, 0};
                panelChanges += wParam == SPI_SETSIPINFO;
                SHHandleWMSettingChange(hwnd, wParam, lParam, &info);
                return 0;
            }
        }
        return DefWindowProcW(hwnd, message, wParam, lParam);
    }

    HWND hwnd_;
};

void Click(HWND hwnd, int x, int y) {
    PostMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Pump();
}

TEST(MenuBar, AnswersAsAToolBar) {
    const Frame frame;
    const HWND bar = frame.CreateMenuBar(SHCMBF_HMENU);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(SHFindMenuBar(frame.hwnd()), bar);
    ASSERT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 2);
    TBBUTTON buttons[2] = {};
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(SendMessageW(bar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&buttons[i])));
    }
    EXPECT_NE(buttons[0].idCommand, 0);
    EXPECT_EQ(buttons[1].idCommand, 202);

    wchar_t text[32] = {};
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_LPARAM;
    info.pszText = text;
    info.cchText = 32;
    const auto get = [&](DWORD mask, int button) {
        info.dwMask = mask;
        return SendMessageW(bar, TB_GETBUTTONINFOW, button, reinterpret_cast<LPARAM>(&info));
    };
    EXPECT_EQ(get(TBIF_TEXT | TBIF_LPARAM, buttons[0].idCommand), 0);
    EXPECT_STREQ(text, L"Edit");
    EXPECT_EQ(GetMenuItemID(reinterpret_cast<HMENU>(info.lParam), 0), 201u);
    EXPECT_EQ(get(TBIF_TEXT | TBIF_LPARAM | TBIF_BYINDEX, 1), 1);
    EXPECT_STREQ(text, L"Close");
    EXPECT_EQ(info.lParam, 0u);

    wchar_t changed[] = L"Schlie\u00DFen";
    info.pszText = changed;
    info.dwMask = TBIF_TEXT;
    EXPECT_TRUE(SendMessageW(bar, TB_SETBUTTONINFOW, 202, reinterpret_cast<LPARAM>(&info)));
    info.pszText = text;
    info.cchText = 4;
    EXPECT_EQ(get(TBIF_TEXT, 202), 1);
    EXPECT_STREQ(text, L"Sch");
    info.cbSize -= 4;
    EXPECT_EQ(get(TBIF_TEXT, 202), -1);
    EXPECT_FALSE(SendMessageW(bar, TB_GETBUTTON, 2, reinterpret_cast<LPARAM>(&buttons[0])));
}

TEST(MenuBar, ShowsWithItsWindowAndDiesWithIt) {
    HWND bar = nullptr;
    {
        const Frame frame;
        bar = frame.CreateMenuBar(SHCMBF_EMPTYBAR);
        EXPECT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 0);
        EXPECT_TRUE(IsWindowVisible(bar));
        EXPECT_EQ(RectOf(bar).top, WorkArea().bottom);
        {
            const Frame over;
            EXPECT_FALSE(IsWindowVisible(bar));
            EXPECT_EQ(SHFindMenuBar(over.hwnd()), nullptr);
        }
        SetActiveWindow(frame.hwnd());
        EXPECT_TRUE(IsWindowVisible(bar));
        const HWND box = CreateWindowExW(0, L"EDIT", L"", WS_POPUP | WS_VISIBLE, 10, 60, 50, 50,
                                         frame.hwnd(), nullptr, nullptr, nullptr);
        SetActiveWindow(box);
        EXPECT_TRUE(IsWindowVisible(bar)) << "under a small box";
    }
    EXPECT_FALSE(IsWindow(bar));
}

TEST(NavigationBar, ItsOkButtonServesTheActiveWindow) {
    const Frame frame;
    const HWND bar = FindWindowW(L"HHTaskBar", nullptr);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(RectOf(bar).bottom, kBar);
    const int x = GetSystemMetrics(SM_CXSCREEN) - 14;
    Click(bar, x, kBar / 2);
    EXPECT_TRUE(frame.commands.empty());
    EXPECT_TRUE(SHDoneButton(frame.hwnd(), SHDB_SHOW));
    Click(bar, x, kBar / 2);
    EXPECT_EQ(frame.commands, std::vector<int>{IDOK});
    Click(bar, x - 40, kBar / 2);
    EXPECT_TRUE(SHDoneButton(frame.hwnd(), SHDB_HIDE));
    Click(bar, x, kBar / 2);
    EXPECT_EQ(frame.commands.size(), 1u);
}

INT_PTR CALLBACK NoMessages(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

TEST(FullScreenDialog, FillsTheWorkAreaUnlessItIsAPage) {
    const Frame frame;
    SHINITDLGINFO info = {};
    info.dwMask = SHIDIM_FLAGS;
    info.dwFlags = SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN;
    for (const int dialog : {103, 101}) {
        info.hDlg = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialog),
                                       frame.hwnd(), NoMessages, 0);
        const RECT expected = dialog == 103 ? WorkArea() : RectOf(info.hDlg);
        EXPECT_TRUE(SHInitDialog(&info));
        const RECT area = RectOf(info.hDlg);
        EXPECT_TRUE(EqualRect(&area, &expected)) << dialog;
        EXPECT_EQ(SHDoneButton(info.hDlg, SHDB_SHOW) != FALSE, dialog == 103);
        EXPECT_EQ((GetWindowLongW(info.hDlg, GWL_STYLE) & WS_CAPTION) == 0, dialog == 103);
        DestroyWindow(info.hDlg);
    }
}

bool PanelIsUp() {
    SIPINFO info = {};
    info.cbSize = sizeof info;
    return SipGetInfo(&info) && info.fdwFlags & SIPF_ON;
}

bool PanelGets(bool up) {
    for (int i = 0; i < 100 && PanelIsUp() != up; ++i, Sleep(20)) Pump();
    return PanelIsUp() == up;
}

TEST(InputPanel, RisesByItsButtonAndTypes) {
    const Frame frame;
    const HWND bar = frame.CreateMenuBar(SHCMBF_HMENU);
    const HWND edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 90, 20,
                                      frame.hwnd(), nullptr, nullptr, nullptr);
    SetFocus(edit);
    frame.panelChanges = 0;
    Click(bar, GetSystemMetrics(SM_CXSCREEN) / 2, kBar / 2);
    EXPECT_TRUE(PanelIsUp());
    EXPECT_EQ(frame.panelChanges, 1);
    EXPECT_EQ(RectOf(frame.hwnd()).bottom, WorkArea().bottom - 80);
    const HWND keyboard = FindWindowW(L"PocketPC.Keyboard", nullptr);
    EXPECT_EQ(RectOf(keyboard).top, WorkArea().bottom - 80);
    for (const POINT key : {POINT{10, 10}, {20, 55}, {10, 10}, {50, 55}}) {  // 1, shift, !, z
        Click(keyboard, key.x, key.y);
    }
    EXPECT_EQ(GetFocus(), edit);
    wchar_t text[8] = {};
    GetWindowTextW(edit, text, 8);
    EXPECT_STREQ(text, L"1!z");
    Click(bar, GetSystemMetrics(SM_CXSCREEN) / 2, kBar / 2);
    EXPECT_FALSE(PanelIsUp() || IsWindowVisible(keyboard));
    EXPECT_EQ(RectOf(frame.hwnd()).bottom, WorkArea().bottom);
    EXPECT_EQ(std::ranges::count(frame.commands, 202), 0) << "a soft key was pressed";
}

TEST(InputPanel, RisesForTheEditControlsOfADialogThatAsksForIt) {
    const Frame frame;
    SHSipPreference(frame.hwnd(), SIP_UP);
    SHINITDLGINFO info = {};
    info.dwMask = SHIDIM_FLAGS;
    info.dwFlags = SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN;
    info.hDlg = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(103), frame.hwnd(),
                                   NoMessages, 0);
    ShowWindow(info.hDlg, SW_SHOW);
    EXPECT_TRUE(SHInitDialog(&info));
    SetFocus(GetDlgItem(info.hDlg, 1002));
    EXPECT_TRUE(PanelGets(false));
    SetFocus(GetDlgItem(info.hDlg, 1001));
    EXPECT_TRUE(PanelIsUp());
    EXPECT_EQ(RectOf(info.hDlg).bottom, WorkArea().bottom) << "a full-screen dialog keeps its size";
    SetFocus(GetDlgItem(info.hDlg, 1002));
    EXPECT_TRUE(PanelGets(false));
    DestroyWindow(info.hDlg);
}

// A sheet of two pages. What happens goes into the log; the steps run one after the other inside
// the sheet's message loop.
class SheetTest : public ::testing::Test {
  protected:
    void SetUp() override {
        log_.clear();
        steps_.clear();
        refusals_ = 0;
        sheet_ = nullptr;
        version_ = 524;
    }

    INT_PTR Run(std::vector<std::function<void()>> steps, DWORD flags = PSH_MAXIMIZE) {
        steps_ = std::move(steps);
        std::reverse(steps_.begin(), steps_.end());
        HPROPSHEETPAGE pages[2];
        for (int i = 0; i < 2; ++i) {
            PROPSHEETPAGEW page = {};
            page.dwSize = sizeof page;
            page.hInstance = GetModuleHandleW(nullptr);
            page.pszTemplate = MAKEINTRESOURCEW(101 + i);
            page.pfnDlgProc = PageProcedure;
            page.lParam = 1 + i;
            pages[i] = CreatePropertySheetPageW(&page);
        }
        PROPSHEETHEADERW header = {};
        header.dwSize = sizeof header;
        header.dwFlags = PSH_USECALLBACK | flags;
        header.hwndParent = frame_.hwnd();
        header.pszCaption = L"Sheet";
        header.nPages = 2;
        header.phpage = pages;
        header.pfnCallback = Callback;
        header_ = &header;
        return PropertySheetW(&header);
    }

    static HWND Page() {
        return reinterpret_cast<HWND>(SendMessageW(sheet_, PSM_GETCURRENTPAGEHWND, 0, 0));
    }
    static HWND Tabs() {
        return reinterpret_cast<HWND>(SendMessageW(sheet_, PSM_GETTABCONTROL, 0, 0));
    }
    static void Press(int id) { PostMessageW(sheet_, WM_COMMAND, id, 0); }

    static inline std::string log_;
    static inline HWND sheet_;
    static inline int refusals_;
    static inline int version_;

  private:
    static int CALLBACK Callback(HWND hwnd, UINT code, LPARAM lParam) {
        switch (code) {
            case PSCB_GETVERSION: log_ += hwnd ? "?" : "version "; return version_;
            case PSCB_PRECREATE: log_ += hwnd || !lParam ? "?" : "precreate "; return 0;
            case PSCB_INITIALIZED:
                log_ += lParam == reinterpret_cast<LPARAM>(header_) ? "initialized " : "?";
                sheet_ = hwnd;
                PostMessageW(hwnd, kStep, 0, 0);
                SetWindowSubclass(hwnd, SheetProcedure, 1, 0);
                return 0;
            case PSCB_GETTITLE: log_ += hwnd == sheet_ && lParam ? "title " : "?"; return 0;
            case PSCB_GETLINKTEXT: log_ += hwnd == sheet_ && lParam ? "link " : "?"; return 0;
        }
        log_ += "?";
        return 0;
    }

    static LRESULT CALLBACK SheetProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR, DWORD_PTR) {
        if (message == kStep && !steps_.empty()) {
            const std::function<void()> step = std::move(steps_.back());
            steps_.pop_back();
            step();
            PostMessageW(hwnd, kStep, 0, 0);
            return 0;
        }
        return DefSubclassProc(hwnd, message, wParam, lParam);
    }

    static INT_PTR CALLBACK PageProcedure(HWND hwnd, UINT message, WPARAM, LPARAM lParam) {
        if (message == WM_INITDIALOG) {
            const LPARAM number = reinterpret_cast<const PROPSHEETPAGEW*>(lParam)->lParam;
            SetWindowLongPtrW(hwnd, GWLP_USERDATA, number);
            return TRUE;
        }
        if (message != WM_NOTIFY) return FALSE;
        static const std::map<UINT, std::string> names = {{PSN_SETACTIVE, "setactive"},
                                                          {PSN_KILLACTIVE, "killactive"},
                                                          {PSN_HELP, "help"},
                                                          {PSN_RESET, "reset"},
                                                          {PSN_APPLY, "apply"}};
        const auto name = names.find(reinterpret_cast<const NMHDR*>(lParam)->code);
        if (name == names.end()) return FALSE;
        const bool refuses = name->first == PSN_APPLY && refusals_ > 0 && refusals_--;
        const LRESULT result = refuses ? PSNRET_INVALID_NOCHANGEPAGE : PSNRET_NOERROR;
        log_ += name->second + std::to_string(GetWindowLongPtrW(hwnd, GWLP_USERDATA)) + " ";
        SetWindowLongPtrW(hwnd, DWLP_MSGRESULT, result);
        return TRUE;
    }

    static inline std::vector<std::function<void()>> steps_;
    static inline const PROPSHEETHEADERW* header_;
    Frame frame_;
};

TEST(Sheets, AreRefusedWithOtherSizes) {
    PROPSHEETPAGEW page = {};
    page.hInstance = GetModuleHandleW(nullptr);
    page.pszTemplate = MAKEINTRESOURCEW(101);
    HPROPSHEETPAGE pages[1] = {};
    PROPSHEETHEADERW header = {};
    header.phpage = pages;
    header.nPages = 1;
    const DWORD least = PROPSHEETPAGEW_V1_SIZE, leastHeader = PROPSHEETHEADERW_V1_SIZE;
    for (const DWORD size : {DWORD{0}, least - 1, least, DWORD{sizeof page}, DWORD{1000}}) {
        page.dwSize = size;
        pages[0] = CreatePropertySheetPageW(&page);
        EXPECT_EQ(pages[0] != nullptr, size == least || size == sizeof page) << size;
        DestroyPropertySheetPage(pages[0]);
    }
    for (const DWORD size : {DWORD{0}, leastHeader - 1, leastHeader + 1, DWORD{1000}}) {
        header.dwSize = size;
        EXPECT_EQ(PropertySheetW(&header), -1) << size;
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER)) << size;
    }
}

constexpr char kOpening[] = "version precreate initialized title link setactive1 ";

TEST_F(SheetTest, ARefusedApplyKeepsTheSheetAndKeysTurnThePages) {
    refusals_ = 1;
    EXPECT_GT(Run({[] { Press(IDOK); }, [] { log_ += "again "; }, [] { Press(IDOK); }}), 0);
    EXPECT_EQ(std::exchange(log_, {}),
              std::string(kOpening) + "killactive1 apply1 again killactive1 apply1 ");
    const auto press = [] {
        BYTE keys[256] = {};
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys);
        PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 0);
    };
    const auto focusIsOnThePage = [] { EXPECT_TRUE(IsChild(Page(), GetFocus())); };
    Run({press, focusIsOnThePage, focusIsOnThePage, press, focusIsOnThePage, focusIsOnThePage,
         [] { Press(IDCANCEL); }});
    SetKeyboardState(std::vector<BYTE>(256).data());
    EXPECT_EQ(log_, std::string(kOpening) +
                        "killactive1 setactive2 killactive2 setactive1 reset1 reset2 ");
}

TEST_F(SheetTest, MaximizedItFillsTheWorkAreaWithTabsAtTheBottom) {
    const RECT area = WorkArea();
    const auto look = [&] {
        RECT firstTab = {};
        SendMessageW(Tabs(), TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&firstTab));
        const RECT sheet = RectOf(sheet_), page = RectOf(Page()), tabs = RectOf(Tabs());
        EXPECT_FALSE(GetWindowLongW(sheet_, GWL_STYLE) & WS_CAPTION);
        for (const int id : {IDOK, IDCANCEL, IDHELP}) {
            EXPECT_FALSE(IsWindowVisible(GetDlgItem(sheet_, id))) << id;
        }
        EXPECT_TRUE(EqualRect(&sheet, &area) && EqualRect(&tabs, &area));
        EXPECT_TRUE(page.top == area.top && page.right == area.right);
        EXPECT_LE(page.bottom, area.top + firstTab.top);
        EXPECT_GT(page.bottom, area.bottom - 30);
    };
    EXPECT_GE(Run({look, [] { Press(IDCANCEL); }}), 0);
    version_ = 0;  // Without the Pocket PC's version the tabs stay above.
    Run({[] { EXPECT_FALSE(GetWindowLongW(Tabs(), GWL_STYLE) & TCS_BOTTOM); },
         [&] { EXPECT_GT(RectOf(Page()).top, area.top + 10); }, [] { Press(IDCANCEL); }});
}

}  // namespace
