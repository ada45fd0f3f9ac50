// The pages of the General sheet that do more than load and store.
#include <commctrl.h>

#include <array>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class General : public DeviceTest {
  protected:
    HWND OpenPage(int page, int control) {
        return DeviceTest::OpenPage(program_, 0, page, control);
    }
    Program program_;
};

TEST_F(General, HeightKeepsItsRange) {
    Put(L"ShowTabs", 0xFFFFFFCF);
    Put(L"TotalHeight", 50);
    Put(L"TotalHeightL", 5000);
    Put(L"AutoSizeAdjust", 0);
    const HWND page = OpenPage(0, IDC_HEIGHT);
    ASSERT_TRUE(page);
    EXPECT_EQ(Stored(L"TotalHeight"), 80u) << "not raised on opening";
    EXPECT_EQ(Text(page, IDC_HEIGHT), L"300");
    SendDlgItemMessageW(page, IDC_HEIGHT_SPIN, WM_KEYDOWN, VK_DOWN, 0);
    for (const wchar_t* refused : {L"301", L"79", L"", L"99999999999"}) {
        SetDlgItemTextW(page, IDC_HEIGHT, refused);
        ASSERT_TRUE(IsRefused(program_)) << testing::PrintToString(refused);
    }
    // From another page the refusing one comes to the front, and stays there.
    TurnTo(sheet_, 7);
    ASSERT_TRUE(Page(sheet_, IDC_TIMEOUT_ON));
    PostMessageW(sheet_, WM_COMMAND, IDOK, 0);
    const HWND box = program_.Sheet(L"Lum Diary Options");
    ASSERT_TRUE(box);
    EXPECT_TRUE(IsWindowVisible(page));
    ASSERT_TRUE(Ok(box));
    EXPECT_EQ(Page(sheet_, IDC_HEIGHT), page);
    EXPECT_TRUE(Until([&] { return FocusIs(page, IDC_HEIGHT); }));

    SetDlgItemTextW(page, IDC_HEIGHT, L"125");
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"TotalHeightL"), 125u);

    // A height that adjusts itself is neither checked nor stored.
    const HWND again = OpenPage(0, IDC_HEIGHT);
    SetDlgItemTextW(again, IDC_HEIGHT, L"5");
    Click(again, IDC_AUTO_SIZE);
    EXPECT_FALSE(IsEnabled(again, IDC_HEIGHT));
    EXPECT_FALSE(IsEnabled(again, IDC_PIM)) << "there is no other program";
    Select(again, IDC_HEADER_STATE, 2);
    EXPECT_FALSE(IsEnabled(again, IDC_ALLOW_MINIMIZATION));
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"TotalHeightL"), 125u);
    EXPECT_EQ(Stored(L"TotalHeight"), 80u);
    EXPECT_EQ(Stored(L"HeaderMinimized"), 2u);
}

TEST_F(General, OnlyInstalledProgramsAreOffered) {
    constexpr wchar_t kAgenda[] = L"SOFTWARE\\Developer One\\Agenda One";
    CSettingsKey(HKEY_LOCAL_MACHINE, kAgenda, true, true).WriteString(L"InstallPath", L"\\x");
    Put(L"CurrentPIM", 3);
    HWND page = OpenPage(0, IDC_PIM);
    ASSERT_TRUE(page);
    EXPECT_EQ(Selected(page, IDC_PIM), L"Agenda One");
    EXPECT_EQ(SendDlgItemMessageW(page, IDC_PIM, CB_GETCOUNT, 0, 0), 2);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"CurrentPIM"), 3u);
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kAgenda);
    page = OpenPage(0, IDC_PIM);
    EXPECT_EQ(Selected(page, IDC_PIM), L"This device");
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"CurrentPIM"), 0u);
}

