// The layouts in the registry, and the tabs' lists of them.
#include "settings/keyboard_layouts.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "settings/settings_key.h"

namespace {

class Layouts : public ::testing::Test {
  protected:
    void SetUp() override { DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey); }

    static CSettingsKey Key() {
        constexpr wchar_t kPath[] = L"\\Software\\Lum Software House\\Lum Diary\\Layouts";
        return CSettingsKey(HKEY_LOCAL_MACHINE, kPath, true, true);
    }
    static std::vector<std::wstring> Names(const KeyboardLayouts& layouts) {
        std::vector<std::wstring> names;
        for (int i = 0; i < layouts.Count(); ++i) names.push_back(layouts.NameAt(i));
        return names;
    }
};

TEST_F(Layouts, BuiltInOnesAreWritten) {
    KeyboardLayouts layouts;
    EXPECT_EQ(Names(layouts),
              (std::vector<std::wstring>{L"Latin", L"Cyrillic", L"Hebrew", L"Greek"}));
    EXPECT_EQ(Key().ReadString(L"Cyrillic"),
              L"lабвг(абвг) дежз(деёжз) ийкл(икл) мноп(мноп) рсту(рсту) фхцч(фхцч) шыь(шщыьъ) "
              L"эюя(эюя)");
    const std::size_t keys[] = {8, 8, 8, 8};
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(layouts.At(i)) << i;
        EXPECT_EQ(layouts.At(i)->keys.size(), keys[i]) << i;
        EXPECT_EQ(layouts.At(i)->rightToLeft, i == 2);
    }
    EXPECT_EQ(layouts.At(0)->keys[5].matches, L"pqrs\xDF\x159");
    EXPECT_EQ(layouts.At(2)->keys[0].label, L"\x5E8\x5E9\x5EA");
}

TEST_F(Layouts, ValuesOfAnyKind) {
    const std::wstring longText(1900, L'a');
    {
        CSettingsKey key = Key();
        key.WriteString(L"Mine", L"labc(abc)def(def)");
        key.WriteString(L"latin", L"lx(x)");
        key.WriteString(L"Broken", L"labc()");
        key.WriteString(L"Greek", L"x");
        key.WriteString(L"Long", (L"l" + longText + L"(a)").c_str());
        key.WriteDword(L"Number", 0x00280061);
        key.WriteBinary(L"Bytes", "l\0a\0(\0b\0)", 9);
        key.WriteBinary(L"Odd", "\xFF\xFF\xFF", 3);
        key.WriteString(L"", L"");
    }
    KeyboardLayouts layouts;
    EXPECT_EQ(Names(layouts), (std::vector<std::wstring>{L"Bytes", L"latin", L"Mine", L"Cyrillic",
                                                         L"Hebrew", L"Greek"}));
    EXPECT_EQ(layouts.Find(L"Broken"), nullptr);
    EXPECT_EQ(Key().ReadString(L"Broken"), L"labc()");
    ASSERT_TRUE(layouts.Find(L"Latin"));
    EXPECT_EQ(layouts.Find(L"Latin")->keys.size(), 1u) << "not the user's own";
    EXPECT_EQ(layouts.NameOf(layouts.Find(L"Mine")), L"Mine");
}

TEST_F(Layouts, TabsListsAreStored) {
    KeyboardLayouts layouts;
    OfferedLayouts offered = layouts.LoadOffered(L"Notes");
    EXPECT_EQ(offered.Active(), layouts.Find(L"Latin"));
    EXPECT_EQ(OpenProductKey().ReadString(L"Notes_layouts"), L"Latin") << "no default";

    OpenProductKey().WriteString(L"Notes_layouts", L"Latin,Foo,Greek");
    OpenProductKey().WriteDword(L"Notes_layout_active", 2);
    offered = layouts.LoadOffered(L"Notes");
    EXPECT_EQ(offered.Active(), layouts.Find(L"Greek"));
    layouts.SaveOffered(L"Notes", offered);
    EXPECT_EQ(OpenProductKey().ReadString(L"Notes_layouts"), L"Latin,Greek");
    EXPECT_EQ(OpenProductKey().ReadDword(L"Notes_layout_active", 9), 1u);

    OpenProductKey().WriteBinary(L"Notes_layouts", "\xFF\xD8,", 3);
    OpenProductKey().WriteString(L"Notes_layout_active", L"many");
    offered = layouts.LoadOffered(L"Notes");
    EXPECT_TRUE(offered.layouts.empty());
    layouts.SaveOffered(L"Notes", offered);
    EXPECT_EQ(OpenProductKey().ReadString(L"Notes_layouts"), L"");
}

}  // namespace
