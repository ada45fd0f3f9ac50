// The program as a whole: its start, its instances, its end, and what it tells the plug-in.
#include <sstream>

#include "resources/ids.h"
#include "tests/ui/device.h"
#include "tests/ui/picture.h"

namespace {

using namespace ui;

class Whole : public DeviceTest {};

TEST_F(Whole, UpdateMessageTellsWhetherTabsChanged) {
    const auto put = [](DWORD shown, const wchar_t* sequence) {
        Put(L"ShowTabs", shown);
        OpenProductKey().WriteString(L"ShowTabsSequence", sequence);
    };
    const std::pair<std::function<void()>, LPARAM> cases[] = {
        {[] {}, 0},
        {[] { Put(L"ShowTabs", 3); }, 1},
        {[&] { put(0xFFFFFFFF, L"2,1"); }, 1},
        {[&] { put(3, L"2,1"), put(0xFFFFFFFF, L""); }, 0},  // changed and changed back
    };
    for (const auto& [meanwhile, lParam] : cases) {
        SetUp();
        Plugin plugin;
        // The page for special events stores something.
        Program program(L"-P6:0");
        const HWND sheet = program.Sheet(L"Special event options");
        ASSERT_TRUE(Page(sheet, IDC_SPECIAL_BIRTHDAYS));
        ASSERT_TRUE(Ok(sheet));
        meanwhile();
        EXPECT_EQ(program.CloseAndWait(), 0u);
        EXPECT_EQ(plugin.Updates(), (std::vector<Plugin::Update>{{0, lParam}}));
    }
}

TEST_F(Whole, KeysTapsAndCommandsOpenWhatTheyName) {
    Program program;
    const HWND list = FindWindowExW(program.Main(), nullptr, L"SysListView32", nullptr);
    ASSERT_TRUE(list);
    PostMessageW(list, WM_KEYDOWN, VK_RIGHT, 0);
    PostMessageW(list, WM_KEYDOWN, VK_RETURN, 0);
    const HWND calendar = program.Sheet(L"Calendar options");
    ASSERT_TRUE(calendar);
    ASSERT_TRUE(Cancel(calendar));
    const LPARAM general = MAKELPARAM(30, 20);
    PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, general);
    PostMessageW(list, WM_LBUTTONUP, 0, general);
    EXPECT_TRUE(Cancel(program.Sheet(L"General options")));

    const HWND main = program.Main();
    const RECT place = RectOf(main), below = {0, kBar, 320, 240};
    EXPECT_TRUE(EqualRect(&place, &below)) << "not below the navigation bar";
    PostMessageW(main, WM_COMMAND, IDM_ABOUT_BOX, 0);
    ASSERT_TRUE(program.Dismiss());
    PostMessageW(main, WM_COMMAND, ID_APP_ABOUT, 0);
    const HWND about = program.Sheet(L"About");
    ASSERT_TRUE(about);
    EXPECT_FALSE(IsWindowEnabled(main));
    EXPECT_TRUE(Ok(about));
    PostMessageW(main, WM_COMMAND, ID_APP_EXIT, 0);
    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(Whole, CommandLineOpensPages) {
    struct Case {
        const wchar_t* arguments;
        std::vector<std::wstring> sheets;  // besides that of the request that is the last of all
        int control;                       // on the first sheet's page; 0: it has none
    };
    const std::vector<Case> cases = {
        {L"/x -p1:1", {L"Calendar options"}, IDC_SHOW_PAST},
        {L"-P1:99", {L"Calendar options"}, IDC_CALENDAR_PERIOD},
        {L"-P1:-1", {L"Calendar options"}, IDC_CALENDAR_PERIOD},
        {L"-Px -P8:0 -P-1:0", {}, 0},
        {L"-P2:0 -P1:1", {L"Task options", L"Calendar options"}, IDC_TASK_SUBJECT},
    };
    for (const Case& c : cases) {
        // Requests are served in order: once the last one is, all before it were.
        Program program(std::wstring(c.arguments) + L" -P6:0");
        ASSERT_TRUE(program.Sheet(L"Special event options"));
        if (c.control) {
            EXPECT_TRUE(Page(program.Sheet(c.sheets.front()), c.control))
                << testing::PrintToString(c.arguments);
        }
        EXPECT_EQ(program.OpenSheets().size(), c.sheets.size() + 1)
            << testing::PrintToString(c.arguments);
        for (const std::wstring& sheet : c.sheets) EXPECT_TRUE(program.Sheet(sheet));
        EXPECT_EQ(program.CloseAndWait(), 0u);
    }
}

TEST_F(Whole, ClosingCancelsWhatIsOpen) {
    Plugin plugin;
    Put(L"SpecialShowBirthdays", 1);
    Program program(L"-P1:0 -P6:0");
    const HWND page = Page(program.Sheet(L"Special event options"), IDC_SPECIAL_BIRTHDAYS);
    ASSERT_TRUE(page);
    Click(page, IDC_SPECIAL_BIRTHDAYS);
    EXPECT_EQ(program.CloseAndWait(), 0u);
    EXPECT_EQ(Stored(L"SpecialShowBirthdays"), 1u);
    EXPECT_TRUE(plugin.Updates().empty());
}

TEST_F(Whole, SecondStartRaisesTheFirst) {
    Program first(L"-P6:0");
    ASSERT_TRUE(first.Main());
    ASSERT_TRUE(first.Sheet(L"Special event options"));
    Program second(L"-P1:0");
    EXPECT_EQ(second.WaitForExit(), 0u);
    EXPECT_TRUE(first.IsRunning());
    DWORD foreground = 0, process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &foreground);
    GetWindowThreadProcessId(first.Main(), &process);
    EXPECT_EQ(foreground, process);
    EXPECT_EQ(first.CloseAndWait(), 0u);
}

