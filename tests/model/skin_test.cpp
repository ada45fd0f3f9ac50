// Skins as files on the device, at either density.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/module.h"
#include "appearance/scale.h"
#include "appearance/skin_art.h"
#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

const std::wstring kSkins = L"\\Program Files\\Lum Diary\\Skins\\";
const std::string kVariant = ScaleX(1) >= 2 ? "_vga.bmp" : ".bmp";
const std::string kTabIcons = "tab_icons_" + std::to_string(ScaleX(16)) + ".bmp";

void Write(const std::wstring& path, const Bytes& bytes) {
    const OwnedFile file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    ASSERT_TRUE(WriteFile(file.get(), bytes.data(), bytes.size(), &written, nullptr));
}

Bytes Read(const std::wstring& folder, const std::string& name) {
    SkinSource source;
    EXPECT_TRUE(source.Open(folder));
    return source.ReadMember(name.c_str()).value_or(Bytes{});
}

TEST(SkinSource, ArchivesYieldIntactMembersOnly) {
    struct Case {
        const wchar_t* archive;
        bool opens;
        std::optional<std::uint32_t> size;
        bool isRead;
    };
    for (const Case& c : {
             Case{L"stored", true, 30000, true},
             Case{L"deflated", true, 30000, true},
             Case{L"data_descriptor", true, 30000, true},
             Case{L"zip64", true, 30000, true},
             Case{L"comment", true, 30000, true},
             Case{L"folders", true, 30000, true},
             Case{L"prefixed", true, 30000, true},
             Case{L"encrypted", true, {}, false},
             Case{L"other_case", true, {}, false},
             Case{L"above", true, {}, false},
             Case{L"bzip2", true, 30000, false},
             Case{L"largest", true, 16777216, true},
             Case{L"too_large", true, {}, false},
             Case{L"claims_more", true, 1000000, false},
             Case{L"claims_less", true, 100, false},
             Case{L"claims_4_gib", true, {}, false},
             Case{L"no_member", false, {}, false},
             Case{L"cut", false, {}, false},
             Case{L"nothing", false, {}, false},
         }) {
        SkinSource source;
        const std::wstring path = std::wstring(L"Z:" ARCHIVES L"/") + c.archive + L".zip";
        EXPECT_EQ(source.Open(path), c.opens) << path.c_str();
        EXPECT_EQ(source.IsOpen(), c.opens) << testing::PrintToString(path);
        EXPECT_EQ(source.GetMemberSize("icons.bmp"), c.size) << testing::PrintToString(path);
        const std::optional<Bytes> bytes = source.ReadMember("icons.bmp");
        ASSERT_EQ(bytes.has_value(), c.isRead) << testing::PrintToString(path);
        if (!bytes || c.size != 30000u) continue;
        for (std::size_t i = 0; i < bytes->size(); ++i) ASSERT_EQ((*bytes)[i], i * 7 % 251);
    }
}

TEST(SkinSource, DamagedArchivesYieldTheMemberOrNothing) {
    const Bytes archive = Read(L"Z:" ARCHIVES, "data_descriptor.zip");
    const Bytes content = Read(L"Z:" ARCHIVES L"/stored.zip", "icons.bmp");
    ASSERT_GT(archive.size(), 100u);
    int refused = 0;
    for (std::size_t i = 0; i < archive.size(); ++i) {
        Bytes damaged = archive;
        damaged[i] ^= i % 2 ? 0xFF : 1;
        Write(L"\\damaged.zip", damaged);
        SkinSource source;
        source.Open(L"\\damaged.zip");
        const std::optional<Bytes> bytes = source.ReadMember("icons.bmp");
        ASSERT_TRUE(!bytes || *bytes == content) << i;
        refused += !bytes;
    }
    EXPECT_GT(refused, 100);
    DeleteFileW(L"\\damaged.zip");
}

