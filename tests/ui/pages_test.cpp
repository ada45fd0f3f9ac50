// Pages: what they show, what they store and when.
#include <optional>
#include <ranges>

#include "resources/ids.h"
#include "tests/ui/device.h"
#include "tests/ui/page_table.h"

namespace {

using namespace ui;

class Pages : public DeviceTest {};

TEST_F(Pages, OkStoresTheShownPagesOnly) {
    Plugin plugin;
    Put(L"CalendarShowUndatedTasks", 1);
    Program program(L"-P1:2");
    const HWND sheet = program.Sheet(L"Calendar options");
    const HWND page = Page(sheet, IDC_SHOW_TASKS);
    ASSERT_TRUE(page);
    Click(page, IDC_SHOW_TASKS);
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 1u) << "written before ok";
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(Stored(L"CalendarShowTasks"), 0u);
    EXPECT_EQ(Stored(L"CalendarShowUndatedTasks"), 1u);
    EXPECT_EQ(Stored(L"CalendarShowOverdueTasks"), 1u);
    EXPECT_EQ(Stored(L"App_TaskShowMultiday"), 3u);
    EXPECT_EQ(Stored(L"CalendarPeriod"), std::nullopt);
    EXPECT_TRUE(plugin.Updates().empty()) << "told before the program closed";
    EXPECT_EQ(program.CloseAndWait(), 0u);
    EXPECT_EQ(plugin.Updates(), (std::vector<Plugin::Update>{{0, 0}}));
}

// Every control is changed from its default, with the keys alone.
TEST_F(Pages, EveryControlIsStored) {
    constexpr const wchar_t* kNoteTypes[] = {L"Notes",     L"Recordings", L"Text files",
                                             L"Documents", L"Workbooks",  L"Pictures"};
    ASSERT_TRUE(FurnishWith(L"weather"));
    OpenProductKey().WriteString(L"CurTaskPattern", L"xp1yz");
    Program program;
    for (const std::span<const PageRow> rows : PageTables()) {
        const PageRow& first = rows.front();
        const HWND page = OpenPage(program, first.entry, first.page, first.control);
        ASSERT_TRUE(page) << first.entry << ":" << first.page;
        for (const PageRow& row : rows) {
            if (const int type = row.control - IDC_NOTES_TYPE_FIRST; type >= 0 && type < 6) {
                EXPECT_EQ(Text(page, row.control), kNoteTypes[type]);
            }
            if (row.select == kClick) {
                const bool inverted =
                    row.control == IDC_PHONE_BACKSPACE || row.control == IDC_CONTACT_PHOTO_TEXT;
                EXPECT_EQ(IsChecked(page, row.control) != inverted, row.stored == 0)
                    << testing::PrintToString(row.name);
            }
            EXPECT_TRUE(row.select == kClick ? ClickByKeys(page, row.control)
                                             : SelectByKeys(page, row.control, row.select))
                << testing::PrintToString(row.name);
        }
        if (first.entry == 2 && first.page == 0) {
            EXPECT_EQ(Selected(page, IDC_TASK_SUBJECT), L"Whole subject for selected");
            Select(page, IDC_TASK_SUBJECT, 0);
        }
        ASSERT_TRUE(Ok(sheet_));
    }
    for (const PageRow& row : kPageRows) {
        EXPECT_EQ(Stored(row.name), row.stored) << testing::PrintToString(row.name);
    }
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"xp2yz");
    EXPECT_EQ(Stored(L"dbgTextOffset"), 4u);
}