TEST_F(Whole, StartsBesideAnInstanceThatNeverShows) {
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, L"DiarySettings_MainWnd");
    const DWORD start = GetTickCount();
    Program program;
    EXPECT_TRUE(program.Main());
    EXPECT_GE(GetTickCount() - start,
              2400u);  // 25 rounds of 100 milliseconds, less the clock's grain.
    EXPECT_EQ(program.CloseAndWait(), 0u);
    CloseHandle(mutex);
}

// Where the help tells of each page, by the sheets.
constexpr const wchar_t* kAnchors[] = {
    L"general_common general_short_date general_long_date general_font general_group_style "
    L"general_tabs general_skins general_auto_return",
    L"calendar_common calendar_show calendar_tasks calendar_titles",
    L"tasks_common tasks_view_style tasks_icons",
    L"contacts_common contacts_view_style contacts_icons",
    L"notes_common notes_filter",
    L"messages_common messages_filter",
    L"special_events_common"};

TEST_F(Whole, EveryPageHasItsTitleAndItsHelp) {
    constexpr wchar_t kLog[] = L"\\peghelp.log";
    const auto look = [&](HWND window, const std::wstring& anchor, bool hasBand) {
        const std::string place(anchor.begin(), anchor.end());
        DeleteFileW(kLog);
        AskForHelp(window);
        const std::string asked = "LumDiary.htm#options_" + place + "\n";
        ASSERT_TRUE(Until([&] { return ReadBytes(kLog) == asked; })) << place << ReadBytes(kLog);
        if (!hasBand) return;
        constexpr int kBand = 23;
        const Picture shown = Picture::Settled(window);
        const int paper = shown.Count(GetSysColor(COLOR_WINDOW), 0, kBand);
        EXPECT_LT(paper, kBand * shown.width() - 100) << place;
        EXPECT_GT(shown.Count(RGB(0, 0, 0), kBand, kBand + 1), 300) << place;
    };
    Program program;
    for (int entry = 0; entry < 7; ++entry) {
        std::wistringstream anchors(kAnchors[entry]);
        int number = 0;
        for (std::wstring anchor; anchors >> anchor; ++number) {
            const HWND page = OpenPage(program, entry, number, 0);
            ASSERT_TRUE(page) << entry << ":" << number;
            look(page, anchor, true);
            if (anchor == L"contacts_common") {
                Select(page, IDC_CONTACT_LAYOUT, 2);  // after the layout in use and none
                const HWND layouts = program.Sheet(L"Keyboard layouts");
                look(layouts, L"layouts_select", true);
                ASSERT_TRUE(Cancel(layouts));
            }
            ASSERT_TRUE(Cancel(sheet_));
        }
    }
    program.Open(7, 0);
    const HWND categories = program.Sheet(L"Category Icons");
    look(categories, L"category_icons_main", true);
    PostMessageW(categories, WM_COMMAND, IDC_CATEGORY_CHOOSE, 0);
    const HWND chooser = program.Sheet(L"Choose icon");
    look(chooser, L"category_icons_chooser", true);
    ASSERT_TRUE(Cancel(chooser) && Cancel(categories));
    look(program.Main(), L"main_screen", false);
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

TEST_F(Whole, StartsWithoutItsInstallation) {
    constexpr wchar_t kLibrary[] = L"\\Program Files\\Lum Diary\\DiaryRes.Dll";
    constexpr wchar_t kAside[] = L"\\Program Files\\Lum Diary\\aside.dll";
    ASSERT_TRUE(MoveFileW(kLibrary, kAside));
    const auto start = [](bool whole) {
        Program program(L"-P1:0");
        EXPECT_TRUE(whole ? Page(program.Sheet(L"Calendar options"), IDC_CALENDAR_PERIOD)
                          : program.Main());
        EXPECT_EQ(program.CloseAndWait(), 0u);
    };
    start(false);
    ASSERT_TRUE(MoveFileW(kAside, kLibrary));

    // Without the installation key all is looked for beside the program, where the build has it.
    constexpr wchar_t kKey[] = L"SOFTWARE\\Apps\\Lum Diary";
    ASSERT_TRUE(DeleteKeyTree(HKEY_LOCAL_MACHINE, kKey));
    start(true);
    CSettingsKey install(HKEY_LOCAL_MACHINE, kKey, true, true);
    install.WriteString(L"InstallDir", L"\\No Such Folder");
    start(false);
    install.WriteString(L"InstallDir", L"\\Program Files\\Lum Diary");
}

}  // namespace
