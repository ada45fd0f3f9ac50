// The filters of mail folders on a device with the accounts of two mail systems.
#include "pages/stores/mail_folders_filters.h"

#include <gtest/gtest.h>

#include <fstream>

#include "pages/stores/mail_folder_tree.h"
#include "pocketpc/common/mail_store.h"
#include "settings/settings_key.h"

namespace {

constexpr wchar_t kTrials[] = L"Software\\Stand-in\\Messaging";
const CMailFoldersFilters::BuiltInNames kNames = {L"Deleted", L"Drafts", L"Inbox", L"Outbox",
                                                  L"Sent"};

// "Filter: name kind, name kind; ..."
std::wstring Summary(const CMailFoldersFilters& filters) {
    std::wstring text;
    for (const MailFilter& filter : filters.filters()) {
        text += filter.name + L":";
        for (const auto& [folder, name] : filter.entries) {
            text += L" " + name + (folder.inSecondStore ? L"/F" : L"/M");
        }
        text += L"; ";
    }
    return text;
}

std::wstring Summary(const std::vector<MailFolderNode>& tree) {
    std::wstring text;
    for (const MailFolderNode& node : tree) {
        text += node.path + L"/" + std::to_wstring(static_cast<int>(node.kind)) + L"; " +
                Summary(node.children);
    }
    return text;
}

// A store of its own for each test, and afterwards the device's again.
class MailFilters : public ::testing::Test {
  protected:
    void SetUp() override {
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kTrials);
    }
    void TearDown() override {
        EXPECT_TRUE(device_.Save());
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kTrials);
    }

    static bool FillBuiltIns(CMailFoldersFilters& filters, const Mail2& mail2 = Mail2()) {
        const MapiSession session;
        const auto builtIns = filters.FindBuiltIns(kNames);
        const bool done = filters.AddMAPIFolders(session, builtIns);
        filters.AddMail2Folders(mail2, builtIns);
        return done;
    }
    static std::wstring Tree(const Mail2& mail2 = Mail2()) {
        const MapiSession session;
        return Summary(ReadMailFolderTree(session, mail2, L"None"));
    }
    static void Try(const wchar_t* name, DWORD value) {
        CSettingsKey(HKEY_LOCAL_MACHINE, kTrials, true, false).WriteDword(name, value);
    }
    // What the messaging library reported; everything must have been released.
    static DWORD ReportedCalls() {
        CSettingsKey key(HKEY_LOCAL_MACHINE, kTrials, false, false);
        for (const wchar_t* name : {L"Objects", L"RowSets", L"Buffers", L"WrongFrees"}) {
            EXPECT_EQ(key.ReadDword(name, SETTINGS_NO_DEFAULT), 0u) << testing::PrintToString(name);
        }
        return key.ReadDword(L"Calls", SETTINGS_NO_DEFAULT);
    }

    const MailStore device_ = MailStore::Load();
};

TEST_F(MailFilters, TakeTheSpecialFoldersOfBothStores) {
    Mail2 mail2;
    mail2.Load();
    const std::wstring none = L"Deleted:; Drafts:; Inbox:; Outbox:; Sent:; ";
    for (const bool mapi : {true, false}) {
        if (!mapi) {
            ASSERT_TRUE(MailStore().Save());
        }
        CMailFoldersFilters first, second;
        EXPECT_TRUE(FillBuiltIns(first));
        EXPECT_TRUE(FillBuiltIns(second, mail2));
        EXPECT_TRUE(FillBuiltIns(second, mail2)) << "again changes nothing";
        const std::wstring m = mapi ? L" Outlook E-mail/M Text Messages/M" : L"";
        const auto expected = [&](const std::wstring& all, const std::wstring& drafts) {
            return L"Deleted:" + m + all + L"; Drafts:" + m + drafts + L"; Inbox:" + m + all +
                   L"; Outbox:" + m + all + L"; Sent:" + m + all + L"; ";
        };
        EXPECT_EQ(Summary(first), expected(L"", L""));
        EXPECT_EQ(Summary(second), expected(L" Home mail/F B\xFCro/F", L" Home mail/F"));
    }
}

