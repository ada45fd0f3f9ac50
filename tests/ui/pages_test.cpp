// Pages: what they show, what they store and when.
#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class Pages : public DeviceTest {};

TEST_F(Pages, OkStoresTheShownPagesOnly) {
    Plugin plugin;
    Program program(L"-P1:2");
    const HWND sheet = program.Sheet(L"Calendar options");
    const HWND page = Page(sheet, IDC_SHOW_TASKS);
    ASSERT_TRUE(page);
    Click(page, IDC_SHOW_TASKS);
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 1u) << "written before ok";
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 0u);
    EXPECT_EQ(Stored(L"CalendarShowOverdueTasks"), 1u);
    EXPECT_EQ(Stored(L"App_TaskShowMultiday"), 3u);
    EXPECT_EQ(Stored(L"CalendarPeriod"), std::nullopt);
    EXPECT_EQ(Stored(L"CalendarShowPastAppts"), std::nullopt);
    EXPECT_TRUE(plugin.Updates().empty()) << "told before the program closed";
    EXPECT_EQ(program.CloseAndWait(), 0u);
    EXPECT_EQ(plugin.Updates(), (std::vector<Plugin::Update>{{0, 0}}));
}

TEST_F(Pages, CancelChangesNoStoredValue) {
    Plugin plugin;
    Put(L"CalendarShowTasks", 1);
    Put(L"CalendarShowOverdueTasks", 0);
    Program program(L"-P1:2");
    const HWND sheet = program.Sheet(L"Calendar options");
    const HWND page = Page(sheet, IDC_SHOW_TASKS);
    ASSERT_TRUE(page);
    EXPECT_FALSE(IsChecked(page, IDC_SHOW_OVERDUE_TASKS));
    Click(page, IDC_SHOW_OVERDUE_TASKS);
    Click(page, IDC_SHOW_TASKS);
    Select(page, IDC_TASK_PLACEMENT, 0);
    ASSERT_TRUE(Cancel(sheet));
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 1u);
    EXPECT_EQ(Stored(L"CalendarShowOverdueTasks"), 0u);
    EXPECT_EQ(Stored(L"App_TaskShowMultiday"), 3u);
    EXPECT_EQ(program.CloseAndWait(), 0u);
    EXPECT_TRUE(plugin.Updates().empty());
}

TEST_F(Pages, CalendarTasksKeepTheirValuesWhileOff) {
    Put(L"CalendarShowUndatedTasks", 1);
    Program program(L"-P1:2");
    const HWND sheet = program.Sheet(L"Calendar options");
    const HWND page = Page(sheet, IDC_SHOW_TASKS);
    ASSERT_TRUE(page);
    const int dependent[] = {IDC_SHOW_UNDATED_TASKS, IDC_SHOW_OVERDUE_TASKS,
                             IDC_SHOW_COMPLETED_TASKS};
    Click(page, IDC_SHOW_TASKS);
    for (const int control : dependent) {
        EXPECT_FALSE(IsEnabled(page, control)) << control;
        EXPECT_FALSE(IsChecked(page, control)) << control;
    }
    EXPECT_FALSE(IsEnabled(page, IDC_TASK_PLACEMENT));
    Click(page, IDC_SHOW_TASKS);
    EXPECT_TRUE(IsEnabled(page, IDC_TASK_PLACEMENT));
    EXPECT_TRUE(IsChecked(page, IDC_SHOW_UNDATED_TASKS));
    EXPECT_TRUE(IsChecked(page, IDC_SHOW_OVERDUE_TASKS));
    EXPECT_FALSE(IsChecked(page, IDC_SHOW_COMPLETED_TASKS));
    Click(page, IDC_SHOW_TASKS);
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 0u);
    EXPECT_EQ(Stored(L"CalendarShowUndatedTasks"), 1u);
    EXPECT_EQ(Stored(L"CalendarShowOverdueTasks"), 1u);
    EXPECT_EQ(Stored(L"CalendarShowCompletedTasks"), 0u);
}

