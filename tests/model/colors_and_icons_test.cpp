// Colours and icons on a device with its icon set installed.
#include <windows.h>

#include <gtest/gtest.h>
#include <todaycmn.h>

#include <string>
#include <vector>

#include "appearance/categories/category_color_store.h"
#include "appearance/categories/category_icon_files.h"
#include "appearance/categories/icon_files.h"
#include "appearance/categories/icon_library.h"
#include "appearance/drawing/shell_colors.h"
#include "appearance/drawing/theme_colors.h"
#include "settings/settings_key.h"
#include "tests/windows.h"

namespace {

constexpr wchar_t kColorKey[] = L"SOFTWARE\\Microsoft\\Color";
constexpr wchar_t kCategoryKey[] = L"\\Software\\Lum Software House\\Lum Diary\\Colors";
constexpr wchar_t kIconSet[] = L"\\Program Files\\Lum Diary\\IconSet\\";
constexpr wchar_t kInformant[] = L"\\Software\\WebIS\\PocketInformant\\Menus\\PictureChooser\\MRU";

CSettingsKey Open(const wchar_t* path) {
    return CSettingsKey(HKEY_LOCAL_MACHINE, path, true, false);
}

class Appearance : public ::testing::Test {
  protected:
    void SetUp() override {
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kColorKey);
        Open(L"SOFTWARE\\Apps\\Lum Diary")
            .WriteString(L"InstallDir", L"\\Program Files\\Lum Diary");
    }
};

TEST_F(Appearance, ShellColorsComeFromTheNumberTheUserOrTheTheme) {
    const std::vector<COLORREF> user(45, 0x111111), theme(45, 0x222222), tooLong(46, 0x333333);
    const auto put = [](const wchar_t* name, const std::vector<COLORREF>& table, DWORD size) {
        Open(kColorKey).WriteBinary(name, table.data(), size);
    };
    EXPECT_EQ(GetShellColor(6, 0xABCDEF), 0xABCDEFu);
    put(L"DefSHColor", theme, 180);
    EXPECT_EQ(GetShellColor(6, 0xABCDEF), 0x222222u);
    put(L"SHColor", user, 8);
    EXPECT_EQ(GetShellColor(6, 0xABCDEF), 0xABCDEFu);
    EXPECT_EQ(GetShellColor(1, 0xABCDEF), 0x111111u);
    put(L"SHColor", user, 180);
    EXPECT_EQ(GetShellColor(44, 0xABCDEF), 0x111111u);
    EXPECT_EQ(GetShellColor(45, 0xABCDEF), 0xABCDEFu);
    EXPECT_EQ(GetShellColor(-1, 0xABCDEF), 0xABCDEFu);
    put(L"SHColor", tooLong, 184);
    EXPECT_EQ(GetShellColor(6, 0xABCDEF), 0x222222u);
    Open(kColorKey).WriteDword(L"6", 0xDEF0);
    EXPECT_EQ(GetShellColor(6, 0xABCDEF), 0xDEF0u);
}

TEST_F(Appearance, StatusAndCategoryColorsKeepTheirValues) {
    const COLORREF defaults[] = {0xCCCCCC, 0xFFFFFF, 0xF7CBA5, 0xDC4040,
                                 0x840084, 0xD2FFFF, 0x0000FF};
    for (int status = -1; status <= 5; ++status) {
        EXPECT_EQ(GetApptStatusColor(status), defaults[status + 1]) << status;
    }
    OpenProductKey().WriteDword(L"clrApptStatusConfliciting", 0x123456);
    OpenProductKey().WriteDword(L"clrApptStatusNotloaded", 0x654321);
    EXPECT_EQ(GetApptStatusColor(5), 0x123456u);
    EXPECT_EQ(GetApptStatusColor(4), 0x654321u);
    EXPECT_EQ(GetApptStatusColor(6), 0u);
    EXPECT_EQ(GetApptStatusColor(-2), 0u);

    Open(kCategoryKey).WriteDword(L"Old", 0x80FF0000);
    CategoryColor color = ReadCategoryColor(L"Old");
    EXPECT_TRUE(color.IsNone());
    color.SetColor(0x0000FF);
    color.SetIntensity(25);
    EXPECT_TRUE(WriteCategoryColor(L"a%Bb%K", color));
    EXPECT_EQ(Open(kCategoryKey).ReadDword(L"a\\b%K", 0), 0x190000FFu);
    EXPECT_EQ(ReadCategoryColor(L"a%Bb%K").Pack(), 0x190000FFu);
}