TEST_F(MailFilters, TheTreeHasEveryFolderOnce) {
    EXPECT_EQ(
        Tree(),
        L"Outlook E-mail/0; Outlook E-mail - Inbox/4; "
        L"Outlook E-mail - Inbox - Projects/1; Outlook E-mail - Inbox - Projects - Bridge/1; "
        L"Outlook E-mail - Inbox - Projects - Town hall/1; "
        L"Outlook E-mail - Inbox - Suppliers/1; Outlook E-mail - Outbox/5; "
        L"Outlook E-mail - Sent Items/6; Outlook E-mail - Deleted Items/2; "
        L"Outlook E-mail - Drafts/3; Outlook E-mail - Archive/1; "
        L"Outlook E-mail - Archive - Last year/1; "
        L"Text Messages/0; Text Messages - Inbox/4; Text Messages - Outbox/5; "
        L"Text Messages - Sent/6; Text Messages - Deleted Items/2; Text Messages - Drafts/3; ");
    Mail2 mail2;
    mail2.Load();
    ASSERT_TRUE(MailStore().Save());
    EXPECT_TRUE(
        Tree(mail2).ends_with(L"B\xFCro/0; B\xFCro - Inbox/4; B\xFCro - Outbox/5; B\xFCro - "
                              L"Sent items/6; B\xFCro - Deleted items/2; B\xFCro - Projects/1; "));
}

// A store's folders begin where it says; only one that does not say is asked for its root by null.
TEST_F(MailFilters, TheTreeBeginsAtTheSubtree) {
    const std::wstring whole = Tree();
    for (const DWORD lacking : {0, 1}) {
        for (const DWORD null : {0, 1}) {
            Try(L"NoSubtree", lacking);
            Try(L"NullEntry", null);
            EXPECT_EQ(Tree(), lacking && !null ? L"Outlook E-mail/0; Text Messages/0; " : whole);
            const MapiSession session;
            session.ForEachAccount([&](const MapiAccount& account) {
                ULONG type = 0;
                LPUNKNOWN object = nullptr;
                const auto store = session.OpenStore(account);
                EXPECT_EQ(SubtreeIdentifier(*store.get()).size(), lacking ? 0u : 12u);
                EXPECT_EQ(store.get()->OpenEntry(0, nullptr, nullptr, 0, &type, &object),
                          null ? S_OK : E_INVALIDARG);
                const MapiPointer<IUnknown> owner(object);
                return true;
            });
        }
    }
}

TEST_F(MailFilters, TablesGiveFewRowsAndNoCount) {
    MailStore mail;
    for (int i = 0; i < 12; ++i) mail.Add(0, MailKind::kAccount, L"A", L"ActiveSync");
    ASSERT_TRUE(mail.Save());
    LPMAPISESSION session = nullptr;
    ASSERT_EQ(MAPILogonEx(0, nullptr, nullptr, 0, &session), S_OK);
    const MapiPointer<IMAPISession> sessionOwner(session);
    LPMAPITABLE table = nullptr;
    ASSERT_EQ(session->GetMsgStoresTable(0, &table), S_OK);
    const MapiPointer<IMAPITable> tableOwner(table);
    ULONG count = 0;
    EXPECT_EQ(table->GetRowCount(0, &count), MAPI_E_NO_SUPPORT);
    for (const auto& [asked, given] : {std::pair{0, -1}, {-1, -1}, {11, 10}, {2, 2}, {1, 0}}) {
        LPSRowSet rows = nullptr;
        EXPECT_EQ(table->QueryRows(asked, 0, &rows), given < 0 ? E_INVALIDARG : S_OK) << asked;
        const MapiRows owner(rows);
        EXPECT_EQ(rows ? static_cast<int>(rows->cRows) : -1, given) << asked;
    }
}

// The key that names a storage is part of its folders' identifiers.
TEST_F(MailFilters, OfferNoFolderWithTooLongAKey) {
    const std::string folder = "\\Application Data\\Mail2\\";
    const std::string volume = folder + "{7A9D2E14-0C58-4B6F-A3D1-92E47F8B5C06}.vol";
    const std::string settings = folder + "settings.ini", kept = folder + "kept.ini";
    ASSERT_TRUE(MailStore().Save() && CopyFileA(settings.c_str(), kept.c_str(), FALSE));
    for (const std::size_t length : {125, 126}) {
        const std::string copy = folder + std::string(length, 'n') + ".vol";
        ASSERT_TRUE(CopyFileA(volume.c_str(), copy.c_str(), FALSE));
        std::ofstream(settings) << "[SERVICE.1]\nStorage=1\nStorageName=Long\nServiceName=x\n"
                                << "StorageDBFileName=" << copy << "\n";
        {
            Mail2 mail2;
            mail2.Load();
            ASSERT_EQ(mail2.accounts().size(), 1u);
            EXPECT_EQ(Tree(mail2).starts_with(L"Long/0; Long - Inbox/4; "), length == 125);
            EXPECT_EQ(Tree(mail2).empty(), length == 126);
        }
        EXPECT_TRUE(DeleteFileA(copy.c_str()));
    }
    EXPECT_TRUE(MoveFileExA(kept.c_str(), settings.c_str(), MOVEFILE_REPLACE_EXISTING));
}

