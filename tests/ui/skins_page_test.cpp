// The skins page: what it lists, and what becomes of a choice.
#include <algorithm>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

const std::wstring kSkins = std::wstring(kInstallFolder) + L"Skins\\";

class SkinsPage : public DeviceTest {
  protected:
    static std::vector<std::wstring> Listed(HWND page) {
        const HWND list = GetDlgItem(page, IDC_SKIN);
        std::vector<std::wstring> names;
        for (int i = 0; i < SendMessageW(list, CB_GETCOUNT, 0, 0); ++i) {
            wchar_t text[MAX_PATH] = {};
            SendMessageW(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
            names.push_back(text);
        }
        return names;
    }
    static void Choose(HWND page, const wchar_t* name) {
        const std::vector<std::wstring> names = Listed(page);
        Select(page, IDC_SKIN, std::find(names.begin(), names.end(), name) - names.begin());
    }
};

TEST_F(SkinsPage, AChoiceIsStoredAtOnceAndTakenBackWhenInvalid) {
    const std::wstring language =
        L"\xFEFF"
        L"Classic|Klassisch\r\nSkins|H\xFCllen\r\n";
    ASSERT_TRUE(WriteBytes(kLanguageFile, language.data(), language.size() * 2));
    ASSERT_TRUE(CopyFileW((kSkins + L"NewStyle.zip").c_str(), (kSkins + L"Blue.ZIP").c_str(), 0));
    ASSERT_TRUE(WriteBytes((kSkins + L"a.b.zip").c_str(), "", 0));
    ASSERT_TRUE(CreateDirectoryW((kSkins + L"Empty").c_str(), nullptr));
    OpenProductKey().WriteString(L"SkinName", L"blue");
    Program program(L"-P0:0");
    const HWND sheet = program.Sheet(L"General options");
    const HWND page = Page(sheet, IDC_SKIN);
    ASSERT_TRUE(page);
    EXPECT_EQ(TabText(sheet, 0), L"H\xFCllen");
    std::vector<std::wstring> names = Listed(page);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"Blue", L"Classic", L"Empty", L"NewStyle"}));
    EXPECT_EQ(Selected(page, IDC_SKIN), L"Blue");

    Choose(page, L"Empty");
    EXPECT_EQ(StoredText(L"SkinName"), L"blue");
    EXPECT_EQ(Selected(page, IDC_SKIN), L"Blue");
    EXPECT_NE(Text(page, IDC_SKIN_HINT), L"");
    Choose(page, L"Classic");
    EXPECT_EQ(StoredText(L"SkinName"), L"Classic");
    EXPECT_EQ(Text(page, IDC_SKIN_HINT), L"");
    // It is the skin at the start that comes back.
    Choose(page, L"Empty");
    EXPECT_EQ(StoredText(L"SkinName"), L"blue");
    Choose(page, L"NewStyle");
    ASSERT_TRUE(Cancel(sheet));
    EXPECT_EQ(StoredText(L"SkinName"), L"NewStyle");
    EXPECT_EQ(program.CloseAndWait(), 0u);
    DeleteFileW((kSkins + L"Blue.ZIP").c_str());
    DeleteFileW((kSkins + L"a.b.zip").c_str());
    RemoveDirectoryW((kSkins + L"Empty").c_str());
}

TEST_F(SkinsPage, OffersTheFirstSkinForAnUnknownOneAndClassicWhereThereIsNone) {
    const std::wstring aside = std::wstring(kInstallFolder) + L"Aside";
    OpenProductKey().WriteString(L"SkinName", L"Gone");
    for (const bool none : {false, true}) {
        if (none) {
            ASSERT_TRUE(MoveFileW(kSkins.substr(0, kSkins.size() - 1).c_str(), aside.c_str()));
        }
        Program program(L"-P0:0");
        const HWND page = Page(program.Sheet(L"General options"), IDC_SKIN);
        EXPECT_TRUE(page);
        if (none) MoveFileW(aside.c_str(), kSkins.substr(0, kSkins.size() - 1).c_str());
        ASSERT_EQ(Listed(page).size(), none ? 1u : 2u);
        EXPECT_EQ(Selected(page, IDC_SKIN), none ? L"Classic" : Listed(page)[0]);
        EXPECT_EQ(StoredText(L"SkinName"), L"Gone");
    }
}

}  // namespace
