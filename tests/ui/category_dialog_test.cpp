// The category icons and the icon chooser, by keys alone: each goes to the control that has the
// focus.
#include <windows.h>

#include <commctrl.h>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

const std::wstring kInstall = kInstallFolder;

class CategoryDialogTest : public DeviceTest {
  protected:
    void Open() {
        program_.emplace(L"-P7:0");
        dialog_ = program_->Sheet(L"Category Icons");
        ASSERT_TRUE(dialog_);
        list_ = GetDlgItem(dialog_, IDC_CATEGORY_LIST);
        ASSERT_TRUE(FocusIs(dialog_, IDC_CATEGORY_LIST));
    }
    bool FocusIs(HWND dialog, int control) const {
        return Until([&] { return FocusOf(dialog) && ui::FocusIs(dialog, control); });
    }
    void Press(std::initializer_list<WPARAM> keys) const { PostKeys(FocusOf(dialog_), keys); }
    HWND OpenChooser() const {
        Press({VK_RETURN});
        const HWND chooser = program_->Sheet(L"Choose icon");
        return chooser && FocusIs(chooser, IDC_ICON_LIST) ? chooser : nullptr;
    }
    bool RowsAre(int count, int selected) const {
        return Until([&] {
            return SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0) == count &&
                   SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) ==
                       selected;
        });
    }
    static bool ColorIs(const wchar_t* name, DWORD value) {
        return Until([&] {
            return OpenProductKey(L"Colors").ReadDword(name, SETTINGS_NO_DEFAULT) == value;
        });
    }

    std::optional<Program> program_;
    HWND dialog_ = nullptr, list_ = nullptr;
};

TEST_F(CategoryDialogTest, KeysGiveACategoryAnIconAndAColorAtOnce) {
    Plugin plugin;
    const std::wstring icon = kInstall + L"Icons\\Work%CHome.bmp";
    const auto hasIcon = [&] { return ReadBytes(icon.c_str()).starts_with("BM"); };
    Open();
    EXPECT_TRUE(RowsAre(12, 0));
    EXPECT_TRUE(IsEnabled(dialog_, IDC_CATEGORY_COLOR));
    EXPECT_FALSE(IsEnabled(dialog_, IDC_CATEGORY_REMOVE));
    EXPECT_FALSE(IsEnabled(dialog_, IDC_CATEGORY_INTENSITY)) << "without a colour";
    Press({VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN});
    ASSERT_TRUE(RowsAre(12, 4));

    HWND chooser = OpenChooser();
    Press({VK_DOWN, VK_RETURN});  // closes the group that icons of no other belong to
    Press({VK_DOWN, VK_DOWN, VK_RETURN});
    ASSERT_TRUE(Until([&] { return !IsWindow(chooser); }));
    EXPECT_TRUE(Until(hasIcon));
    EXPECT_EQ(Stored(L"IconSetID"), 0u);

    Press({VK_TAB, VK_TAB});
    ASSERT_TRUE(FocusIs(dialog_, IDC_CATEGORY_REMOVE));
    Press({VK_DOWN});
    ASSERT_TRUE(FocusIs(dialog_, IDC_CATEGORY_COLOR));
    Press({VK_RETURN});
    ASSERT_TRUE(Until(
        [] { return IsWindowVisible(FindWindowW(L"LumDiaryColorsListWnd.0", nullptr)) != FALSE; }));
    Press({VK_RIGHT, VK_DOWN, VK_RETURN});
    EXPECT_TRUE(ColorIs(L"Work/Home", 0x642068FF));
    EXPECT_TRUE(Until([&] { return IsEnabled(dialog_, IDC_CATEGORY_INTENSITY); }));
    Press({VK_TAB});
    ASSERT_TRUE(FocusIs(dialog_, IDC_CATEGORY_INTENSITY));
    Press({VK_LEFT, VK_LEFT, VK_RIGHT});
    EXPECT_TRUE(ColorIs(L"Work/Home", 0x4B2068FF));
    Press({VK_UP});
    ASSERT_TRUE(FocusIs(dialog_, IDC_CATEGORY_COLOR));
    Press({VK_UP});
    ASSERT_TRUE(FocusIs(dialog_, IDC_CATEGORY_REMOVE));
    Press({VK_RETURN});
    EXPECT_TRUE(Until([&] { return !hasIcon(); }));
    EXPECT_TRUE(FocusIs(dialog_, IDC_CATEGORY_LIST));
    Press({VK_UP, VK_UP, VK_UP, VK_UP});
    EXPECT_TRUE(RowsAre(12, 0));
    Press({VK_UP});
    EXPECT_TRUE(FocusIs(dialog_, IDC_CATEGORY_COLOR)) << "the list is not left";
    Press({VK_ESCAPE});
    EXPECT_TRUE(Until([&] { return !IsWindow(dialog_); }));
    EXPECT_EQ(program_->CloseAndWait(), 0u);
    EXPECT_EQ(plugin.Updates(), (std::vector<Plugin::Update>{{0, 0}}));
}