TEST_F(General, LongDatePreviewsAndRemembers) {
    Put(L"LongDate_CustomFormat", 2);
    Put(L"LongDate_ShortYear", 0);
    const HWND page = OpenPage(2, IDC_LONG_FORMAT);
    ASSERT_TRUE(page);
    EXPECT_FALSE(IsEnabled(page, IDC_LONG_FORMAT) || IsEnabled(page, IDC_LONG_SHORT_YEAR));
    const auto shown = [&] { return Selected(page, IDC_LONG_FORMAT); };
    const auto today = [](const wchar_t* picture) {
        wchar_t text[100] = {};
        GetDateFormatW(LOCALE_USER_DEFAULT, 0, nullptr, picture, text, 100);
        return std::wstring(text);
    };
    EXPECT_EQ(shown(), today(L"ddd, MMM d"));
    Click(page, IDC_LONG_REGIONAL);
    EXPECT_EQ(shown(), today(L"ddd, d MMM"));
    Click(page, IDC_LONG_NOT_YEAR);
    EXPECT_TRUE(IsEnabled(page, IDC_LONG_SHORT_YEAR));
    EXPECT_EQ(shown(), today(L"ddd, d MMM yyyy"));
    Select(page, IDC_LONG_FORMAT, 1);
    Click(page, IDC_LONG_REGIONAL);
    Click(page, IDC_LONG_REGIONAL);
    EXPECT_EQ(shown(), today(L"d MMM yyyy"));
    Click(page, IDC_LONG_NOT_YEAR);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"LongDate_CustomFormat"), 1u);
    EXPECT_EQ(Stored(L"LongDate_ShortYear"), 0u) << "written while the year is left out";
}

TEST_F(General, FontFollowsTheSystemOrTheLists) {
    {
        CSettingsKey key = OpenProductKey();
        key.WriteDword(L"UseSystem", 0);
        key.WriteDword(L"FontHeight", 15);
        key.WriteString(L"FontName", L"No Such Face");
    }
    HWND page = OpenPage(3, IDC_FONT_FACE);
    ASSERT_TRUE(page);
    EXPECT_EQ(Stored(L"ClearType"), 2u) << "of a device that shows this page first";
    EXPECT_EQ(Selected(page, IDC_FONT_FACE), L"");
    EXPECT_EQ(Selected(page, IDC_FONT_SIZE), L"");
    Select(page, IDC_FONT_CLEARTYPE, 1);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"FontName"), L"No Such Face");
    EXPECT_EQ(Stored(L"FontHeight"), 15u);
    EXPECT_EQ(Stored(L"ClearType"), 1u);

    page = OpenPage(3, IDC_FONT_FACE);
    Select(page, IDC_FONT_SIZE, 8);
    Click(page, IDC_FONT_SYSTEM);
    EXPECT_EQ(Selected(page, IDC_FONT_FACE), L"Tahoma");
    EXPECT_FALSE(IsEnabled(page, IDC_FONT_SIZE));
    EXPECT_EQ(Selected(page, IDC_FONT_SIZE), L"13");
    // The user changes the system's text size meanwhile.
    wchar_t deviceFile[MAX_PATH];
    GetFullPathNameW(L"\\device.ini", MAX_PATH, deviceFile, nullptr);
    for (const wchar_t* const size : {L"9", static_cast<const wchar_t*>(nullptr)}) {
        WritePrivateProfileStringW(L"device", L"textsize", size, deviceFile);
        SendMessageW(sheet_, RegisterWindowMessageW(L"SH_UIMETRIC_CHANGE"), 0, 1);
        EXPECT_EQ(Selected(page, IDC_FONT_SIZE), size ? L"11" : L"13");
    }
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"FontName"), L"Tahoma");
    EXPECT_EQ(Stored(L"FontHeight"), 13u);  // What 11 pixels of text take.
    EXPECT_EQ(Stored(L"ClearType"), 0u);
    EXPECT_EQ(Stored(L"UseSystem"), 1u);
}

int reloads = 0;

LRESULT CALLBACK TodayProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_WININICHANGE && wParam == 0xF2) ++reloads;
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

