// Settings files over the device's registry, and what is loaded of the settings.
#include <windows.h>

#include <gtest/gtest.h>

#include "app/registry_exporter.h"
#include "app/reload_after_import.h"
#include "appearance/categories/category_list.h"
#include "appearance/drawing/fonts.h"
#include "appearance/drawing/theme_colors.h"
#include "appearance/skins/skin_art.h"
#include "base/read_file.h"
#include "settings/diary_settings.h"
#include "settings/keyboard_layouts.h"
#include "settings/settings_key.h"
#include "tests/registry.h"
#include "tests/windows.h"

namespace {

constexpr wchar_t kTree[] = L"\\Software\\Export Test";
constexpr wchar_t kFile[] = L"\\My Documents\\test.dias";

RegistryValues Everything() {
    RegistryValues values;
    ReadValues(kTree, values);
    return values;
}

class Exporter : public ::testing::Test {
  protected:
    void SetUp() override {
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kTree);
        DeleteFileW(kFile);
    }
    static void Put(const std::wstring& below, const wchar_t* name, DWORD type,
                    std::string_view data) {
        HKEY key = nullptr;
        DWORD disposition = 0;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (kTree + below).c_str(), 0, nullptr, 0, 0,
                                  nullptr, &key, &disposition),
                  ERROR_SUCCESS);
        ASSERT_EQ(RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(data.data()),
                                 static_cast<DWORD>(data.size())),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }
    static bool FileExists() { return GetFileAttributesW(kFile) != INVALID_FILE_ATTRIBUTES; }
    static bool Export() {
        RegistryExporter exporter;
        exporter.Exclude(L"Version");
        exporter.Exclude(L"bUild");
        return exporter.Export(kFile, HKEY_LOCAL_MACHINE, kTree);
    }
};

TEST_F(Exporter, BringsATreeBack) {
    using namespace std::string_literals;
    using namespace std::string_view_literals;
    const std::wstring deep = L"\\a\\\x0416\x4E2D\\c\\d\\e";
    Put(L"", L"", REG_SZ, "n\0o\0 \0n\0a\0m\0e\0\0\0"sv);
    Put(L"", L"Empty", REG_SZ, "\0\0"sv);
    Put(deep, L"\x0414\xD83D\xDE00", REG_SZ, "\x16\x04\x3D\xD8\0\0"sv);
    Put(deep, L"Number", REG_DWORD, "\xFF\xFF\xFF\xFF"sv);
    Put(L"\\a", L"Bytes", REG_BINARY, std::string(4096, '\xA5'));
    for (const wchar_t* name : {L"None", L"Nothing"}) Put(L"\\a", name, REG_BINARY, "");
    const RegistryValues before = Everything();
    Put(L"", L"VERSION", REG_DWORD, "1234"sv);
    Put(deep, L"Build", REG_MULTI_SZ, "\0\0"sv);  // Left out, and so no obstacle.
    // What cannot be read as a number is exported as one that says so.
    Put(L"", L"TooLong", REG_DWORD, "12345678"sv);
    ASSERT_TRUE(Export());
    const auto bytes = ReadWholeFile(kFile).value();
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_LT(text.find("E\0m\0p"sv), text.find("B\0y\0t"sv))
        << "a key's values come before its keys";

    DeleteKeyTree(HKEY_LOCAL_MACHINE, kTree);
    Put(L"", L"Stays", REG_DWORD, "\1\0\0\0"sv);
    ASSERT_TRUE(RegistryExporter().Import(kFile));
    RegistryValues expected = before;
    expected[kTree + std::wstring(L"\\Stays")] = "\4\1\0\0\0"s;
    expected[kTree + std::wstring(L"\\TooLong")] = "\4\xF0\xDE\0\0"s;
    EXPECT_EQ(Everything(), expected);
}

