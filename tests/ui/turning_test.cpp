// The screen is turned while something is open.
#include <commctrl.h>

#include <vector>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class Turning : public DeviceTest {
  protected:
    ~Turning() override { Control(L"screen 320x240"); }

    static bool Turn() { return Control(L"turn"); }

    static std::vector<RECT> Places(HWND page) {
        std::vector<RECT> places;
        for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            RECT place;
            GetWindowRect(child, &place);
            places.push_back(place);
        }
        return places;
    }
    static bool AreEqual(const std::vector<RECT>& a, const std::vector<RECT>& b) {
        return a.size() == b.size() &&
               std::equal(a.begin(), a.end(), b.begin(),
                          [](const RECT& x, const RECT& y) { return EqualRect(&x, &y); });
    }
    static bool IsOnScreen(HWND window, LONG width, LONG height) {
        RECT area;
        return GetWindowRect(window, &area) && area.left >= 0 && area.top >= 0 &&
               area.right <= width && area.bottom <= height;
    }
};

TEST_F(Turning, KeepsWhatIsNotStoredYetAndStandsAsIfOpenedSo) {
    Program program(L"-P1:0");
    HWND sheet = program.Sheet(L"Calendar options");
    HWND page = Page(sheet, IDC_CALENDAR_PERIOD);
    ASSERT_TRUE(page);
    const std::vector<RECT> wide = Places(page);
    Select(page, IDC_CALENDAR_PERIOD, 0);
    Click(page, IDC_GROUP_TODAY);
    SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(page, IDC_GROUP_SPAN)),
                 TRUE);
    ASSERT_TRUE(Turn());
    const std::vector<RECT> upright = Places(page);
    EXPECT_FALSE(AreEqual(upright, wide));
    EXPECT_TRUE(FocusIs(page, IDC_GROUP_SPAN));
    EXPECT_EQ(Selected(page, IDC_CALENDAR_PERIOD), L"1");
    EXPECT_FALSE(IsChecked(page, IDC_GROUP_TODAY));
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(Stored(L"CalendarPeriod"), 1u);
    EXPECT_EQ(Stored(L"AppGroup_Today"), 0u);

    program.Open(1, 0);
    sheet = program.Sheet(L"Calendar options");
    page = Page(sheet, IDC_CALENDAR_PERIOD);
    EXPECT_TRUE(AreEqual(Places(page), upright));
    ASSERT_TRUE(Turn());
    EXPECT_TRUE(AreEqual(Places(page), wide));
}

TEST_F(Turning, SizePageGoesOnWithTheOtherHeight) {
    Put(L"AutoSizeAdjust", 0);
    Put(L"TotalHeight", 150);
    Put(L"TotalHeightL", 130);
    Program program(L"-P0:0");
    const HWND sheet = program.Sheet(L"General options");
    const HWND page = Page(sheet, IDC_HEIGHT);
    ASSERT_TRUE(page);
    EXPECT_EQ(Text(page, IDC_HEIGHT), L"130");
    SetDlgItemTextW(page, IDC_HEIGHT, L"131");
    ASSERT_TRUE(Turn());
    EXPECT_EQ(Text(page, IDC_HEIGHT), L"150");
    SetDlgItemTextW(page, IDC_HEIGHT, L"9999");
    ASSERT_TRUE(Turn());
    EXPECT_EQ(Text(page, IDC_HEIGHT), L"131");
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(Stored(L"TotalHeightL"), 131u);
    EXPECT_EQ(Stored(L"TotalHeight"), 300u);
}

TEST_F(Turning, TreeStaysWhereItWasScrolled) {
    Program program(L"-P5:1");
    const HWND page = Page(program.Sheet(L"Message options"), IDC_MAIL_FOLDERS);
    ASSERT_TRUE(page);
    const HWND tree = GetDlgItem(page, IDC_MAIL_FOLDERS);
    const auto item = [tree](WPARAM relation, LPARAM of = 0) {
        return SendMessageW(tree, TVM_GETNEXTITEM, relation, of);
    };
    for (LRESULT root = item(TVGN_ROOT); root; root = item(TVGN_NEXT, root)) {
        SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, root);
    }
    const LRESULT third = item(TVGN_NEXT, item(TVGN_NEXT, item(TVGN_ROOT)));
    SendMessageW(tree, TVM_SELECTITEM, TVGN_FIRSTVISIBLE, third);
    ASSERT_EQ(item(TVGN_FIRSTVISIBLE), third);
    ASSERT_TRUE(Turn());
    EXPECT_EQ(item(TVGN_FIRSTVISIBLE), third);
}

TEST_F(Turning, ColorsFollowTheirButton) {
    Program program(L"-P7:0");
    const HWND dialog = program.Sheet(L"Category Icons");
    ASSERT_TRUE(dialog);
    const HWND button = GetDlgItem(dialog, IDC_CATEGORY_COLOR);
    PostMessageW(dialog, WM_COMMAND, IDC_CATEGORY_COLOR, reinterpret_cast<LPARAM>(button));
    HWND colors = nullptr;
    ASSERT_TRUE(Until([&] {
        colors = FindWindowW(L"LumDiaryColorsListWnd.0", nullptr);
        return colors && IsWindowVisible(colors);
    }));
    ASSERT_TRUE(Turn());
    EXPECT_TRUE(IsWindowVisible(colors));
    EXPECT_TRUE(IsOnScreen(colors, 240, 320));
    RECT grid, below;
    GetWindowRect(colors, &grid);
    GetWindowRect(button, &below);
    EXPECT_TRUE(grid.bottom <= below.top || grid.top >= below.bottom) << "it covers its button";
    PostMessageW(colors, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Until([colors] { return !IsWindowVisible(colors); }));
}

TEST_F(Turning, MessageStaysOnTheScreenAndIsAnswered) {
    Put(L"AutoSizeAdjust", 0);
    Program program(L"-P0:0");
    const HWND sheet = program.Sheet(L"General options");
    const HWND page = Page(sheet, IDC_HEIGHT);
    ASSERT_TRUE(page);
    SetDlgItemTextW(page, IDC_HEIGHT, L"1");
    PostMessageW(sheet, WM_COMMAND, IDOK, 0);
    const HWND box = program.Sheet(L"Lum Diary Options");
    ASSERT_TRUE(box);
    ASSERT_TRUE(Turn());
    EXPECT_TRUE(IsOnScreen(box, 240, 320));
    EXPECT_TRUE(IsOnScreen(sheet, 240, 320));
    ASSERT_TRUE(Ok(box));
    EXPECT_TRUE(Until([&] { return FocusIs(page, IDC_HEIGHT); }));
}

}  // namespace