TEST_F(CategoryDialogTest, ShowsSourcesAndFoldersToChooseFrom) {
    for (const wchar_t* folder : {L"\\Sets", L"\\Sets\\R&D", L"\\Sets\\Two"})
        CreateDirectoryW(folder, nullptr);
    const std::wstring picture = kInstall + L"IconSet\\car.bmp";
    ASSERT_TRUE(CopyFileW(picture.c_str(), L"\\Sets\\R&D\\car.bmp", FALSE));
    const auto first = [] { return OpenProductKey(L"IconSets").ReadString(L"1"); };
    OpenProductKey(L"IconSets").WriteString(L"1", L"\\Gone");
    OpenProductKey(L"IconSets").WriteString(L"2", L"\\Sets\\R&D");
    Put(L"IconSetID", 99);
    Open();
    HWND chooser = OpenChooser();
    ASSERT_TRUE(chooser);
    // All, the icon set, what is gone, and the other folder, which then comes first.
    ASSERT_TRUE(PickSource(chooser, {VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN}));
    EXPECT_TRUE(Until([&] { return first() == L"\\Sets\\R&D"; }));
    Press({VK_DOWN, VK_DOWN, VK_DOWN});
    PostMessageW(chooser, WM_COMMAND, IDOK, 0);
    ASSERT_TRUE(Until([&] { return !IsWindow(chooser); }));
    EXPECT_EQ(Stored(L"IconSetID"), 2u);
    const std::wstring icon = kInstall + L"Icons\\Business.bmp";
    EXPECT_TRUE(Until([&] { return ReadBytes(icon.c_str()) == ReadBytes(picture.c_str()); }));

    chooser = OpenChooser();
    ASSERT_TRUE(PickSource(chooser, {VK_UP}));
    const HWND folders = program_->Sheet(L"Choose folder");
    ASSERT_TRUE(folders && FocusIs(folders, IDC_FOLDER_TREE));
    Press({VK_END, VK_UP, VK_RIGHT, VK_RIGHT, VK_DOWN, VK_RETURN});  // \Sets\Two, before \Windows
    EXPECT_TRUE(Until([&] { return first() == L"\\Sets\\Two"; }));
    ASSERT_TRUE(FocusIs(chooser, IDC_ICON_LIST));
    ASSERT_TRUE(Cancel(chooser));
    EXPECT_EQ(OpenProductKey(L"IconSets").ReadString(L"3"), L"\\Gone");

    // Told to close, the program closes what is open inside of each other.
    chooser = OpenChooser();
    EXPECT_EQ(program_->CloseAndWait(), 0u);
    DeleteFileW(icon.c_str());
}

TEST_F(CategoryDialogTest, FollowsTheDevice) {
    constexpr wchar_t kPlace[] = L" \\pim.vol CategoryMainDB ";
    Open();
    Press({VK_DOWN});
    ASSERT_TRUE(RowsAre(12, 1));
    for (const wchar_t* name : {L"Personal", L"\"\""})
        ASSERT_TRUE(Control(std::wstring(L"add") + kPlace + L"1:recid 3:i4=0 2:string=" + name));
    EXPECT_TRUE(RowsAre(13, 1)) << "two of one name, and one without";
    ASSERT_TRUE(Ok(dialog_));
    ASSERT_TRUE(Control(std::wstring(L"delete") + kPlace + L"3"));  // of the first
    program_->Open(7, 0);
    dialog_ = program_->Sheet(L"Category Icons");
    list_ = GetDlgItem(dialog_, IDC_CATEGORY_LIST);
    EXPECT_TRUE(RowsAre(12, 0)) << "the first that is left is not selected";
    Press({VK_END});
    ASSERT_TRUE(RowsAre(12, 11));
    ASSERT_TRUE(Control(std::wstring(L"drop") + kPlace));
    EXPECT_TRUE(RowsAre(12, 11));
    EXPECT_EQ(program_->CloseAndWait(), 0u);
    Open();
    EXPECT_TRUE(RowsAre(0, -1));
    for (const int id : {IDC_CATEGORY_CHOOSE, IDC_CATEGORY_COLOR, IDC_CATEGORY_INTENSITY})
        EXPECT_FALSE(IsEnabled(dialog_, id)) << id;
    EXPECT_TRUE(Ok(dialog_));
}

}  // namespace
