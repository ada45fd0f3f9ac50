// The contacts' pages: what is grouped how, and the keyboard layouts.
#include <commctrl.h>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class Contacts : public DeviceTest {
  protected:
    HWND OpenPage() {
        program_.Open(3, 0);
        sheet_ = program_.Sheet(L"Contact options");
        return Page(sheet_, IDC_CONTACT_LAYOUT);
    }
    // What the drop-down list offers, its selected entry in brackets.
    static std::wstring Layouts(HWND page) {
        std::wstring texts;
        const HWND list = GetDlgItem(page, IDC_CONTACT_LAYOUT);
        const LRESULT selected = SendMessageW(list, CB_GETCURSEL, 0, 0);
        for (LRESULT i = 0; i < SendMessageW(list, CB_GETCOUNT, 0, 0); ++i) {
            wchar_t text[100] = {};
            SendMessageW(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
            texts += i == selected ? L"[" + std::wstring(text) + L"]" : text;
            texts += L"|";
        }
        return texts;
    }
    // Opens the dialog from the drop-down list's entry.
    HWND OpenDialog(HWND page, int entry) {
        Select(page, IDC_CONTACT_LAYOUT, entry);
        return program_.Sheet(L"Keyboard layouts");
    }
    // A row is ticked by the space key.
    static void Tick(HWND dialog, int row) {
        const HWND list = GetDlgItem(dialog, IDC_LAYOUTS_LIST);
        SendMessageW(list, WM_KEYDOWN, VK_HOME, 0);
        for (int i = 0; i < row; ++i) SendMessageW(list, WM_KEYDOWN, VK_DOWN, 0);
        SendMessageW(list, WM_KEYDOWN, VK_SPACE, 0);
        SendMessageW(list, WM_CHAR, L' ', 0);
    }

    Program program_;
    HWND sheet_ = nullptr;
};

TEST_F(Contacts, GroupingCodesAndThePhotosBox) {
    struct Case {
        DWORD stored;
        const wchar_t* shown;
        DWORD saved;
    };
    for (const Case& c : {Case{551, L"Category", 551}, Case{558, L"Company", 558},
                          Case{549, L"First letter", 501}}) {
        Put(L"ContactsGroupBy", c.stored);
        Put(L"ContactsShowPhotoContacts", c.stored == 551);
        const HWND page = OpenPage();
        ASSERT_TRUE(page);
        EXPECT_EQ(Selected(page, IDC_CONTACT_GROUPS), c.shown);
        EXPECT_EQ(IsEnabled(page, IDC_CONTACT_PHOTO_TEXT), c.stored == 551);
        ASSERT_TRUE(Ok(sheet_));
        EXPECT_EQ(Stored(L"ContactsGroupBy"), c.saved);
    }
}

TEST_F(Contacts, LayoutsAreChosenInTheirDialog) {
    const std::wstring language =
        L"\xFEFF"
        L"Greek|Griechisch\r\n";
    ASSERT_TRUE(WriteBytes(kLanguageFile, language.data(), language.size() * 2));
    OpenProductKey().WriteString(L"Contacts_layouts", L"Greek,Foo,Latin");
    Put(L"Contacts_layout_active", 2);
    HWND page = OpenPage();
    ASSERT_TRUE(page);
    EXPECT_EQ(Layouts(page), L"Griechisch|[Latin]|No layout|Select layouts...||");

    HWND dialog = OpenDialog(page, 3);
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(IsEnabled(dialog, IDC_LAYOUTS_SWITCH));
    EXPECT_FALSE(IsChecked(dialog, IDC_LAYOUTS_SWITCH));
    Tick(dialog, 0);  // Latin, in use so far.
    EXPECT_FALSE(IsEnabled(dialog, IDC_LAYOUTS_SWITCH)) << "there is but one";
    Tick(dialog, 1);
    EXPECT_TRUE(IsEnabled(dialog, IDC_LAYOUTS_SWITCH));
    Click(dialog, IDC_LAYOUTS_SWITCH);
    ASSERT_TRUE(Cancel(dialog));
    EXPECT_EQ(Layouts(page), L"Griechisch|[Latin]|No layout|Select layouts...||");

    dialog = OpenDialog(page, 3);
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(IsChecked(dialog, IDC_LAYOUTS_SWITCH)) << "taken though cancelled";
    Tick(dialog, 0);
    Tick(dialog, 1);
    Click(dialog, IDC_LAYOUTS_SWITCH);
    ASSERT_TRUE(Ok(dialog));
    EXPECT_EQ(Layouts(page), L"[Cyrillic]|Griechisch|No layout|Select layouts...||");
    EXPECT_EQ(StoredText(L"Contacts_layouts"), L"Greek,Foo,Latin") << "stored before ok";
    EXPECT_EQ(Stored(L"PhoneKeyb_DisableLangSwitch"), 1u);
    Select(page, IDC_CONTACT_LAYOUT, 1);
    // The other page takes the shared settings from the registry.
    TurnTo(sheet_, 1);
    ASSERT_TRUE(Page(sheet_, IDC_CONTACT_PREVIEW));
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"Contacts_layouts"), L"Cyrillic,Greek");
    EXPECT_EQ(Stored(L"Contacts_layout_active"), 1u);
    EXPECT_EQ(Stored(L"PhoneKeyb_DisableLangSwitch"), 0u);

    page = OpenPage();
    Select(page, IDC_CONTACT_LAYOUT, 4);  // The empty entry.
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"Contacts_layout_active"), 0xFFFFFFFFu);
}

TEST_F(Contacts, ClosingTheProgramCancelsTheDialogInTheSheet) {
    const HWND page = OpenPage();
    ASSERT_TRUE(OpenDialog(page, 2));
    EXPECT_EQ(program_.CloseAndWait(), 0u);
}

}  // namespace