TEST_F(MailFilters, WithstandOddStores) {
    MailStore mail;
    // A folder within itself, one twice, and what can be neither opened nor shown.
    const DWORD first = mail.Add(0, MailKind::kAccount, L"A", L"ActiveSync");
    const DWORD folder = mail.Add(first, MailKind::kFolder, L"Round");
    const DWORD again = mail.Add(folder, MailKind::kFolder, L"Round again");
    mail.Add(again, MailKind::kFolder, L"below");
    mail.nodes()[2].identifier = mail.nodes()[1].identifier;
    mail.Add(first, MailKind::kMessage, L"no folder");
    mail.Add(first, MailKind::kFolder, L"");
    mail.Add(first, MailKind::kFolder, L"no identifier");
    mail.nodes().back().identifier.clear();
    mail.Add(first, MailKind::kFolder, std::wstring(300, L'n'));
    mail.Add(first, MailKind::kFolder, L"large identifier");
    mail.nodes().back().identifier.assign(256, 3);
    mail.Add(first, MailKind::kDrafts, L"Drafts");
    const std::vector<BYTE> drafts = mail.nodes().back().identifier;
    // Another service with the same drafts, one that is not set up, and accounts that lack things.
    const DWORD second = mail.Add(0, MailKind::kAccount, L"B", L"SMS");
    mail.Add(second, MailKind::kDrafts, L"Drafts");
    mail.nodes().back().identifier = drafts;
    mail.Add(mail.Add(0, MailKind::kAccount, L"C", L"unknown"), MailKind::kInbox, L"Inbox");
    mail.Add(mail.Add(0, MailKind::kAccount, L""), MailKind::kInbox, L"Inbox");
    mail.Add(mail.Add(0, MailKind::kAccount, L"E"), MailKind::kInbox, L"Inbox");
    mail.Add(0, MailKind::kAccount, L"F");
    mail.nodes().back().identifier.clear();
    ASSERT_TRUE(mail.Save());
    CMailFoldersFilters filters;
    EXPECT_TRUE(FillBuiltIns(filters));
    EXPECT_EQ(Summary(filters),
              L"Deleted:; Drafts: Text Messages/M; Inbox: Inbox/M E/M; Outbox:; Sent:; ");
    const std::wstring account = L"Outlook E-mail";
    EXPECT_EQ(
        Tree(),
        account + L"/0; " + account + L" - Round/1; " + account + L" - " + std::wstring(255, L'n') +
            L"/1; " + account +
            L" - Drafts/3; Text Messages/0; Text Messages - Drafts/3; None/0; None - Inbox/4; "
            L"E/0; E - Inbox/4; ");
}

// Every call fails once, with several results; the rest goes on, and all is released.
TEST_F(MailFilters, ReleaseEverythingWhateverFails) {
    const std::wstring whole = Tree();
    for (const DWORD result : {0x80004005ul, 0x8004010Ful}) {
        Try(L"FailWith", result);
        DWORD calls = 0;
        for (DWORD fail = 1; fail == 1 || fail <= calls + 1; ++fail) {
            Try(L"FailCall", fail);
            CMailFoldersFilters filters;
            const bool done = FillBuiltIns(filters);
            calls = ReportedCalls();
            // Logging off is the last call, and all is read by then.
            EXPECT_EQ(done, calls > 2 && fail >= calls) << fail;
        }
        for (DWORD fail = 1; fail == 1 || fail <= calls + 1; ++fail) {
            Try(L"FailCall", fail);
            const std::wstring tree = Tree();
            calls = ReportedCalls();
            EXPECT_TRUE(fail > calls ? tree == whole : tree.size() <= whole.size()) << fail;
        }
    }
}

