// Skins as files on the device, at either density.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/language/module.h"
#include "appearance/skins/skin_art.h"
#include "base/scale.h"
#include "settings/settings_key.h"
#include "tests/windows.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

const std::wstring kArchives = L"" ARCHIVES;
const std::wstring kSkins = L"\\Program Files\\Lum Diary\\Skins\\";

void Write(const std::wstring& path, const Bytes& bytes) {
    ASSERT_TRUE(WriteBytes(path, bytes.data(), bytes.size()));
}

Bytes Read(const std::wstring& folder, const std::string& name, bool opens = true) {
    SkinSource source;
    EXPECT_EQ(source.Open(folder), opens);
    return source.ReadMember(name.c_str()).value_or(Bytes{});
}

TEST(SkinSource, ReadsArchivesFromTheirFiles) {
    for (const wchar_t* const name : {L"stored", L"comment", L"zip64", L"cut"}) {
        const Bytes bytes = Read(kArchives + name + L".zip", "icons.bmp", name[1] != L'u');
        EXPECT_EQ(bytes.size(), name[1] == L'u' ? 0 : 30000) << testing::PrintToString(name);
        for (std::size_t i = 0; i < bytes.size(); ++i) ASSERT_EQ(bytes[i], i * 7 % 251);
    }
}

TEST(SkinSource, RefusesLongPathsAndArchivesBeyondTheAnsiCodePage) {
    SkinSource source;
    for (const auto& [name, opens] :
         {std::pair(L"\\Caf\xE9.zip", true), {L"\\\x0416.zip", false}}) {
        Write(name, Read(kArchives, "stored.zip"));
        EXPECT_EQ(source.Open(name), opens);
    }
    const std::wstring folder = kSkins + L"Classic";
    EXPECT_FALSE(source.Open(L"") || source.IsOpen());
    EXPECT_TRUE(source.Open(folder + std::wstring(260 - folder.size(), L'\\')));
    EXPECT_FALSE(source.Open(folder + std::wstring(261 - folder.size(), L'\\')));
}

class Skin : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        InitModule(GetModuleHandleW(nullptr));
        ASSERT_TRUE(LoadResourceLibrary(L"\\Program Files\\Lum Diary\\DiaryRes.Dll"));
    }
    static void TearDownTestSuite() { ShutDownModule(); }
    // A folder with Classic's artwork for this screen.
    void SetUp() override {
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
        CreateDirectoryW(folder.c_str(), nullptr);
        for (const std::string& name : names) Put(name, Read(kSkins + L"Classic", name));
    }
    void TearDown() override {
        art.Reset();
        for (const std::string& name : names) DeleteFileW(Path(name).c_str());
        RemoveDirectoryW(folder.c_str());
    }
    std::wstring Path(const std::string& name) {
        return folder + std::wstring(name.begin(), name.end());
    }
    void Put(const std::string& name, const Bytes& bytes) { Write(Path(name), bytes); }
    bool IsValid(const wchar_t* name) {
        OpenProductKey().WriteString(L"SkinName", name);
        return art.IsValid();
    }

    SkinArt& art = GetSkinArt();
    const std::wstring folder = kSkins + L"Mine\\";
    const std::string variant = ScaleX(1) >= 2 ? "_vga.bmp" : ".bmp";
    const std::string icons = "icons" + variant, scrollBar = "scrollbar" + variant;
    const std::string tabIcons = "tab_icons_" + std::to_string(ScaleX(16)) + ".bmp";
    const std::string names[3] = {icons, scrollBar, tabIcons};
};

TEST_F(Skin, TheShippedSkinsAreValid) {
    EXPECT_EQ(art.LoadIcons(), 2);
    EXPECT_EQ(OpenProductKey().ReadString(L"SkinName"), L"NewStyle");
    for (const wchar_t* name : {L"", L"Classic", L"NewStyle"}) {
        EXPECT_TRUE(IsValid(name)) << testing::PrintToString(name);
        EXPECT_EQ(art.Icons()->Count(), 40);
        EXPECT_EQ(art.Icons()->PieceSize(0).cx, ScaleX(16));
        EXPECT_EQ(art.Icons()->PieceSize(39).cy, ScaleX(9));
        EXPECT_EQ(art.ScrollBar()->Count(), 4);
        EXPECT_EQ(ImageList_GetImageCount(art.TabIcons()), 6);
    }
}

TEST_F(Skin, WhatASkinLacksIsBuiltInButTabIcons) {
    EXPECT_FALSE(IsValid(L"No such skin"));
    EXPECT_EQ(art.LoadIcons(), 1);
    EXPECT_EQ(art.LoadScrollBar(), 1);
    EXPECT_EQ(art.LoadTabIcons(), 0);
    art.Reset();
    DeleteFileW(Path(icons).c_str());
    Put(scrollBar, {'B', 'M'});
    EXPECT_TRUE(IsValid(L"Mine"));
    Put(tabIcons, {'B', 'M'});
    EXPECT_FALSE(IsValid(L"Mine"));
    EXPECT_EQ(art.LoadIcons(), 2);
    EXPECT_EQ(art.LoadTabIcons(), 0);
}

TEST_F(Skin, APieceTooFewMakesItInvalidAndAnArchiveWins) {
    EXPECT_TRUE(IsValid(L"Mine"));
    art.Reset();
    Bytes short39 = Read(folder, icons);  // The last magenta row, which stands first, goes black.
    std::fill_n(short39.begin() + 54, 3 * ScaleX(32), 0);
    Put(icons, short39);
    EXPECT_FALSE(IsValid(L"Mine"));
    EXPECT_EQ(art.LoadIcons(), 2);
    EXPECT_EQ(art.Icons()->Count(), 39);
    EXPECT_TRUE(art.Icon(SkinIcon::kCollapsed)) << "the built-in one stands in";
    const std::wstring archive = kSkins + L"Mine.zip";
    Write(archive, Read(kSkins, "NewStyle.zip"));
    EXPECT_TRUE(IsValid(L"Mine"));
    art.Reset();
    Write(archive, {'P', 'K', 3, 4});
    EXPECT_FALSE(IsValid(L"Mine")) << "the folder stands in for what is no archive";
    DeleteFileW(archive.c_str());
}

}  // namespace
