// The page of mail folder filters, from the first filter to its deletion.
#include <commctrl.h>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

// The folders as the tree sorts them: an account's place, and that of a folder within it.
constexpr int kHomeMail = 1, kOutlook = 2, kTexts = 3;
constexpr int kArchive = 0, kDrafts = 2, kInbox = 3;
constexpr int kTextsDrafts = 1;

class MessagesPages : public DeviceTest {
  protected:
    void Open(Program& program) {
        page_ = OpenPage(program, 5, 1, IDC_MAIL_FOLDERS);
        ASSERT_TRUE(page_);
    }
    LPARAM Next(LPARAM item, WPARAM relation) const {
        return SendDlgItemMessageW(page_, IDC_MAIL_FOLDERS, TVM_GETNEXTITEM, relation, item);
    }
    LPARAM Folder(int account, int folder) const {
        LPARAM item = Next(0, TVGN_ROOT);
        while (account-- > 0) item = Next(item, TVGN_NEXT);
        item = Next(item, TVGN_CHILD);
        while (folder-- > 0) item = Next(item, TVGN_NEXT);
        return item;
    }
    bool IsTicked(int account, int folder) const {
        const LRESULT state = SendDlgItemMessageW(page_, IDC_MAIL_FOLDERS, TVM_GETITEMSTATE,
                                                  Folder(account, folder), TVIS_STATEIMAGEMASK);
        return state == INDEXTOSTATEIMAGEMASK(2);
    }
    void Press(int account, int folder) const {
        const HWND tree = GetDlgItem(page_, IDC_MAIL_FOLDERS);
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, Folder(account, folder));
        SendKeys(tree, {VK_SPACE});
    }
    void ChooseFilter(const wchar_t* name) const { Select(page_, IDC_MAIL_FILTER, name); }
    void TypeName(const wchar_t* name) const {
        const HWND list = GetDlgItem(page_, IDC_MAIL_FILTER_NAME);
        SetWindowTextW(list, name);
        SendMessageW(page_, WM_COMMAND, MAKEWPARAM(IDC_MAIL_FILTER_NAME, CBN_EDITCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    // The kinds of a filter's records: "MMF"; "-" when there is no such filter.
    static std::string Kinds(const wchar_t* filter) {
        CSettingsKey key = OpenProductKey(L"MailFilters");
        unsigned char bytes[4096];
        DWORD size = sizeof bytes;
        if (!key.ReadBinary(filter, bytes, &size)) return "-";
        std::string kinds;
        for (DWORD i = 0; i < size;) {
            kinds += static_cast<char>(bytes[i]);
            i += 2 + bytes[i + 1];
            i += 1 + 2 * bytes[i];
        }
        return kinds;
    }

    HWND page_ = nullptr;
};

TEST_F(MessagesPages, FiltersAreMadeChangedAndDeleted) {
    const auto name = [this] { return Text(page_, IDC_MAIL_FILTER_NAME); };
    OpenProductKey().WriteString(L"EmailFilter", L"Elsewhere");
    Program program;
    Open(program);
    EXPECT_EQ(Selected(page_, IDC_MAIL_FILTER), L"(new filter)");
    EXPECT_EQ(name(), L"New filter");
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"EmailFilter"), L"Elsewhere");
    EXPECT_EQ(Kinds(L"Inbox") + Kinds(L"Drafts"), "MMFFMMF");

    Open(program);
    Press(kOutlook, kArchive);
    EXPECT_EQ(name(), L"Archive");
    Press(kOutlook, kInbox);
    EXPECT_EQ(name(), L"Mail filter 1");
    Press(kOutlook, kArchive);
    EXPECT_EQ(name(), L"Inbox");
    TypeName(L"Mine");
    ChooseFilter(L"Inbox");
    EXPECT_EQ(name(), L"Inbox");
    ChooseFilter(L"(new filter)");
    EXPECT_EQ(name(), L"Mine");
    EXPECT_TRUE(IsTicked(kOutlook, kInbox));
    TypeName(L"");
    Press(kHomeMail, 0);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"EmailFilter"), L"Mail filter 1");
    EXPECT_EQ(Kinds(L"Mail filter 1"), "MF");

    Open(program);
    EXPECT_EQ(Selected(page_, IDC_MAIL_FILTER), L"Mail filter 1");
    EXPECT_TRUE(IsTicked(kOutlook, kInbox) && IsTicked(kHomeMail, 0));
    EXPECT_FALSE(IsTicked(kOutlook, kArchive) || IsEnabled(page_, IDC_MAIL_FILTER_NAME));
    Press(kOutlook, kArchive);
    Press(kOutlook, kInbox);
    Press(kHomeMail, 1);
    ChooseFilter(L"Inbox");
    EXPECT_FALSE(IsTicked(kOutlook, kArchive) || IsEnabled(page_, IDC_MAIL_FILTER_DELETE));
    EXPECT_TRUE(IsTicked(kOutlook, kInbox));
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"EmailFilter"), L"Inbox");
    EXPECT_EQ(Kinds(L"Mail filter 1"), "FMF");

    for (const bool confirm : {false, true}) {
        OpenProductKey().WriteString(L"EmailFilter", L"Mail filter 1");
        Open(program);
        Click(page_, IDC_MAIL_FILTER_DELETE);
        EXPECT_EQ(Selected(page_, IDC_MAIL_FILTER), L"(new filter)");
        ASSERT_TRUE(confirm ? Ok(sheet_) : Cancel(sheet_));
        EXPECT_EQ(Kinds(L"Mail filter 1"), confirm ? "-" : "FMF");
        EXPECT_EQ(StoredText(L"EmailFilter"), confirm ? L"" : L"Mail filter 1");
    }
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

