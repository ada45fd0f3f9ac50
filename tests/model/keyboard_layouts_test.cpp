// The layouts in the registry, and the tabs' lists of them.
#include "settings/keyboard_layouts.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "settings/settings_key.h"

namespace {

class Layouts : public ::testing::Test {
  protected:
    void SetUp() override { DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey); }

    static CSettingsKey Key() { return OpenProductKey(L"Layouts"); }
    static std::wstring Names(const KeyboardLayouts& layouts) {
        std::wstring names;
        for (int i = 0; i < layouts.Count(); ++i) names += layouts.NameAt(i) + L" ";
        return names;
    }
};

TEST_F(Layouts, BuiltInOnesAreWritten) {
    KeyboardLayouts layouts;
    EXPECT_EQ(Names(layouts), L"Latin Cyrillic Hebrew Greek ");
    EXPECT_EQ(Key().ReadString(L"Cyrillic"),
              L"lабвг(абвг) дежз(деёжз) ийкл(икл) мноп(мноп) рсту(рсту) фхцч(фхцч) шыь(шщыьъ) "
              L"эюя(эюя)");
    for (int i = 0; i < 4; ++i) ASSERT_TRUE(layouts.At(i)) << i;
    EXPECT_TRUE(layouts.At(2)->rightToLeft);
    EXPECT_EQ(layouts.At(2)->keys[0].label, L"\x5E8\x5E9\x5EA");
}

TEST_F(Layouts, ValuesOfAnyKind) {
    {
        CSettingsKey key = Key();
        key.WriteString(L"Mine", L"labc(abc)def(def)");
        key.WriteString(L"latin", L"lx(x)");
        key.WriteString(L"Broken", L"labc()");
        key.WriteString(L"Greek", L"x");
        key.WriteDword(L"Number", 7);
        key.WriteBinary(L"Bytes", "l\0a\0(\0b\0)", 9);
        key.WriteBinary(L"Odd", "\xFF\xFF\xFF", 3);
    }
    KeyboardLayouts layouts;
    EXPECT_EQ(Names(layouts), L"Bytes latin Mine Cyrillic Hebrew Greek ");
    EXPECT_EQ(Key().ReadString(L"Broken"), L"labc()");
    ASSERT_TRUE(layouts.Find(L"Latin"));
    EXPECT_EQ(layouts.Find(L"Latin")->keys.size(), 1u) << "not the user's own";
}

TEST_F(Layouts, TabsListsAreStored) {
    KeyboardLayouts layouts;
    EXPECT_EQ(layouts.LoadOffered(L"Notes").Active(), layouts.Find(L"Latin"));
    EXPECT_EQ(OpenProductKey().ReadString(L"Notes_layouts"), L"Latin") << "no default";

    OpenProductKey().WriteString(L"Notes_layouts", L"Latin,Foo,Greek");
    OpenProductKey().WriteDword(L"Notes_layout_active", 2);
    layouts.SaveOffered(L"Notes", layouts.LoadOffered(L"Notes"));
    EXPECT_EQ(OpenProductKey().ReadString(L"Notes_layouts"), L"Latin,Greek");
    EXPECT_EQ(OpenProductKey().ReadDword(L"Notes_layout_active", 9), 1u);

    // Of a list that no value has room for nothing is stored.
    OfferedLayouts offered;
    offered.layouts.assign(4096 / 2 / 6, layouts.Find(L"Latin"));  // "Latin," and a terminator
    EXPECT_TRUE(layouts.SaveOffered(L"Notes", offered));
    offered.layouts.push_back(layouts.Find(L"Latin"));
    offered.active = 7;
    EXPECT_FALSE(layouts.SaveOffered(L"Notes", offered));
    EXPECT_EQ(OpenProductKey().ReadString(L"Notes_layouts").size(), 2045u);
    EXPECT_EQ(OpenProductKey().ReadDword(L"Notes_layout_active", 9), 0xFFFFFFFFu);

    OpenProductKey().WriteBinary(L"Notes_layouts", "\xFF\xD8,", 3);
    EXPECT_TRUE(layouts.LoadOffered(L"Notes").layouts.empty());
}

}  // namespace