TEST(SkinSource, PathsPassThroughTheAnsiCodePage) {
    struct Case {
        const wchar_t* name;
        bool archiveOpens;
    };
    const Bytes archive = Read(L"Z:" ARCHIVES, "stored.zip");
    for (const Case& c : {Case{L"\\Caf\xE9", true}, Case{L"\\\x0416", false}}) {
        const std::wstring name = c.name;
        Write(name + L".zip", archive);
        CreateDirectoryW(name.c_str(), nullptr);
        SkinSource source;
        EXPECT_EQ(source.Open(name + L".zip"), c.archiveOpens);
        EXPECT_TRUE(source.Open(name));
        EXPECT_FALSE(source.Open(name + L"?"));
        EXPECT_FALSE(source.IsOpen());
        EXPECT_TRUE(DeleteFileW((name + L".zip").c_str()));
        RemoveDirectoryW(name.c_str());
    }
    // The longest path has 260 characters. Slashes make one that exists that long.
    const std::wstring folder = kSkins + L"Classic";
    SkinSource source;
    EXPECT_FALSE(source.Open(L""));
    EXPECT_TRUE(source.Open(folder + std::wstring(259 - folder.size(), L'\\')));
    EXPECT_FALSE(source.Open(folder + std::wstring(261 - folder.size(), L'\\')));
}

class Skin : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        InitModule(GetModuleHandleW(nullptr));
        ASSERT_TRUE(LoadResourceLibrary(L"\\Program Files\\Lum Diary\\DiaryRes.Dll"));
    }
    static void TearDownTestSuite() {
        GetSkinArt().Reset();
        ShutDownModule();
    }
    void SetUp() override { DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey); }

    static bool IsValid(const wchar_t* name) {
        OpenProductKey().WriteString(settings::SkinName, name);
        return GetSkinArt().IsValid();
    }
    // A folder with Classic's artwork.
    static std::wstring MakeFolder(const wchar_t* name) {
        const std::wstring folder = kSkins + name + L"\\";
        CreateDirectoryW(folder.c_str(), nullptr);
        for (const std::string& member : {"icons" + kVariant, "scrollbar" + kVariant, kTabIcons}) {
            Write(Path(folder, member), Read(kSkins + L"Classic", member));
        }
        return folder;
    }
    static std::wstring Path(const std::wstring& folder, const std::string& member) {
        return folder + std::wstring(member.begin(), member.end());
    }
    // Blackens the magenta row behind the last piece, which a bitmap file stores first.
    static void DropLastPiece(const std::wstring& folder, const std::string& member) {
        Bytes bytes = Read(folder, member);
        std::fill_n(bytes.begin() + 54, 3 * ScaleX(32), 0);
        Write(Path(folder, member), bytes);
    }
    static void RemoveFolder(const std::wstring& folder) {
        for (const std::string& member : {"icons" + kVariant, "scrollbar" + kVariant, kTabIcons}) {
            DeleteFileW(Path(folder, member).c_str());
        }
        RemoveDirectoryW(folder.c_str());
    }

    SkinArt& art = GetSkinArt();
};

TEST_F(Skin, TheShippedSkinsAreValid) {
    art.Reset();
    EXPECT_EQ(art.LoadIcons(), 2);
    EXPECT_EQ(OpenProductKey().ReadString(L"SkinName"), L"NewStyle");
    for (const wchar_t* name : {L"", L"Classic", L"NewStyle", L"newstyle"}) {
        EXPECT_TRUE(IsValid(name)) << testing::PrintToString(name);
        EXPECT_EQ(art.Icons()->Count(), 40);
        EXPECT_EQ(art.Icons()->PieceSize(0).cx, ScaleX(16));
        EXPECT_EQ(art.Icons()->PieceSize(39).cy, ScaleX(9));
        EXPECT_EQ(art.Icons()->PieceSize(40).cx, 0);
        EXPECT_EQ(art.ScrollBar()->Count(), 4);
        EXPECT_EQ(ImageList_GetImageCount(art.TabIcons()), 6);
    }
}

