// The contacts' page and its keyboard layouts.
#include <commctrl.h>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class Contacts : public DeviceTest {
  protected:
    HWND OpenPage() { return DeviceTest::OpenPage(program_, 3, 0, IDC_CONTACT_LAYOUT); }
    static std::wstring Layout(HWND page) { return Selected(page, IDC_CONTACT_LAYOUT); }
    HWND OpenDialog(HWND page, int entry) {
        Select(page, IDC_CONTACT_LAYOUT, entry);
        return program_.Sheet(L"Keyboard layouts");
    }
    static void Tick(HWND dialog, int row) {
        const HWND list = GetDlgItem(dialog, IDC_LAYOUTS_LIST);
        SendKeys(list, {VK_HOME});
        for (int i = 0; i < row; ++i) SendKeys(list, {VK_DOWN});
        SendKeys(list, {VK_SPACE});
    }

    Program program_;
};

TEST_F(Contacts, LayoutsAreChosenInTheirDialog) {
    ASSERT_TRUE(WriteLanguageFile(L"Greek|Griechisch\r\n"));
    OpenProductKey().WriteString(L"Contacts_layouts", L"Greek,Foo,Latin");
    Put(L"Contacts_layout_active", 2);
    Put(L"ContactsGroupBy", 549);
    HWND page = OpenPage();
    ASSERT_TRUE(page);
    EXPECT_FALSE(IsEnabled(page, IDC_CONTACT_PHOTO_TEXT));
    EXPECT_EQ(Layout(page), L"Latin");
    EXPECT_EQ(SendDlgItemMessageW(page, IDC_CONTACT_LAYOUT, CB_GETCOUNT, 0, 0), 5);

    HWND dialog = OpenDialog(page, 3);
    ASSERT_TRUE(dialog);
    Click(dialog, IDC_LAYOUTS_SWITCH);
    Tick(dialog, 0);  // Latin, in use so far.
    EXPECT_FALSE(IsEnabled(dialog, IDC_LAYOUTS_SWITCH)) << "there is but one";
    ASSERT_TRUE(Cancel(dialog));

    dialog = OpenDialog(page, 3);
    EXPECT_FALSE(IsChecked(dialog, IDC_LAYOUTS_SWITCH)) << "taken though cancelled";
    Tick(dialog, 0);
    Tick(dialog, 1);
    Click(dialog, IDC_LAYOUTS_SWITCH);
    ASSERT_TRUE(Ok(dialog));
    EXPECT_EQ(Layout(page), L"Cyrillic");
    EXPECT_EQ(StoredText(L"Contacts_layouts"), L"Greek,Foo,Latin") << "stored before ok";
    Select(page, IDC_CONTACT_LAYOUT, 1);
    EXPECT_EQ(Layout(page), L"Griechisch");
    // The other page takes the shared settings from the registry.
    TurnTo(sheet_, 1);
    ASSERT_TRUE(Page(sheet_, IDC_CONTACT_DISPLAY));
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"Contacts_layouts"), L"Cyrillic,Greek");
    EXPECT_EQ(Stored(L"Contacts_layout_active"), 1u);
    EXPECT_EQ(Stored(L"PhoneKeyb_DisableLangSwitch"), 0u);
    EXPECT_EQ(Stored(L"ContactsGroupBy"), 501u);

    page = OpenPage();
    Select(page, IDC_CONTACT_LAYOUT, 4);  // The empty entry.
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"Contacts_layout_active"), 0xFFFFFFFFu);

    // By keys the way to the dialog leads over "No layout".
    Put(L"Contacts_layout_active", 1);
    page = OpenPage();
    const HWND list = GetDlgItem(page, IDC_CONTACT_LAYOUT);
    SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list), TRUE);
    SendKeys(list, {VK_DOWN, VK_DOWN});
    dialog = program_.Sheet(L"Keyboard layouts");
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(Ok(dialog));
    EXPECT_EQ(Layout(page), L"Griechisch");

    ASSERT_TRUE(OpenDialog(page, 3));
    EXPECT_EQ(program_.CloseAndWait(), 0u) << "stays open below the dialog";
}

TEST_F(Contacts, WhatOthersStoreMeanwhileShowsUnlessItWasTouched) {
    HWND page = OpenPage();
    ASSERT_TRUE(page);
    Click(page, IDC_CONTACTS_ALL_CATEGORIES);
    TurnTo(sheet_, 1);
    ASSERT_TRUE(Page(sheet_, IDC_CONTACT_DISPLAY));
    Put(L"ContactsShowPhotoContacts", 1);
    Put(L"ContactsOneTap", 1);
    Put(L"ContactsGroupBy", 558);
    Put(L"ShowContactsInAllCategories", 0);
    TurnTo(sheet_, 0);
    EXPECT_TRUE(Until([&] { return IsChecked(page, IDC_CONTACT_PHOTOS); }));
    EXPECT_TRUE(IsEnabled(page, IDC_CONTACT_PHOTO_TEXT));
    EXPECT_EQ(SendDlgItemMessageW(page, IDC_CONTACT_ONE_TAP, CB_GETCURSEL, 0, 0), 1);
    EXPECT_EQ(SendDlgItemMessageW(page, IDC_CONTACT_GROUPS, CB_GETCURSEL, 0, 0), 1);
    EXPECT_TRUE(IsChecked(page, IDC_CONTACTS_ALL_CATEGORIES));
    // A layout chosen by keys in a list that is still down.
    SendDlgItemMessageW(page, IDC_CONTACT_LAYOUT, CB_SHOWDROPDOWN, TRUE, 0);
    SendDlgItemMessageW(page, IDC_CONTACT_LAYOUT, WM_KEYDOWN, VK_DOWN, 0);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"Contacts_layout_active"), 0xFFFFFFFFu);
    EXPECT_EQ(Stored(L"ShowContactsInAllCategories"), 1u);
    EXPECT_EQ(Stored(L"ContactsGroupBy"), 558u);
}

TEST_F(Contacts, LayoutsThatCannotBeStoredAreRefused) {
    {
        CSettingsKey key = OpenProductKey(L"Layouts");
        for (const wchar_t c : {L'a', L'b', L'c', L'd', L'e', L'f', L'g', L'h'}) {
            key.WriteString((c + std::wstring(254, L'x')).c_str(), L"la(a)");
        }
        key.WriteString(L"One, two", L"la(a)");  // the ninth
    }
    const HWND page = OpenPage();
    ASSERT_TRUE(page);
    const HWND dialog = OpenDialog(page, 2);
    ASSERT_TRUE(dialog);
    const HWND list = GetDlgItem(dialog, IDC_LAYOUTS_LIST);
    Tick(dialog, 8);
    ASSERT_TRUE(program_.Dismiss());
    EXPECT_EQ(Ticks(list), L"---------x---") << "but Latin";
    for (int i = 0; i < 8; ++i) Tick(dialog, i);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    ASSERT_TRUE(program_.Dismiss());
    EXPECT_TRUE(IsWindow(dialog));
    Tick(dialog, 9);
    ASSERT_TRUE(Ok(dialog));
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"Contacts_layouts").size(), 8 * 256 - 1u);
}

}  // namespace
