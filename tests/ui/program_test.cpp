// The program as a whole: its start, its instances, its end, and what it tells the plug-in.
#include "resources/ids.h"
#include "tests/ui/device.h"

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
        std::vector<std::wstring> sheets;  // besides the one that the test itself opens last
        int control;                       // on the first sheet's page; 0: none opens
    };
    const std::vector<Case> cases = {
        {L"/x -p1:1", {L"Calendar options"}, IDC_SHOW_PAST},
        {L"-P1:99", {L"Calendar options"}, IDC_CALENDAR_PERIOD},
        {L"-P1:-1", {L"Calendar options"}, IDC_CALENDAR_PERIOD},
        {L"-Px -P8:0 -P-1:0 -P7:0", {}, 0},  // Categories need a device that has some.
        {L"-P2:0 -P1:1", {L"Task options", L"Calendar options"}, IDC_TASK_SUBJECT},
    };
    for (const Case& c : cases) {
        Program program(c.arguments);
        ASSERT_TRUE(program.Main());
        if (c.control) {
            EXPECT_TRUE(Page(program.Sheet(c.sheets.front()), c.control))
                << testing::PrintToString(c.arguments);
        }
        // Requests are served in order: once this one is, all before it were.
        program.Open(6, 0);
        ASSERT_TRUE(program.Sheet(L"Special event options"));
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

TEST_F(Whole, HelpOpensAtThePagesAnchor) {
    constexpr wchar_t kLog[] = L"\\peghelp.log";
    DeleteFileW(kLog);
    Program program(L"-P1:2");
    const HWND page = Page(program.Sheet(L"Calendar options"), IDC_SHOW_TASKS);
    ASSERT_TRUE(page);
    AskForHelp(GetDlgItem(page, IDC_SHOW_TASKS));
    EXPECT_TRUE(Until([&] { return ReadBytes(kLog) == "LumDiary.htm#options_calendar_tasks\n"; }))
        << ReadBytes(kLog);
    ASSERT_TRUE(Cancel(program.Sheet(L"Calendar options")));
    DeleteFileW(kLog);
    AskForHelp(program.Main());
    EXPECT_TRUE(Until([&] { return ReadBytes(kLog) == "LumDiary.htm#options_main_screen\n"; }))
        << ReadBytes(kLog);
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