LRESULT CALLBACK TodayProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == TODAYM_GETCOLOR) return static_cast<LRESULT>(wParam & 0xFF);
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

TEST_F(Appearance, ThemeColorsFollowTheTodayScreen) {
    ThemeColors colors;
    colors.Refresh();
    EXPECT_EQ(colors.GetColor(ThemeColor::kSeparator), 0xCE8231u);
    EXPECT_EQ(colors.GetColor(ThemeColor::kHighlight), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(colors.GetColor(ThemeColor::kConflicting), 0x0000FFu);

    const HWND today = MakeWindow(L"DesktopExplorerWindow", TodayProcedure);
    const HBRUSH before = colors.GetBrush(ThemeColor::kText);
    EXPECT_EQ(colors.GetBrush(ThemeColor::kText), before);
    colors.SetOwnerColor(0x123456);
    colors.Refresh();
    DestroyWindow(today);
    EXPECT_EQ(colors.GetColor(ThemeColor::kHighlight), 0x22u);
    EXPECT_EQ(colors.GetColor(ThemeColor::kText), 0x04u);
    EXPECT_EQ(colors.GetColor(ThemeColor::kHighlightedText), 0x23u);
    EXPECT_EQ(colors.GetColor(ThemeColor::kOwner), 0x123456u);
    for (const COLORREF color : {0x123456u, 0x654321u}) {
        colors.SetOwnerColor(color);
        LOGBRUSH brush = {};
        GetObjectW(colors.GetBrush(ThemeColor::kOwner), sizeof brush, &brush);
        EXPECT_EQ(brush.lbColor, color);
    }
}

// A folder that is empty at first and is gone afterwards.
class IconFolder {
  public:
    IconFolder() { CreateDirectoryW(kPath, nullptr); }
    ~IconFolder() {
        for (const std::wstring& file : files_) DeleteFileW((kPath + file).c_str());
        RemoveDirectoryW(kPath);
    }
    IconFolder(const IconFolder&) = delete;
    IconFolder& operator=(const IconFolder&) = delete;

    void Copy(const wchar_t* icon, const wchar_t* file) {
        files_.push_back(file);
        ASSERT_TRUE(CopyFileW((std::wstring(kIconSet) + icon).c_str(),
                              (kPath + files_.back()).c_str(), FALSE));
    }
    // A bitmap with one colour, `missing` bytes too short.
    void Write(const wchar_t* name, WORD width, WORD height, DWORD missing = 0) {
        files_.push_back(name);
        const DWORD pixels = (width * 3 + 3) / 4 * 4 * height;
        std::vector<BYTE> bytes = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 26, 0,  0,
                                   0,   12,  0, 0, 0, 0, 0, 0, 0, 1, 0,  24, 0};
        bytes[18] = static_cast<BYTE>(width);
        bytes[20] = static_cast<BYTE>(height);
        bytes.resize(bytes.size() + pixels - missing, 0x80);
        EXPECT_TRUE(WriteBytes(kPath + files_.back(), bytes.data(), bytes.size()));
    }

    static constexpr wchar_t kPath[] = L"\\Test Icons\\";

  private:
    std::vector<std::wstring> files_;
};

