// The skins page: what it lists, and what becomes of a choice.
#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class SkinsPage : public DeviceTest {};

TEST_F(SkinsPage, AChoiceIsStoredAtOnceAndTakenBackWhenInvalid) {
    const std::wstring folder = kInstallFolder, skins = folder + L"Skins";
    ASSERT_TRUE(WriteLanguageFile(L"Classic|Klassisch\r\nSkins|H\xFCllen\r\n"));
    ASSERT_TRUE(CopyFileW((skins + L"\\NewStyle.zip").c_str(), (skins + L"\\Blue.ZIP").c_str(), 0));
    ASSERT_TRUE(CreateDirectoryW((skins + L"\\Empty").c_str(), nullptr));
    OpenProductKey().WriteString(L"SkinName", L"blue");
    Program program(L"-P0:6");
    const HWND sheet = program.Sheet(L"General options");
    const HWND page = Page(sheet, IDC_SKIN);
    ASSERT_TRUE(page);
    EXPECT_EQ(TabText(sheet, 6), L"H\xFCllen");
    EXPECT_EQ(Selected(page, IDC_SKIN), L"Blue");
    const auto choose = [page](const wchar_t* name) { Select(page, IDC_SKIN, name); };
    choose(L"Empty");
    EXPECT_EQ(StoredText(L"SkinName"), L"blue");
    EXPECT_EQ(Selected(page, IDC_SKIN), L"Empty") << "the keys could not go on";
    EXPECT_EQ(Text(page, IDC_SKIN_HINT), L"Empty has no tab_icons_16.bmp");
    choose(L"Classic");
    EXPECT_EQ(StoredText(L"SkinName"), L"Classic");
    EXPECT_EQ(Text(page, IDC_SKIN_HINT), L"");
    choose(L"Empty");
    EXPECT_EQ(StoredText(L"SkinName"), L"blue") << "not the skin the page began with";
    choose(L"NewStyle");
    ASSERT_TRUE(Cancel(sheet));
    EXPECT_EQ(StoredText(L"SkinName"), L"NewStyle");

    DeleteFileW((skins + L"\\Blue.ZIP").c_str());
    RemoveDirectoryW((skins + L"\\Empty").c_str());
    ASSERT_TRUE(MoveFileW(skins.c_str(), (folder + L"Aside").c_str()));
    program.Open(0, 6);
    EXPECT_EQ(Selected(Page(program.Sheet(L"General options"), IDC_SKIN), IDC_SKIN), L"Classic");
    EXPECT_EQ(StoredText(L"SkinName"), L"NewStyle") << "showing is not choosing";
    MoveFileW((folder + L"Aside").c_str(), skins.c_str());
}

}  // namespace
