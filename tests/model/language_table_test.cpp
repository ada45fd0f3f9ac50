// The texts of the program on the device, with the program's own resource library.
#include "app/language/language_table.h"

#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/language/module.h"
#include "resources/ids.h"
#include "tests/windows.h"

namespace {

constexpr wchar_t kFile[] = L"\\My Documents\\language.txt";

class Language : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        InitModule(GetModuleHandleW(nullptr));
        ASSERT_TRUE(LoadResourceLibrary(L"\\Program Files\\Lum Diary\\DiaryRes.Dll"));
    }
    static void TearDownTestSuite() { ShutDownModule(); }
    void SetUp() override { DeleteFileW(kFile); }

    void LoadLines(const std::wstring& lines) {
        const std::wstring text = L"\xFEFF" + lines;
        ASSERT_TRUE(WriteBytes(kFile, text.data(), text.size() * sizeof(wchar_t)));
        ASSERT_TRUE(table.Load(kFile));
    }
    static HWND CreateControl(const wchar_t* className, const wchar_t* text, DWORD style,
                              HWND parent) {
        return CreateWindowExW(0, className, text, style, 0, 0, 100, 100, parent, nullptr,
                               ModuleInstance(), nullptr);
    }
    static std::wstring WindowText(HWND window) {
        wchar_t text[4096] = {};
        GetWindowTextW(window, text, 4096);
        return text;
    }

    LanguageTable table;
};

TEST_F(Language, StringsAndTextsAreTranslated) {
    LoadLines(L"Tasks|Aufgaben\r\nCalendar|\r\nCancel|Abbrechen\r\nWhen active|" +
              std::wstring(2000, L'x') + L"\r\n");
    EXPECT_EQ(table.LoadString(IDS_TASKS), L"Aufgaben");
    EXPECT_EQ(table.LoadString(IDS_CALENDAR), L"Calendar");
    EXPECT_EQ(table.LoadString(IDS_KEYBOARD_WHEN_ACTIVE), std::wstring(1023, L'x'));
    EXPECT_EQ(table.LoadString(60000), L"");
    EXPECT_EQ(table.Translate(L"Cancel"), L"Abbrechen");
    EXPECT_EQ(table.Translate(L"When active").size(), 2000u);
    EXPECT_EQ(table.Translate(L"cancel"), L"cancel");
    EXPECT_EQ(table.Translate(L""), L"");
}

TEST_F(Language, WindowsAreTranslatedOneLevelDeepAndListsKeepOrderSelectionAndData) {
    LoadLines(L"Never|Zuletzt\nAlways|Immer\nCustom|Eigenes\n");
    for (const DWORD style : {CBS_DROPDOWNLIST, CBS_DROPDOWNLIST | CBS_SORT, CBS_DROPDOWN}) {
        for (const int selection : {-1, 0, 2}) {
            const HWND window = CreateControl(L"STATIC", L"Never", WS_POPUP | WS_CAPTION, nullptr);
            const HWND child = CreateControl(L"STATIC", L"Always", WS_CHILD, window);
            const HWND deep = CreateControl(L"STATIC", L"Always", WS_CHILD, child);
            const HWND combo = CreateControl(L"COMBOBOX", L"", WS_CHILD | style, window);
            int data = 10;
            for (const wchar_t* item : {L"Always", L"Kept", L"Never"}) {
                const LRESULT index =
                    SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
                SendMessageW(combo, CB_SETITEMDATA, index, data++);
            }
            SendMessageW(combo, CB_SETCURSEL, selection, 0);
            if (style == CBS_DROPDOWN && selection < 0) SetWindowTextW(combo, L"Typed");

            table.TranslateWindow(window);

            EXPECT_EQ(WindowText(window) + WindowText(child), L"ZuletztImmer");
            EXPECT_EQ(WindowText(deep), L"Always");
            int index = 0;
            for (const wchar_t* item : {L"Immer", L"Kept", L"Zuletzt"}) {
                wchar_t text[16] = {};
                SendMessageW(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
                EXPECT_STREQ(text, item);
                EXPECT_EQ(SendMessageW(combo, CB_GETITEMDATA, index, 0), 10 + index);
                ++index;
            }
            EXPECT_EQ(SendMessageW(combo, CB_GETCOUNT, 0, 0), 3);
            EXPECT_EQ(SendMessageW(combo, CB_GETCURSEL, 0, 0), selection);
            if (style == CBS_DROPDOWN) {
                EXPECT_EQ(WindowText(combo), selection < 0    ? L"Typed"
                                             : selection == 0 ? L"Immer"
                                                              : L"Zuletzt");
            }
            DestroyWindow(window);
        }
    }
}

std::wstring MenuText(HMENU menu, UINT position) {
    wchar_t text[64] = {};
    MENUITEMINFOW item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_TYPE;
    item.dwTypeData = text;
    item.cch = 64;
    GetMenuItemInfoW(menu, position, TRUE, &item);
    return text;
}

TEST_F(Language, MenusAreTranslatedWithTheirSubMenus) {
    LoadLines(L"Open|Auf\nMore|Mehr\nDeep|Tief\nLast|Ende\n");
    const HMENU menu = CreatePopupMenu();
    const HMENU more = CreatePopupMenu();
    AppendMenuW(more, MF_STRING | MF_GRAYED, 3, L"Deep");
    AppendMenuW(menu, MF_STRING, 1, L"Open");
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(more), L"More");
    AppendMenuW(menu, MF_STRING | MF_CHECKED, 2, L"Last");
    table.TranslateMenu(menu);
    EXPECT_EQ(MenuText(menu, 0), L"Auf");
    EXPECT_EQ(MenuText(menu, 2), L"Mehr");
    EXPECT_EQ(MenuText(menu, 3), L"Ende");
    EXPECT_EQ(MenuText(GetSubMenu(menu, 2), 0), L"Tief");
    // Nothing else about the items changes.
    EXPECT_EQ(GetMenuItemID(menu, 0), 1u);
    EXPECT_TRUE(GetMenuState(menu, 1, MF_BYPOSITION) & MF_SEPARATOR);
    EXPECT_TRUE(GetMenuState(menu, 3, MF_BYPOSITION) & MF_CHECKED);
    EXPECT_TRUE(GetMenuState(more, 0, MF_BYPOSITION) & MF_GRAYED);
    DestroyMenu(menu);
}

}  // namespace