TEST_F(Skin, WhatASkinLacksIsBuiltInButTabIcons) {
    EXPECT_FALSE(IsValid(L"No such skin"));
    EXPECT_EQ(art.LoadIcons(), 1);
    EXPECT_EQ(art.LoadScrollBar(), 1);
    EXPECT_EQ(art.LoadTabIcons(), 0);
    EXPECT_EQ(art.Icons()->Count(), 40);
    EXPECT_EQ(art.ScrollBar()->Count(), 4);
    ASSERT_TRUE(art.Icon(SkinIcon::kExpanded));

    const std::wstring folder = MakeFolder(L"Odd");
    EXPECT_TRUE(IsValid(L"Odd"));
    DeleteFileW(Path(folder, "icons" + kVariant).c_str());
    Write(Path(folder, "scrollbar" + kVariant), {'B', 'M'});
    EXPECT_TRUE(IsValid(L"Odd"));
    EXPECT_EQ(art.Icons()->Count(), 40);
    Write(Path(folder, kTabIcons), {'B', 'M'});
    EXPECT_FALSE(IsValid(L"Odd"));
    EXPECT_EQ(art.LoadIcons(), 2);
    EXPECT_EQ(art.LoadTabIcons(), 0);
    RemoveFolder(folder);
}

TEST_F(Skin, APieceTooFewMakesItInvalid) {
    for (const std::string& member : {"icons" + kVariant, "scrollbar" + kVariant}) {
        const std::wstring folder = MakeFolder(L"Short");
        ASSERT_TRUE(IsValid(L"Short"));
        art.Reset();
        DropLastPiece(folder, member);
        EXPECT_FALSE(IsValid(L"Short")) << member;
        // Its collapse mark is gone as a piece, and built in as an icon.
        EXPECT_EQ(art.LoadIcons(), 2);
        EXPECT_EQ(art.Icons()->Count(), member[0] == 'i' ? 39 : 40);
        EXPECT_TRUE(art.Icon(SkinIcon::kCollapsed));
        RemoveFolder(folder);
    }
}

TEST_F(Skin, TheArchiveWinsUnlessItIsNone) {
    const std::wstring folder = MakeFolder(L"NewStyle");
    DropLastPiece(folder, "icons" + kVariant);
    EXPECT_TRUE(IsValid(L"NewStyle"));
    RemoveFolder(folder);
    const std::wstring both = MakeFolder(L"Both");
    Write(kSkins + L"Both.zip", {'P', 'K', 3, 4});
    EXPECT_TRUE(IsValid(L"Both"));
    DeleteFileW((kSkins + L"Both.zip").c_str());
    RemoveFolder(both);
}

// Half opaque white over black, and what is transparent stays.
TEST_F(Skin, PiecesAreDrawnAsOpaqueAsTheyAre) {
    Bytes bytes = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,  40,
                   0,   0,   0, 4, 0, 0, 0, 1, 0, 0, 0,  1, 0, 24, 0};
    bytes.resize(54);
    bytes.insert(bytes.end(), {255, 255, 255, 255, 255, 255, 128, 128, 128, 0, 0, 0});
    const std::optional<SkinStrip> strip = SkinStrip::FromFile(bytes);
    ASSERT_TRUE(strip);
    const HDC screen = GetDC(nullptr);
    const OwnedDc dc(CreateCompatibleDC(screen));
    const OwnedBitmap bitmap(CreateCompatibleBitmap(screen, 4, 3));
    ReleaseDC(nullptr, screen);
    const SelectedObject selected(dc.get(), bitmap.get());
    strip->DrawStretched(dc.get(), 0, 1, 0, 2);
    EXPECT_EQ(GetPixel(dc.get(), 0, 0), 0u);
    EXPECT_EQ(GetPixel(dc.get(), 1, 0), RGB(128, 128, 128));
    EXPECT_EQ(GetPixel(dc.get(), 1, 1), RGB(128, 128, 128));
    EXPECT_EQ(GetPixel(dc.get(), 1, 2), 0u);
    EXPECT_EQ(GetPixel(dc.get(), 2, 0), 0u);
}

}  // namespace
