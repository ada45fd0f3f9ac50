// The second mail program as it is on the furnished device.
#include "pages/stores/mail2.h"

#include <gtest/gtest.h>

#include <fstream>

#include "settings/device.h"

namespace {

constexpr char kSettingsFile[] = "\\Application Data\\Mail2\\settings.ini";

std::string ReadFile() {
    std::ifstream file(kSettingsFile, std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
}

void WriteFile(const std::string& text) { std::ofstream(kSettingsFile, std::ios::binary) << text; }

std::wstring Summary(const Mail2& mail2) {
    std::wstring text;
    for (const auto& account : mail2.accounts()) {
        text += account->name() + L":";
        for (const std::wstring& service : account->services()) text += L" " + service;
        for (const Mail2Folder& folder : account->folders()) {
            text += L" " + std::to_wstring(folder.type) + folder.name;
        }
        text += L"\n";
    }
    return text;
}

TEST(Mail2, ReadsTheInstallationAndItsStorages) {
    Mail2 mail2;
    EXPECT_TRUE(mail2.IsInstalled());
    EXPECT_EQ(mail2.installFolder(), L"\\Program Files\\Mail2\\");
    EXPECT_EQ(mail2.dataFolder(), L"\\Application Data\\Mail2\\");
    EXPECT_EQ(mail2.build(), 2417u);
    EXPECT_TRUE(mail2.integratesEmail());
    EXPECT_FALSE(mail2.integratesSms());
    EXPECT_TRUE(mail2.accounts().empty());
    for (int time = 0; time < 2; ++time) {  // Loading again gives up what was mounted.
        mail2.Load();
        EXPECT_EQ(Summary(mail2),
                  L"Home mail: IMAP SMTP 1Inbox 2Outbox 3Sent items 4Deleted items 5Drafts 0Family "
                  L"0Orders\nB\xFCro: POP3 1Inbox 2Outbox 3Sent items 4Deleted items 0Projects\n");
    }
    EXPECT_EQ(mail2.deletionFlags(), 3u);
    const Mail2Storage& home = *mail2.accounts()[0];
    EXPECT_EQ(home.info().name, L"Home mail");
    const std::vector<std::uint8_t> identifier = home.FolderIdentifier(home.folders()[1]);
    ASSERT_EQ(identifier.size(), 4u + 2 * 38);
    EXPECT_EQ(identifier[0], home.folders()[1].oid);
    EXPECT_EQ(std::vector(identifier.begin() + 1, identifier.begin() + 8),
              (std::vector<std::uint8_t>{0, 0, 0, '{', 0, '1', 0}));
}

TEST(Mail2, DropsWhatItCannotOpen) {
    const std::string whole = ReadFile();
    const auto service = [](const char* section, const char* storage, const char* file) {
        return std::string(section) + "\r\nStorage=" + storage + "\r\nStorageName=" + storage +
               "\r\nServiceName=x\r\nStorageDBFileName=" + file + "\r\n";
    };
    const char* volume = "\\Application Data\\Mail2\\{1F0C6B52-9D3E-4A57-8B21-6C7E5D4F3A20}.vol";
    CEGUID guid;
    wchar_t empty[] = L"\\empty.vol";
    ASSERT_TRUE(CeMountDBVol(&guid, empty, CREATE_NEW | (IsNewerPocketPc() ? EDB_MOUNT_FLAG : 0)));
    ASSERT_TRUE(CeUnmountDBVol(&guid));
    WriteFile(
        "EmailIntegration=TRUE\r\n[Settings]\r\nSMSIntegration=true\r\nEmailIntegration=yes\r\n"
        "MarkReadOnDeletion=TRUE\r\n" +
        service("[service.mail]", "lower", volume) + service("[Services.x]", "other", volume) +
        service("[SERVICE]", "missing", "\\missing.vol") +
        service("[SERVICE.2]", "no databases", "\\empty.vol") +
        service("[SERVICE.3]", "text", kSettingsFile) + "[Service.4]\r\nStorage=incomplete\r\n");
    Mail2 mail2;
    EXPECT_FALSE(mail2.integratesEmail());
    EXPECT_TRUE(mail2.integratesSms());
    mail2.Load();
    EXPECT_EQ(mail2.deletionFlags(), 0u);  // not both keys
    ASSERT_EQ(mail2.accounts().size(), 1u);
    EXPECT_EQ(mail2.accounts()[0]->name(), L"lower");
    EXPECT_TRUE(DeleteFileW(empty));  // The volume has been given up.
    WriteFile("");
    mail2.Load();
    EXPECT_TRUE(mail2.accounts().empty());
    WriteFile(whole);
}

TEST(Mail2, IsAbsentWithoutItsKey) {
    ASSERT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\WebIS\\Mail2"), ERROR_SUCCESS);
    Mail2 mail2;
    mail2.Load();
    EXPECT_FALSE(mail2.IsInstalled());
    EXPECT_TRUE(mail2.dataFolder().empty());
    EXPECT_TRUE(mail2.accounts().empty());
}

}  // namespace