// What the device must have for a control to be of use, by each of the ways to give it to it.
TEST_F(Pages, ControlsNeedTheirPrograms) {
    constexpr wchar_t kFinance[] = L"\\Windows\\LumFinanceScheduledAPI.dll";
    constexpr wchar_t kInformant[] = L"\\Windows\\PITools.dll";
    constexpr wchar_t kPad[] = L"\\Program Files\\PhatPad\\PhatPadViewCtl.dll";
    const auto takeAll = [&] {
        for (const wchar_t* const file : {kFinance, kInformant, kPad}) DeleteFileW(file);
        for (const wchar_t* const key :
             {L"SOFTWARE\\Microsoft\\Today\\Items\\\"Lum Weather\"", L"SOFTWARE\\Developer One",
              L"SOFTWARE\\Developer One, Inc.", L"SOFTWARE\\Lum Software House\\Lum Shell 2"}) {
            DeleteKeyTree(HKEY_LOCAL_MACHINE, key);
        }
        DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\PhatWare");
        DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\WebIS\\PocketInformant");
    };
    struct Case {
        int entry, page, control;
        const wchar_t *thing, *value;
        DWORD stored, storedWithout;  // with no value, nothing is without
    };
    constexpr DWORD kNothing = 99;
    const Case cases[] = {
        {0, 0, IDC_PIM, L"pims", L"CurrentPIM", 0, 0},
        {0, 5, IDC_TABS_IN_ONE, L"tab-host", L"AllTabsInShell", 1, 1},
        {1, 0, IDC_GROUP_WEATHER, L"weather", L"AppGroup_Weather", 1, 1},
        {1, 1, IDC_SHOW_TRANSACTIONS, L"finance", L"CalendarShowTransactions", 1, kNothing},
        {4, 0, IDC_NOTES_TYPE_FIRST + 6, L"handwriting", L"NotesType6Enabled", 1, 1},
        {4, 0, IDC_NOTES_PHATNOTES, L"handwriting", L"PhatNotesEnabled", 1, 1},
        {6, 0, IDC_SPECIAL_TRANSACTIONS, L"finance", L"SpecialShowTransactions", 1, 0},
    };
    for (const Case& c : cases) {
        for (const bool present : {false, true}) {
            SCOPED_TRACE(testing::PrintToString(c.value) + (present ? " with it" : " without"));
            takeAll();
            SetUp();
            ASSERT_TRUE(!present || FurnishWith(c.thing));
            Program program;
            const HWND page = OpenPage(program, c.entry, c.page, 0);
            ASSERT_TRUE(page);
            EXPECT_EQ(IsEnabled(page, c.control), present);
            EXPECT_EQ(GetDlgItem(page, c.control) != nullptr,
                      present || c.storedWithout != kNothing);
            ASSERT_TRUE(Ok(sheet_));
            EXPECT_EQ(Stored(c.value).value_or(kNothing), present ? c.stored : c.storedWithout);
        }
    }
    takeAll();
}

TEST_F(Pages, ReturnTimeAndItsSwitch) {
    Program program;
    struct {
        DWORD stored;
        bool on;
        const wchar_t* shown;
        bool click;
        DWORD saved;
    } const cases[] = {{0, false, L"15 min", false, 0},
                       {0, false, L"15 min", true, 900},
                       {3600, true, L"1 hr", true, 0},
                       {120, true, L"15 min", false, 900}};
    for (const auto& c : cases) {
        Put(L"TimeoutTime", c.stored);
        const HWND page = OpenPage(program, 0, 7, IDC_TIMEOUT_ON);
        ASSERT_TRUE(page);
        EXPECT_EQ(IsChecked(page, IDC_TIMEOUT_ON), c.on);
        EXPECT_EQ(Selected(page, IDC_TIMEOUT_TIME), c.shown);
        if (c.click) Click(page, IDC_TIMEOUT_ON);
        EXPECT_EQ(IsEnabled(page, IDC_TIMEOUT_TIME), c.on != c.click);
        EXPECT_EQ(IsEnabled(page, IDC_TIMEOUT_VIEW), c.on != c.click);
        EXPECT_TRUE(IsEnabled(page, IDC_KEYBOARD_SUPPORT));
        ASSERT_TRUE(Ok(sheet_));
        EXPECT_EQ(Stored(L"TimeoutTime"), c.saved);
    }
}

// What is too long for a number counts as missing, under whatever type it is stored.
TEST_F(Pages, ValuesThatAreNoNumbersBecomeTheirDefaults) {
    {
        CSettingsKey key = OpenProductKey();
        for (const PageRow& row : kPageRows) key.WriteBinary(row.name, "\2\2\2\2\2", 5);
        key.WriteString(L"CurTaskPattern", std::wstring(600, L'9').c_str());
        key.WriteBinary(L"ShowTabsSequence", "\xFF\xFF\xFF", 3);
    }
    Program program;
    for (const std::span<const PageRow> rows : PageTables()) {
        const PageRow& first = rows.front();
        ASSERT_TRUE(OpenPage(program, first.entry, first.page, first.control))
            << first.entry << ":" << first.page;
        ASSERT_TRUE(Ok(sheet_));
    }
    EXPECT_EQ(program.CloseAndWait(), 0u);
    for (const PageRow& row : kPageRows) {
        EXPECT_EQ(Stored(row.name), row.defaultValue) << testing::PrintToString(row.name);
    }
}