TEST_F(Pages, EveryControlOfTheCalendarPagesIsStored) {
    Program program(L"-P1:0");
    const HWND sheet = program.Sheet(L"Calendar options");
    const HWND common = Page(sheet, IDC_CALENDAR_PERIOD);
    ASSERT_TRUE(common);
    EXPECT_EQ(Selected(common, IDC_CALENDAR_PERIOD), L"7");
    Select(common, IDC_CALENDAR_PERIOD, 0);
    Select(common, IDC_FIRST_YEAR_WEEK, 2);
    Select(common, IDC_GROUP_OFFSET, 0);
    Select(common, IDC_GROUP_SPAN, 2);
    for (const int control :
         {IDC_COLLAPSE_BUT_TODAY, IDC_MARK_CONFLICTING, IDC_GROUP_TODAY, IDC_GROUP_WEATHER}) {
        Click(common, control);
    }
    TurnTo(sheet, 1);
    const HWND show = Page(sheet, IDC_SHOW_PAST);
    ASSERT_TRUE(show);
    for (const int control : {IDC_SHOW_PAST, IDC_SHOW_EMPTY_DAYS, IDC_SHOW_FREE,
                              IDC_SHOW_TODAY_ALWAYS, IDC_SHOW_BIRTHDAYS, IDC_SHOW_EMAILS}) {
        Click(show, control);
    }
    TurnTo(sheet, 2);
    const HWND tasks = Page(sheet, IDC_SHOW_TASKS);
    ASSERT_TRUE(tasks);
    Select(tasks, IDC_TASK_PLACEMENT, 1);
    ASSERT_TRUE(Ok(sheet));
    const std::vector<std::pair<const wchar_t*, DWORD>> expected = {
        {L"CalendarPeriod", 1},        {L"Calendar_FirstYearWeek", 2},
        {L"AppGroup_Offset", 0},       {L"AppGroup_Span", 3},
        {L"App_CollapseButToday", 0},  {L"App_MarkConflicting", 0},
        {L"AppGroup_Today", 0},        {L"AppGroup_Weather", 0},
        {L"CalendarShowPastAppts", 0}, {L"CalendarShowEmptyDays", 1},
        {L"CalendarShowFreeAppts", 0}, {L"CalendarShowTodayAlways", 0},
        {L"CalendarShowBirthdays", 0}, {L"CalendarShowEmails", 0},
        {L"App_TaskShowMultiday", 1},  {L"dbgTextOffset", 4},
    };
    for (const auto& [name, value] : expected) {
        EXPECT_EQ(Stored(name), value) << testing::PrintToString(name);
    }
    EXPECT_EQ(Stored(L"CalendarShowTransactions"), std::nullopt);
}

TEST_F(Pages, TransactionsNeedTheFinanceProgram) {
    constexpr wchar_t kLibrary[] = L"\\Windows\\LumFinanceScheduledAPI.dll";
    for (const bool present : {false, true}) {
        SetUp();
        DeleteFileW(kLibrary);
        // Any library will do: the program only asks whether it can be loaded.
        if (present) {
            ASSERT_TRUE(CopyFileW(L"\\Windows\\coredll.dll", kLibrary, FALSE));
        }
        Program program(L"-P1:1");
        const HWND calendar = program.Sheet(L"Calendar options");
        const HWND show = Page(calendar, IDC_SHOW_PAST);
        ASSERT_TRUE(show);
        EXPECT_EQ(GetDlgItem(show, IDC_SHOW_TRANSACTIONS) != nullptr, present);
        ASSERT_TRUE(Ok(calendar));
        EXPECT_EQ(Stored(L"CalendarShowTransactions"), present ? std::optional(1ul) : std::nullopt);
        program.Open(6, 0);
        const HWND special = program.Sheet(L"Special event options");
        const HWND page = Page(special, IDC_SPECIAL_TRANSACTIONS);
        ASSERT_TRUE(page);
        EXPECT_EQ(IsEnabled(page, IDC_SPECIAL_TRANSACTIONS), present);
        EXPECT_EQ(IsChecked(page, IDC_SPECIAL_TRANSACTIONS), present);
        EXPECT_EQ(SendDlgItemMessageW(page, IDC_SPECIAL_PERIOD, CB_GETCURSEL, 0, 0), 3);
        Select(page, IDC_SPECIAL_PERIOD, 6);
        Click(page, IDC_SPECIAL_BIRTHDAYS);
        ASSERT_TRUE(Ok(special));
        EXPECT_EQ(Stored(L"SpecialShowTransactions"), present ? 1u : 0u);
        EXPECT_EQ(Stored(L"SpecialShowBirthdays"), 0u);
        EXPECT_EQ(Stored(L"SpecialPeriod"), 6u);
        EXPECT_EQ(program.CloseAndWait(), 0u);
    }
    DeleteFileW(kLibrary);
}

TEST_F(Pages, TasksPageEditsTheDigitOfThePattern) {
    OpenProductKey().WriteString(L"CurTaskPattern", L"xp1yz");
    Program program(L"-P2:0");
    const HWND sheet = program.Sheet(L"Task options");
    const HWND page = Page(sheet, IDC_TASK_SUBJECT);
    ASSERT_TRUE(page);
    EXPECT_EQ(Selected(page, IDC_TASK_SUBJECT), L"Whole subject for selected");
    Select(page, IDC_TASK_SUBJECT, 0);
    for (const int control : {IDC_TASK_COMPLETION_MESSAGE, IDC_TASKS_ALL_CATEGORIES,
                              IDC_TASKS_COMPLETED, IDC_TASKS_ACTIVE}) {
        Click(page, control);
    }
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"xp2yz");
    EXPECT_EQ(Stored(L"Task_DisplayComplMsg"), 0u);
    EXPECT_EQ(Stored(L"ShowTasksInAllCategories"), 1u);
    EXPECT_EQ(Stored(L"TasksShowCompletedTasks"), 1u);
    EXPECT_EQ(Stored(L"TasksShowActiveTasks"), 1u);
}

