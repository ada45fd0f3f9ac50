// The controls of colours and icons in a dialog of their own, driven by messages.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "app/language/module.h"
#include "appearance/categories/color_button.h"
#include "appearance/categories/icon_library.h"
#include "appearance/categories/icons_list_control.h"
#include "appearance/drawing/theme_colors.h"
#include "base/scale.h"
#include "controls/dialog.h"
#include "settings/install_path.h"
#include "tests/windows.h"

namespace {

constexpr int kButton = 4400;
constexpr int kOther = 4401;
constexpr int kList = 4402;
using Commands = std::vector<std::pair<int, int>>;
constexpr UINT kTurnAway = WM_APP;

class TestDialog : public Dialog {
  public:
    void Open() {
        InitModule(GetModuleHandleW(nullptr));
        if (!ResourceLibrary()) LoadResourceLibrary(GetInstallPath(L"DiaryRes.Dll"));
        GetThemeColors().Refresh();
        CreateDialogParamW(ModuleInstance(), MAKEINTRESOURCEW(200), nullptr, DialogProcedure,
                           reinterpret_cast<LPARAM>(static_cast<Dialog*>(this)));
        ShowWindow(hwnd(), SW_SHOW);
        SetForegroundWindow(hwnd());
        SetFocus(button.hwnd());
        Pump();
        commands.clear();
    }
    ~TestDialog() override {
        if (hwnd()) DestroyWindow(hwnd());
    }

    ColorButton button;
    IconsListControl list;
    IconLibrary library;
    Commands commands;  // of our controls, past what the button takes

  protected:
    bool OnInitDialog() override {
        EXPECT_TRUE(button.Create(hwnd(), kButton));
        RECT area = {};
        GetClientRect(hwnd(), &area);
        area.top = ScaleY(40);
        EXPECT_TRUE(list.Create(hwnd(), kList, area));
        return false;
    }
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_DRAWITEM:
                return button.OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            case WM_COMMAND:
                if (button.OnCommand(LOWORD(wParam), HIWORD(wParam))) return TRUE;
                if (LOWORD(wParam) != kOther) commands.emplace_back(LOWORD(wParam), HIWORD(wParam));
                return TRUE;
            case WM_CLOSE: DestroyWindow(hwnd()); return TRUE;
            case kTurnAway: SetFocus(Item(kOther)); return TRUE;
        }
        return std::nullopt;
    }
};