TEST_F(MailFilters, WithstandShortTables) {
    Try(L"TableRows", 1);
    CMailFoldersFilters filters;
    EXPECT_TRUE(FillBuiltIns(filters));
    EXPECT_TRUE(Summary(filters).starts_with(L"Deleted: Outlook E-mail/M; "));
    EXPECT_EQ(Tree(),
              L"Outlook E-mail/0; Outlook E-mail - Inbox/4; "
              L"Outlook E-mail - Inbox - Projects/1; "
              L"Outlook E-mail - Inbox - Projects - Bridge/1; ");
    for (const DWORD columns : {0, 1, 2}) {
        Try(L"TableRows", 100);
        Try(L"RowColumns", columns);
        CMailFoldersFilters few;
        EXPECT_TRUE(FillBuiltIns(few));
        // Without the service's name the account's own one serves, and without both the filter's.
        const std::wstring expected[] = {L"Inbox:; ", L"Inbox: Inbox/M Inbox/M; ",
                                         L"Inbox: Outlook E-mail/M Text Messages/M; "};
        EXPECT_NE(Summary(few).find(expected[columns]), std::wstring::npos) << columns;
        EXPECT_EQ(Tree().find(L"Projects"), std::wstring::npos);
        ReportedCalls();
    }
}

// A filter of the name that the registry does not tell from a built-in one's is that one.
TEST_F(MailFilters, OfOneNameAreOne) {
    CMailFoldersFilters filters;
    filters.filters() = {{L"\x44F\x449\x438\x43A", {{{{1}, false}, L"One"}}}, {L"INBOX", {}}};
    const auto builtIns =
        filters.FindBuiltIns({L"a", L"b", L"Inbox", L"\x42F\x429\x418\x41A", L"e"});
    EXPECT_EQ(builtIns, (CMailFoldersFilters::BuiltIns{2, 3, 1, 0, 4}));
    filters.filters() = {{L"\x42F", {{{{1}, false}, L"One"}}},
                         {L"\x430", {{{{1}, false}, L"One"}}}};
    EXPECT_EQ(filters.SortedIndices(), (std::vector<int>{1, 0}));
}

TEST_F(MailFilters, AreStoredAndLoaded) {
    CMailFoldersFilters filters;
    EXPECT_FALSE(filters.Load(false)) << "nothing is stored yet";
    filters.filters() = {{L"b", {{{{1, 2}, true}, L"One"}}},
                         {L"empty", {}},
                         {L"A", {{{{3}, false}, L"Two"}}},
                         {L"long", {{{{4}, false}, std::wstring(300, L'n')}}},
                         {L"large", {{{std::vector<std::uint8_t>(256), false}, L"Three"}}}};
    OpenProductKey(L"MailFilters").WriteBinary(L"gone", "M\1\7\1x", 6);
    EXPECT_EQ(filters.SortedIndices(), (std::vector<int>{2, 0, 4, 3}));
    EXPECT_EQ(filters.FindByName(L"LONG"), 3);
    EXPECT_EQ(filters.FindByName(L"lon"), -1);
    filters.Save();
    {
        CSettingsKey key = OpenProductKey(L"MailFilters");
        std::uint8_t bytes[64];
        DWORD size = sizeof bytes;
        ASSERT_TRUE(key.ReadBinary(L"b", bytes, &size));
        EXPECT_EQ(std::string(bytes, bytes + size), std::string("F\2\1\2\3O\0n\0e\0", 11));
        size = 0;
        EXPECT_TRUE(key.ReadBinary(L"long", nullptr, &size));
        EXPECT_FALSE(key.ReadBinary(L"large", nullptr, &size));
        EXPECT_FALSE(key.ReadBinary(L"gone", nullptr, &size));
    }
    CMailFoldersFilters read;
    for (const bool force : {false, false, true}) {
        EXPECT_TRUE(read.Load(force));
        EXPECT_EQ(Summary(read), L"A: Two/M; b: One/F; empty:; ");
    }
    EXPECT_EQ(CMailFoldersFilters::ActiveName(), L"");
    read.SetActive(0);
    EXPECT_EQ(CMailFoldersFilters::ActiveName(), L"A");
    read.SetActive(-1);
    DWORD size = 0;
    EXPECT_FALSE(OpenProductKey().ReadBinary(L"EmailFilter", nullptr, &size));
}

}  // namespace