TEST_F(Pages, ReturnTimeAndItsSwitch) {
    struct Case {
        DWORD stored;
        bool on;
        const wchar_t* shown;
        bool click;
        DWORD saved;
    };
    for (const Case& c : {
             Case{0, false, L"15 min", false, 0},
             Case{0, false, L"15 min", true, 900},
             Case{3600, true, L"1 hr", true, 0},
             Case{28800, true, L"8 hr", false, 28800},
             Case{120, true, L"15 min", false, 900},
         }) {
        Put(L"TimeoutTime", c.stored);
        Program program(L"-P0:0");
        const HWND sheet = program.Sheet(L"General options");
        const HWND page = Page(sheet, IDC_TIMEOUT_ON);
        ASSERT_TRUE(page);
        EXPECT_EQ(IsChecked(page, IDC_TIMEOUT_ON), c.on);
        EXPECT_EQ(IsEnabled(page, IDC_TIMEOUT_TIME), c.on);
        EXPECT_EQ(IsEnabled(page, IDC_TIMEOUT_VIEW), c.on);
        EXPECT_TRUE(IsEnabled(page, IDC_KEYBOARD_SUPPORT));
        EXPECT_EQ(Selected(page, IDC_TIMEOUT_TIME), c.shown);
        if (c.click) {
            Click(page, IDC_TIMEOUT_ON);
            EXPECT_EQ(IsEnabled(page, IDC_TIMEOUT_TIME), !c.on);
        }
        Select(page, IDC_TIMEOUT_VIEW, 5);
        Select(page, IDC_KEYBOARD_SUPPORT, 1);
        Click(page, IDC_PHONE_BACKSPACE);
        ASSERT_TRUE(Ok(sheet));
        EXPECT_EQ(Stored(L"TimeoutTime"), c.saved);
        EXPECT_EQ(Stored(L"TimeoutView"), 6u);
        EXPECT_EQ(Stored(L"AdvancedKeyboardSupport"), 1u);
        EXPECT_EQ(program.CloseAndWait(), 0u);
    }
    EXPECT_EQ(Stored(L"PhoneKeyb_DisableBackspace"), 1u);  // Five clicks.
}

TEST_F(Pages, ValuesOfAnyTypeAndUnlistedNumbers) {
    const wchar_t* const names[] = {
        L"CalendarPeriod",  L"Calendar_FirstYearWeek", L"CalendarShowTasks",
        L"AppGroup_Offset", L"App_TaskShowMultiday",   L"TimeoutTime",
        L"SpecialPeriod",   L"CurTaskPattern",         L"ShowTabs",
    };
    const std::wstring text(600, L'9');
    {
        CSettingsKey key = OpenProductKey();
        for (const wchar_t* name : names) key.WriteString(name, text.c_str());
        key.WriteBinary(L"ShowTabsSequence", "\xFF\xFF\xFF", 3);
        key.WriteDword(L"Calendar_FirstYearWeek", 77);
        key.WriteDword(L"CalendarPeriod", 0x80000000);
    }
    Program program(L"-P1:0 -P6:0");
    const HWND special = program.Sheet(L"Special event options");
    ASSERT_TRUE(Page(special, IDC_SPECIAL_PERIOD));
    ASSERT_TRUE(Ok(special));
    const HWND sheet = program.Sheet(L"Calendar options");
    const HWND page = Page(sheet, IDC_CALENDAR_PERIOD);
    ASSERT_TRUE(page);
    EXPECT_EQ(Selected(page, IDC_CALENDAR_PERIOD), L"");
    EXPECT_EQ(Selected(page, IDC_FIRST_YEAR_WEEK), L"");
    EXPECT_EQ(Selected(page, IDC_GROUP_OFFSET), L"1");
    TurnTo(sheet, 2);
    ASSERT_TRUE(Page(sheet, IDC_SHOW_TASKS));
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(Stored(L"Calendar_FirstYearWeek"), 77u);
    EXPECT_EQ(Stored(L"CalendarPeriod"), 0x80000000u);
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 1u);
    EXPECT_EQ(Stored(L"App_TaskShowMultiday"), 3u);
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"9");
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

TEST_F(Pages, FocusScrollsALowPage) {
    Program program(L"-P1:0");
    const HWND page = Page(program.Sheet(L"Calendar options"), IDC_GROUP_SPAN);
    ASSERT_TRUE(page);
    const HWND first = GetDlgItem(page, IDC_CALENDAR_PERIOD);
    const HWND last = GetDlgItem(page, IDC_GROUP_SPAN);
    const auto rectOf = [page](HWND control) {
        RECT rect;
        GetWindowRect(control, &rect);
        MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    };
    RECT client;
    GetClientRect(page, &client);
    const LONG top = rectOf(first).top;
    ASSERT_GT(rectOf(last).bottom, client.bottom) << "this screen is not low enough";
    SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(last), TRUE);
    EXPECT_TRUE(Until([&] { return rectOf(last).bottom <= client.bottom; }));
    EXPECT_LT(rectOf(first).top, top);
    SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
    EXPECT_TRUE(Until([&] { return rectOf(first).top == top; })) << rectOf(first).top;
    SendMessageW(page, WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_LE(rectOf(last).bottom, client.bottom);
    SendMessageW(page, WM_VSCROLL, SB_TOP, 0);
    EXPECT_EQ(rectOf(first).top, top);
}

}  // namespace