// All pages of a sheet edit the same title patterns; letters that stand for nothing stay.
TEST_F(Pages, TitlePatternsAreOneOverASheet) {
    OpenProductKey().WriteString(L"CurTaskPattern", L"px3nq");
    const Program program;
    const HWND titles = OpenPage(program, 2, 1, IDC_TASK_CHECKBOX), sheet = sheet_;
    const HWND list = GetDlgItem(titles, IDC_TITLE_FIELDS);
    ASSERT_TRUE(list);
    EXPECT_EQ(Ticks(list), L"xxxx----") << "importance, the subject, a note, recurrence";
    SendMessageW(list, WM_KEYDOWN, VK_RIGHT, 0);  // Importance behind the subject.
    TurnTo(sheet, 2);
    const HWND icons = Page(sheet, IDC_FLAG_NOTE);
    ASSERT_TRUE(icons);
    EXPECT_TRUE(IsChecked(icons, IDC_FLAG_LOW_PRIORITY) && !IsChecked(icons, IDC_FLAG_PRIVATE));
    Click(icons, IDC_FLAG_NOTE);
    Click(icons, IDC_FLAG_PRIVATE);
    TurnTo(sheet, 0);
    const HWND common = Page(sheet, IDC_TASK_SUBJECT);
    ASSERT_TRUE(common);
    Select(common, IDC_TASK_SUBJECT, 0);
    TurnTo(sheet, 1);
    ASSERT_TRUE(Until([&] { return IsWindowVisible(list); }));
    SendMessageW(list, WM_KEYDOWN, VK_SPACE, 0);  // The subject, which cannot be left out.
    Click(titles, IDC_TITLE_DOWN);
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"px2qs");

    Click(OpenPage(program, 2, 1, IDC_TASK_CHECKBOX), IDC_TITLE_DOWN);
    ASSERT_TRUE(Cancel(sheet_));
    const HWND calendar = OpenPage(program, 1, 3, IDC_TITLE_LIST);
    ASSERT_TRUE(calendar);
    Select(calendar, IDC_TITLE_LIST, 2);
    EXPECT_EQ(Selected(calendar, IDC_TITLE_MODE), L"Whole subject for selected");
    Select(calendar, IDC_TITLE_MODE, 2);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"px2qs") << "the cancelled change came back";
    EXPECT_EQ(StoredText(L"CurAppPattern"), L"n3rqsca");
    EXPECT_EQ(StoredText(L"CurContactPattern"), L"c3n");
}

// What is cancelled in the inner sheet is gone; the outer one stores what was changed in it alone.
TEST_F(Pages, ASheetOverAnotherHasTitlesOfItsOwn) {
    Program program(L"-P2:1");
    const HWND outer = program.Sheet(L"Task options");
    const HWND titles = Page(outer, IDC_TASK_CHECKBOX);
    ASSERT_TRUE(titles);
    const auto openInner = [&] {
        program.Open(1, 3);
        const HWND inner = program.Sheet(L"Calendar options");
        Select(Page(inner, IDC_TITLE_LIST), IDC_TITLE_LIST, 1);
        return inner;
    };
    const auto select = [](HWND inner, int mode) {
        Select(Page(inner, IDC_TITLE_MODE), IDC_TITLE_MODE, mode);
    };
    HWND inner = openInner();
    select(inner, 1);
    ASSERT_TRUE(Cancel(inner));
    inner = openInner();
    EXPECT_EQ(Selected(Page(inner, IDC_TITLE_MODE), IDC_TITLE_MODE), L"One line");
    select(inner, 0);
    ASSERT_TRUE(Ok(inner));
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"p2nqrsc");
    SendDlgItemMessageW(titles, IDC_TITLE_FIELDS, WM_KEYDOWN, VK_RIGHT, 0);
    ASSERT_TRUE(Ok(outer));
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"2pnqrsc");
}