TEST(ColorButton, ChoosesAColorFromItsGrid) {
    // A key, which goes where the focus is, or what the grid's window is told.
    struct Step {
        UINT message;
        WPARAM wParam = 0;
        LPARAM lParam = 0;
    };
    struct Case {
        const char* what;
        COLORREF before;
        std::vector<Step> steps;
        COLORREF after;
        bool chosen;
    };
    const auto point = [](int x, int y) { return MAKELPARAM(ScaleX(x), ScaleY(y)); };
    const Step right = {WM_KEYDOWN, VK_RIGHT}, down = {WM_KEYDOWN, VK_DOWN};
    const Step up = {WM_KEYDOWN, VK_UP}, enter = {WM_KEYDOWN, VK_RETURN}, lift = {WM_LBUTTONUP};
    const auto tap = [&](int x, int y) { return Step{WM_LBUTTONDOWN, 0, point(x, y)}; };
    const Commands told = {{kButton, 0x400}};
    TestDialog dialog;
    dialog.Open();
    const HWND grid = FindWindowW(L"LumDiaryColorsListWnd.0", nullptr);
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(SendMessageW(grid, WM_GETDLGCODE, 0, 0), DLGC_WANTALLKEYS);
    const std::vector<Case> cases = {
        {"keys", kNoColor, {right, down, enter}, 0x2068FF, true},
        {"the edge", 0x282828, {right, up, down, enter}, 0x666666, true},
        {"past the last", 0xFF, {tap(145, 91), lift}, 0xFFFFFF, true},
        {"none", 0xFF, {tap(5, 5), lift}, kNoColor, true},
        {"the same again", 0xFF, {enter}, 0xFF, true},
        {"Escape", 0xFF, {right, {WM_KEYDOWN, VK_ESCAPE}}, 0xFF, false},
        {"a tap elsewhere", 0xFF, {tap(-9, -9)}, 0xFF, false},
        {"a colour that is not there", 0x123456, {enter}, 0x123456, false},
        {"closed", 0xFF, {{WM_CLOSE}}, 0xFF, false},
    };
    for (const Case& c : cases) {
        dialog.button.SetColor(c.before);
        for (const Step& step : c.steps) {
            const bool isKey = step.message == WM_KEYDOWN;
            PostMessageW(isKey ? dialog.button.hwnd() : grid, step.message, step.wParam,
                         step.lParam);
        }
        SendMessageW(dialog.button.hwnd(), BM_CLICK, 0, 0);
        EXPECT_FALSE(IsWindowVisible(grid)) << c.what;
        Pump();
        EXPECT_EQ(dialog.button.GetColor(), c.after) << c.what;
        EXPECT_EQ(std::exchange(dialog.commands, {}), c.chosen ? told : Commands()) << c.what;
    }
    // The focus and the dialog may go while the grid is open.
    PostMessageW(dialog.hwnd(), kTurnAway, 0, 0);
    SendMessageW(dialog.button.hwnd(), BM_CLICK, 0, 0);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog.hwnd(), kOther));
    PostMessageW(dialog.hwnd(), WM_CLOSE, 0, 0);
    SendMessageW(dialog.button.hwnd(), BM_CLICK, 0, 0);
    EXPECT_FALSE(IsWindow(grid));
}

TEST(IconsList, SelectsScrollsAndFolds) {
    TestDialog dialog;
    dialog.Open();
    IconsListControl& list = dialog.list;
    dialog.library.LoadFolder(L"\\Program Files\\Lum Diary\\IconSet");
    list.Show(&dialog.library);
    const auto press = [&](WPARAM key) { SendMessageW(list.hwnd(), WM_KEYDOWN, key, 0); };
    const auto tap = [&](UINT message, int x, int y) {
        SendMessageW(list.hwnd(), message, 0, MAKELPARAM(ScaleX(x), ScaleY(y)));
        UpdateWindow(list.hwnd());
    };
    const auto selected = [&] {
        const auto path = list.SelectedPath();
        return path ? path->substr(path->rfind(L'\\') + 1) : L"";
    };
    const auto scroll = [&] {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_POS | SIF_RANGE;
        GetScrollInfo(list.hwnd(), SB_VERT, &info);
        return std::pair(info.nPos, info.nMax);
    };
    // The empty group, then the first of the catalogue, whose icons begin at 30.
    tap(WM_LBUTTONDOWN, 30, 40);
    const std::wstring first = selected();
    EXPECT_NE(first, L"");
    tap(WM_LBUTTONDBLCLK, 30, 40);
    EXPECT_EQ(dialog.commands,
              (Commands{{kList, kIconsListSelected}, {kList, kIconsListActivated}}));
    press(VK_END);
    EXPECT_NE(selected(), first);
    EXPECT_GT(scroll().first, 0);
    press(VK_HOME);
    EXPECT_EQ(selected(), L"");
    EXPECT_EQ(scroll().first, 0);

    // A fold, by the stylus and by a key, hides the icons and a selection among them.
    tap(WM_LBUTTONDOWN, 30, 40);
    const int open = scroll().second;
    tap(WM_LBUTTONDOWN, 60, 20);
    EXPECT_LT(scroll().second, open);
    EXPECT_EQ(selected(), L"");
    press(VK_RIGHT);
    EXPECT_EQ(scroll().second, open);
    SendMessageW(list.hwnd(), WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_GT(scroll().first, 0);
    dialog.library.Clear();
    list.Show(nullptr);
    EXPECT_EQ(scroll(), std::pair(0, 0));
    press(VK_DOWN);
    EXPECT_EQ(selected(), L"");
}

}  // namespace