TEST_F(General, TabsAreMovedByKeysAndButtons) {
    const HWND window = MakeWindow(L"DesktopExplorerWindow", TodayProcedure);
    OpenProductKey().WriteString(L"ShowTabsSequence", L"2");
    Put(L"TotalHeight", 50);
    Put(L"TotalHeightL", 200);
    const HWND page = OpenPage(5, IDC_TABS_LIST);
    const HWND list = GetDlgItem(page, IDC_TABS_LIST);
    ASSERT_TRUE(list);
    EXPECT_FALSE(IsEnabled(page, IDC_TABS_UP));
    EXPECT_EQ(Ticks(list), L"xxxxxx");
    SendKeys(list, {VK_RIGHT});  // 1 2 3 4 5 6
    Click(page, IDC_TABS_DOWN);  // 1 3 2 4 5 6
    SendKeys(list, {VK_SPACE});  // The tasks are not shown.
    EXPECT_EQ(Ticks(list), L"xx-xxx");
    SendKeys(list, {VK_DOWN, VK_LEFT});  // 1 3 4 2 5 6
    Click(page, IDC_TABS_UP);            // 1 4 3 2 5 6
    EXPECT_FALSE(IsEnabled(page, IDC_TABS_IN_ONE)) << "there is no tab host";
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"ShowTabsSequence"), L"143256");
    EXPECT_EQ(Stored(L"ShowTabs"), 0xFFFFFFFEu);
    EXPECT_EQ(Stored(L"TotalHeight"), 100u);
    EXPECT_EQ(Stored(L"TotalHeightL"), 200u);
    EXPECT_TRUE(Until([] { return reloads == 1; })) << reloads;
    DestroyWindow(window);
}

TEST_F(General, SettingsTravelInAFile) {
    constexpr wchar_t kFile[] = L"\\My Documents\\Lum Diary.dias";
    DeleteFileW(kFile);
    Plugin plugin;
    Put(L"CalendarPeriod", 30);
    const HWND main = program_.Main();
    const auto choose = [&](int command, const wchar_t* title) {
        PostMessageW(main, WM_COMMAND, command, 0);
        return program_.Sheet(title);
    };
    ASSERT_TRUE(Cancel(choose(IDM_EXPORT, L"Save As")));
    EXPECT_EQ(ReadBytes(kFile), "");
    // The dialog goes before the file is written; the program answers when it is.
    const auto whenDone = [&] {
        SendMessageW(main, WM_NULL, 0, 0);
        return ReadBytes(kFile);
    };
    ASSERT_TRUE(Ok(choose(IDM_EXPORT, L"Save As")));
    const std::string exported = whenDone();
    ASSERT_GT(exported.size(), 100u);
    // What is there is replaced when the user says so alone.
    ASSERT_TRUE(WriteBytes(kFile, "mine", 4));
    for (const int answer : {IDNO, IDYES}) {
        const HWND dialog = choose(IDM_EXPORT, L"Save As");
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        HWND question = nullptr;
        ASSERT_TRUE(Until([&] {
            question = FindWindowW(L"#32770", L"Save As");
            return question && BoxSays(question, L"Replace Lum Diary.dias?");
        }));
        PostMessageW(question, WM_COMMAND, answer, 0);
        EXPECT_TRUE(Until([&] { return !IsWindow(answer == IDYES ? dialog : question); }));
        EXPECT_TRUE(answer == IDYES || (Cancel(dialog) && ReadBytes(kFile) == "mine"));
    }
    EXPECT_EQ(whenDone(), exported);

    ASSERT_TRUE(WriteBytes(kFile, exported.data(), exported.size() - 4));
    Put(L"CalendarPeriod", 1);
    ASSERT_TRUE(Ok(choose(IDM_IMPORT, L"Open")));
    const HWND question = program_.Sheet(L"Lum Diary Options");
    PostMessageW(question, WM_COMMAND, IDYES, 0);
    ASSERT_TRUE(Until([&] { return !IsWindow(question); }) && program_.Dismiss());
    EXPECT_EQ(Stored(L"CalendarPeriod"), 30u) << "what came before the damage";
    EXPECT_EQ(program_.CloseAndWait(), 0u);
    EXPECT_EQ(plugin.Updates(), (std::vector<Plugin::Update>{{0, 0}}));
    DeleteFileW(kFile);
}

}  // namespace