class HiddenFolders : public Pages {
  protected:
    void Open(const Program& program) {
        list_ = GetDlgItem(OpenPage(program, 4, 1, IDC_NOTES_FOLDERS), IDC_NOTES_FOLDERS);
        ASSERT_TRUE(list_);
    }
    HWND list_ = nullptr;
};

TEST_F(HiddenFolders, AreKeptByName) {
    CSettingsKey key = OpenProductKey(L"Filters");
    key.WriteString(L"HiddenFolders", L"gone|PERSONAL|personal");
    const wchar_t* const card[] = {L"\\Storage Card", L"\\Storage Card\\My Documents",
                                   L"\\Storage Card\\My Documents\\BUSINESS"};
    for (const wchar_t* const folder : card) CreateDirectoryW(folder, nullptr);
    const Program program;
    Open(program);
    EXPECT_EQ(Ticks(list_), L"xx-xxx") << "but Personal";
    SendKeys(list_, {VK_SPACE, VK_DOWN, VK_DOWN, VK_SPACE});  // Business of either, and Personal
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(key.ReadString(L"HiddenFolders"), L"gone|business");
    for (const wchar_t* const folder : std::views::reverse(card)) RemoveDirectoryW(folder);
}

TEST_F(HiddenFolders, TooManyAreRefused) {
    CSettingsKey key = OpenProductKey(L"Filters");
    const std::wstring stored = std::wstring(2046 - 9, L'x') + L"|personal";
    key.WriteString(L"HiddenFolders", stored.c_str());
    const Program program;
    Open(program);
    SendKeys(list_, {VK_SPACE});  // Business
    ASSERT_TRUE(IsRefused(program));
    EXPECT_EQ(key.ReadString(L"HiddenFolders"), stored);
    SendKeys(list_, {VK_DOWN, VK_SPACE});  // Personal, whose name is as long
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(key.ReadString(L"HiddenFolders").substr(2046 - 9), L"|business");
}

TEST_F(Pages, FocusScrollsALowPage) {
    const Program program;
    const HWND page = OpenPage(program, 4, 0, IDC_NOTES_GROUP_BY);
    ASSERT_TRUE(page);
    const HWND first = GetDlgItem(page, IDC_NOTES_GROUP_BY);
    const HWND last = GetDlgItem(page, IDC_NOTES_LAYOUT);
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
    SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
    EXPECT_TRUE(Until([&] { return rectOf(first).top == top; })) << rectOf(first).top;
    SendMessageW(page, WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_LE(rectOf(last).bottom, client.bottom);
}

TEST_F(Pages, TheInputPanelLeavesTheFocusedFieldInSight) {
    constexpr int kPanelTop = 240 - 26 - 80, kTop = 26;
    Put(L"AutoSizeAdjust", 0);
    const auto rectOf = [](HWND window) {
        RECT rect = {};
        GetWindowRect(window, &rect);
        return rect;
    };
    struct Case {
        const wchar_t *arguments, *title;
        int field;
    };
    for (const Case& c : {Case{L"-P0:0", L"General options", IDC_HEIGHT},
                          Case{L"-P5:1", L"Message options", IDC_MAIL_FILTER_NAME}}) {
        Program program(c.arguments);
        const HWND sheet = program.Sheet(c.title);
        const HWND page = Page(sheet, c.field);
        ASSERT_TRUE(page);
        const HWND field = GetDlgItem(page, c.field);
        const RECT before = rectOf(page), place = rectOf(field);
        ASSERT_TRUE(Control(L"panel up"));
        EXPECT_EQ(rectOf(page).bottom, kPanelTop);
        for (const int end : {SB_TOP, SB_BOTTOM}) {
            SendMessageW(page, WM_NEXTDLGCTL, FALSE, FALSE);
            SendMessageW(page, WM_VSCROLL, end, 0);
            EXPECT_EQ(rectOf(field).top < place.top, end == SB_BOTTOM) << c.field;
            SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
            const RECT shown = rectOf(field);
            EXPECT_TRUE(shown.top > kTop && shown.bottom < kPanelTop) << c.field << " " << end;
        }
        ASSERT_TRUE(Control(L"panel down"));
        const RECT after = rectOf(page), back = rectOf(field);
        EXPECT_TRUE(EqualRect(&after, &before) && EqualRect(&back, &place)) << c.field;
        EXPECT_TRUE(Cancel(sheet));
    }
}

}  // namespace