TEST_F(MessagesPages, AFolderThatAccountsShareIsTickedInEach) {
    constexpr wchar_t kStore[] = L"\\mail.store";
    const std::string store = ReadBytes(kStore);
    std::string shared = store;
    const std::string own = "000000000d00000012000000", others = "000000000100000006000000";
    ASSERT_NE(shared.find(own), shared.npos);
    shared.replace(shared.find(own), own.size(), others);
    ASSERT_TRUE(WriteBytes(kStore, shared.data(), shared.size()));
    Program program;
    Open(program);
    const auto ticked = [this] {
        return std::pair(IsTicked(kOutlook, kDrafts), IsTicked(kTexts, kTextsDrafts));
    };
    EXPECT_EQ(ticked(), std::pair(false, false));
    Press(kOutlook, kDrafts);
    EXPECT_EQ(ticked(), std::pair(true, true));
    Press(kTexts, kTextsDrafts);
    EXPECT_EQ(ticked(), std::pair(false, false));
    EXPECT_EQ(Text(page_, IDC_MAIL_FILTER_NAME), L"New filter");
    EXPECT_TRUE(WriteBytes(kStore, store.data(), store.size()));
}

TEST_F(MessagesPages, WhatCannotBeStoredKeepsTheSheetOpen) {
    {
        CSettingsKey key = OpenProductKey(L"MailFilters");
        std::string bytes;  // 17 records of 240 bytes, which leave no room for another one
        for (char i = 'a'; i < 'a' + 17; ++i) {
            bytes += std::string("M\xEB", 2) + std::string(235, i) + std::string("\1n\0", 3);
        }
        ASSERT_TRUE(key.WriteBinary(L"Large", bytes.data(), static_cast<DWORD>(bytes.size())));
    }
    Program program;
    Open(program);
    ChooseFilter(L"Large");
    Press(kOutlook, kArchive);
    ChooseFilter(L"Inbox");
    ASSERT_TRUE(IsRefused(program));
    EXPECT_EQ(Selected(page_, IDC_MAIL_FILTER), L"Large");
    EXPECT_EQ(Kinds(L"Inbox"), "-");
    Press(kOutlook, kArchive);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Kinds(L"Large"), std::string(17, 'M'));
    EXPECT_EQ(StoredText(L"EmailFilter"), L"Large");
}

TEST_F(MessagesPages, ANewFilterChangesNoOther) {
    Program program;
    Open(program);
    Press(kOutlook, kInbox);
    EXPECT_EQ(Text(page_, IDC_MAIL_FILTER_NAME), L"Inbox");
    Click(page_, IDC_MAIL_FILTER_ADD);
    EXPECT_EQ(Selected(page_, IDC_MAIL_FILTER), L"Outlook E-mail - Inbox");
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"EmailFilter"), L"Outlook E-mail - Inbox");
    EXPECT_EQ(Kinds(L"Outlook E-mail - Inbox") + Kinds(L"Inbox"), "MMMFF");

    Open(program);
    ChooseFilter(L"(new filter)");
    Press(kOutlook, kInbox);
    TypeName(L"iNBOX");
    ASSERT_TRUE(IsRefused(program));
    EXPECT_EQ(Kinds(L"Inbox"), "MMFF");
    constexpr wchar_t kSuggested[] = L"Inbox - Outlook E-mail";
    SendMessageW(page_, WM_COMMAND, MAKEWPARAM(IDC_MAIL_FILTER_NAME, CBN_DROPDOWN), 0);
    Select(page_, IDC_MAIL_FILTER_NAME, kSuggested);
    for (const wchar_t* const other : {L"Inbox", L"(new filter)"}) ChooseFilter(other);
    EXPECT_EQ(Text(page_, IDC_MAIL_FILTER_NAME), kSuggested);
    TypeName(L"");
    ASSERT_TRUE(Ok(sheet_)) << "the same folders are the same filter";
    EXPECT_EQ(StoredText(L"EmailFilter"), L"Outlook E-mail - Inbox");
    EXPECT_EQ(Kinds(L"Inbox"), "MMFF");
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

TEST_F(MessagesPages, NoFilterIsLeftWithoutFoldersAndWhereOnePageRefusesNoneStores) {
    OpenProductKey(L"MailFilters").WriteBinary(L"Archive", "", 0);
    Program program;
    Open(program);
    Press(kOutlook, kArchive);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Kinds(L"Archive"), "M") << "what had no folders is in nobody's way";

    Open(program);
    Press(kOutlook, kArchive);
    ChooseFilter(L"Inbox");
    ASSERT_TRUE(IsRefused(program));
    EXPECT_EQ(Selected(page_, IDC_MAIL_FILTER), L"Archive");
    EXPECT_EQ(Kinds(L"Archive"), "M");
    // What another page was to store waits until all agree.
    const HWND filters = page_;
    TurnTo(sheet_, 0);
    Click(Page(sheet_, IDC_MESSAGES_SIZE), IDC_MESSAGES_SIZE);
    PostMessageW(sheet_, WM_COMMAND, IDOK, 0);
    ASSERT_TRUE(program.Dismiss() && Page(sheet_, IDC_MAIL_FOLDERS) == filters);
    EXPECT_EQ(Stored(L"EmailShowSize"), 0u);
    Click(filters, IDC_MAIL_FILTER_DELETE);
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"EmailShowSize"), 1u);
    EXPECT_EQ(Kinds(L"Archive"), "-");
    EXPECT_EQ(StoredText(L"EmailFilter"), L"");
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

}  // namespace