TEST_F(Exporter, FailsAndLeavesNoFile) {
    EXPECT_FALSE(Export()) << "no such key";
    Put(L"\\a", L"Ok", REG_DWORD, "1234");
    EXPECT_FALSE(RegistryExporter().Export(L"\\No Such Folder\\x.dias", HKEY_LOCAL_MACHINE, kTree));
    Put(L"\\b", L"List", REG_MULTI_SZ, std::string(4, '\0'));
    EXPECT_FALSE(Export()) << "a type that files do not have";
    EXPECT_FALSE(FileExists());
    EXPECT_FALSE(RegistryExporter().Import(kFile)) << "no such file";
}

// The registry's own limit ends what nests deeper; the desktop's keys are out of reach.
TEST_F(Exporter, ImportEndsWhereTheRegistryDoes) {
    const auto import = [](DWORD root, int levels) {
        std::vector<DWORD> file = {0, root, 4, 'k' | 'k' << 16};
        for (int i = 0; i < levels; ++i) file.insert(file.end(), {2, 4, 'a' | 'b' << 16});
        file.insert(file.end(), {4, 0, 4, 7});
        file.insert(file.end(), static_cast<std::size_t>(levels), 3);
        file.push_back(1);
        WriteBytes(kFile, file.data(), file.size() * 4);
        return RegistryExporter().Import(kFile);
    };
    EXPECT_TRUE(import(0x80000002, 14));
    EXPECT_FALSE(import(0x80000002, 17));
    EXPECT_FALSE(import(0x80000004, 1));
    EXPECT_FALSE(import(0x12345678, 1));
    EXPECT_TRUE(DeleteKeyTree(HKEY_LOCAL_MACHINE, L"kk"));
}

// What is loaded follows the registry; what is in use of it stays where it is.
TEST(AfterImport, LoadedSettingsAreReadAnew) {
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
    ReloadAfterImport();
    EXPECT_EQ(GetDiarySettings().markConflicting, 1);
    KeyboardLayouts& layouts = GetKeyboardLayouts();
    const KeyboardLayout* const latin = layouts.Find(L"Latin");
    ASSERT_TRUE(latin);
    const auto face = [] {
        LOGFONTW font = {};
        GetObjectW(ListFont(FontStyle::kNormal), sizeof font, &font);
        return std::wstring(font.lfFaceName);
    };
    EXPECT_EQ(face(), L"Tahoma");
    EXPECT_EQ(GetThemeColors().GetColor(ThemeColor::kConflicting), 0x0000FFu);
    ASSERT_EQ(GetSkinArt().LoadIcons(), SkinArt::kFromSkin);
    CategoryList& categories = CategoryList::Instance();
    ASSERT_GT(categories.Count(), 0);
    EXPECT_EQ(categories.GetColor(0), kNoColor);
    {
        CSettingsKey key = OpenProductKey();
        key.WriteDword(L"App_MarkConflicting", 0);
        key.WriteDword(L"UseSystem", 0);
        key.WriteString(L"FontName", L"Courier");
        key.WriteDword(L"clrApptStatusConfliciting", 0x123456);
        key.WriteString(L"SkinName", L"No such skin");
        OpenProductKey(L"Layouts").WriteString(L"latin", L"rx(x)");
        OpenProductKey(L"Colors").WriteDword(categories.At(0).name.c_str(), 0x00654321);
    }
    ReloadAfterImport();
    EXPECT_EQ(GetDiarySettings().markConflicting, 0);
    EXPECT_EQ(layouts.Find(L"Latin"), latin);
    EXPECT_TRUE(latin->rightToLeft);
    EXPECT_EQ(face(), L"Courier");
    EXPECT_EQ(GetThemeColors().GetColor(ThemeColor::kConflicting), 0x123456u);
    EXPECT_NE(GetSkinArt().LoadIcons(), SkinArt::kFromSkin);
    EXPECT_EQ(categories.GetColor(0), 0x654321u);
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
    ReloadAfterImport();
}

}  // namespace