TEST_F(Appearance, IconsAreCollectedByTheCatalogue) {
    IconFolder folder;
    folder.Write(L"large.bmp", 32, 32);
    folder.Write(L"high.bmp", 1, 31);
    folder.Write(L"cut.bmp", 8, 8, 1);
    folder.Write(L".hidden.bmp", 8, 8);
    EXPECT_FALSE(HasIcons(folder.kPath));
    folder.Write(L"largest.bmp", 30, 30);
    EXPECT_TRUE(HasIcons(L"\\Test Icons"));
    folder.Copy(L"house.bmp", L"one.bmp");
    folder.Copy(L"house.bmp", L"two.bmp");
    folder.Copy(L"coins.bmp", L"three.bmp");

    IconLibrary library;
    library.LoadFolder(folder.kPath);
    library.LoadFolder(L"\\test icons");
    const auto summary = [&] {
        std::wstring text;
        for (const IconLibrary::Group& group : library.groups()) {
            text += group.title + L":";
            for (const IconLibrary::Icon& icon : group.icons) {
                text += L" " + icon.name;
            }
            text += L"; ";
        }
        return text;
    };
    EXPECT_EQ(summary(), L"Other Icons: largest.bmp; Home: one.bmp two.bmp; Money: three.bmp; ");
    library.Clear();
    EXPECT_EQ(summary(), L"Other Icons:; ");
    library.LoadFolder(kIconSet);
    ASSERT_EQ(library.groups().size(), 10u);
    EXPECT_TRUE(library.groups()[0].icons.empty());
    for (std::size_t i = 1; i < 10; ++i) EXPECT_EQ(library.groups()[i].icons.size(), 8u) << i;
}

TEST_F(Appearance, SourcesAreFoundAndRemembered) {
    IconFolder folder;
    folder.Copy(L"house.bmp", L"house.bmp");
    using Folders = std::vector<std::wstring>;
    EXPECT_EQ(FindFixedIconSources(), Folders{kIconSet});
    {
        CSettingsKey key(HKEY_CURRENT_USER, kInformant, true, false);
        key.WriteString(L"0", folder.kPath);
    }
    EXPECT_EQ(FindFixedIconSources(), (Folders{kIconSet, folder.kPath}));
    DeleteKeyTree(HKEY_CURRENT_USER, kInformant);

    CSettingsKey key = OpenProductKey(L"IconSets");
    for (const wchar_t* const name : {L"3", L"7", L"9", L"010", L"11", L"12"}) {
        key.WriteString(name, (std::wstring(L"imported ") + name).c_str());
    }
    WriteRememberedFolders(*ReadRememberedFolders());
    EXPECT_EQ(key.ReadString(L"1"), L"imported 3");
    EXPECT_EQ(key.ReadString(L"5"), L"imported 11");
    EXPECT_EQ(key.ReadString(L"7"), L"");

    RememberedFolders remembered = *ReadRememberedFolders();
    remembered.Add(L"new");
    WriteRememberedFolders(remembered);
    EXPECT_EQ(ReadRememberedFolders()->folders(), remembered.folders());
}

TEST_F(Appearance, CategoryIconsLieWhereThePimKeepsThem) {
    const std::wstring own = L"\\Program Files\\Lum Diary\\Icons\\";
    EXPECT_EQ(FindCategoryIconFolder(), own);
    OpenProductKey().WriteDword(L"CurrentPIM", 1);
    EXPECT_EQ(FindCategoryIconFolder(), L"");
    EXPECT_FALSE(AssignCategoryIcon(L"", L"Work", std::wstring(kIconSet) + L"house.bmp"));
    Open(kAgendaFusionKey).WriteString(L"Core.Categories", L"\\Fusion");
    EXPECT_EQ(FindCategoryIconFolder(), L"\\Fusion\\");

    EXPECT_EQ(CategoryIconPath(own, L"Work/Home"), own + L"Work%CHome.bmp");
}

}  // namespace
