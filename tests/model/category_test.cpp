// The categories that a new device's owner has, and what others do to them meanwhile.
#include <gtest/gtest.h>

#include <utility>

#include "appearance/categories/category_icons.h"
#include "appearance/categories/category_list.h"
#include "appearance/skins/skin_art.h"
#include "settings/device.h"
#include "settings/install_path.h"
#include "settings/settings_key.h"
#include "tests/model/devicectl.h"
#include "tests/windows.h"

namespace {

using Changes = std::vector<std::pair<CategoryChange, int>>;

struct Listener : CategoryListener {
    Listener() { CategoryList::Instance().AddListener(this); }
    ~Listener() { CategoryList::Instance().RemoveListener(this); }
    void OnCategoryChange(CategoryChange change, int index) override {
        changes.emplace_back(change, index);
    }
    Changes Await(std::size_t count) {
        Until([&] { return changes.size() >= count; });
        return std::exchange(changes, {});
    }
    Changes changes;
};

std::uint32_t Stored(const wchar_t* value) {
    return OpenProductKey(L"Colors").ReadDword(value, SETTINGS_NO_DEFAULT);
}

bool Change(const std::wstring& command, const std::wstring& values) {
    return Control(
        command +
        (IsNewerPocketPc() ? L" \\pim.vol CategoryMainDB " : L" store \"\\Categories Database\" ") +
        values);
}

// The values of a record; without its last property it is malformed.
std::wstring Values(const wchar_t* name, bool whole = true) {
    const std::wstring text = std::wstring(L"string=") + name;
    if (IsNewerPocketPc()) return L"1:recid 2:" + text + (whole ? L" 3:i4=7" : L"");
    return L"0x4001:" + text + L" 0x4002:i2=77 0x4003:i2=1 0x4004:i2=2 0x4005:i2=3" +
           (whole ? L" 0x4006:i2=4" : L" 0x4006:i4=4");
}

TEST(Categories, HaveIconsAndColorsByTheirNames) {
    {
        CSettingsKey key = OpenProductKey(L"Colors");
        key.WriteDword(L"Business", 0x64FF0000);
        key.WriteDword(L"Personal", 0x64009300);
        key.WriteDword(L"Work/Home", 0x322068FF);
    }
    CategoryList& list = CategoryList::Instance();
    ASSERT_EQ(list.Count(), 12);
    EXPECT_EQ(list.At(4).name, L"Work/Home");
    EXPECT_EQ(list.At(4).identifier.size(), IsNewerPocketPc() ? 16u : 0u);
    EXPECT_EQ(list.At(4).number, IsNewerPocketPc() ? 0u : 5u);
    EXPECT_EQ(list.At(2).flags[2], IsNewerPocketPc() ? 1u : 0u);
    EXPECT_EQ(list.GetColor(4), 0x2068FFu);
    EXPECT_EQ(list.GetIntensity(4), 50);
    EXPECT_TRUE(list.SetIntensity(4, 25) && list.SetColor(4, kNoColor));
    EXPECT_EQ(Stored(L"Work/Home"), 0xFFFFFFFFu);
    EXPECT_TRUE(list.SetColor(4, 0x010203));
    EXPECT_EQ(Stored(L"Work/Home"), 0x19010203u);
    EXPECT_TRUE(list.SetColor(7, 0xFF));
    EXPECT_EQ(Stored(L"Sale\\udget"), 0x640000FFu);
    for (const int outside : {-1, 12}) {
        EXPECT_EQ(list.GetColor(outside), kNoColor);
        EXPECT_EQ(list.GetIntensity(outside), -1);
        EXPECT_FALSE(list.SetColor(outside, 0) || list.SetIntensity(outside, 5));
        EXPECT_FALSE(list.SetIcon(outside, L"x") || list.GetIcon(outside));
    }

    const std::wstring icon = GetInstallPath(L"Icons\\Work%CHome.bmp");
    const auto attributes = [&] { return GetFileAttributesW(icon.c_str()); };
    EXPECT_FALSE(list.SetIcon(4, L"\\missing.bmp"));
    for (const wchar_t* source : {L"IconSet\\car.bmp", L"IconSet\\ball.bmp"}) {
        ASSERT_TRUE(list.SetIcon(4, GetInstallPath(source)));
        ASSERT_TRUE(SetFileAttributesW(icon.c_str(), FILE_ATTRIBUTE_READONLY));
    }
    list.LoadIcons();
    EXPECT_TRUE(list.GetIcon(4) && !list.GetIcon(5));
    GetSkinArt().Reset();
    EXPECT_FALSE(GetCategoryIcons().Get(4)) << "held across a change of the skin";
    EXPECT_TRUE(list.GetIcon(4));
    list.RemoveIcon(4);
    EXPECT_EQ(attributes(), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(list.GetIcon(4));
}

TEST(Categories, FollowWhatOthersChange) {
    CategoryList& list = CategoryList::Instance();
    Listener listener;
    const int count = list.Count();
    ASSERT_TRUE(Change(L"add", Values(L"Business")));
    EXPECT_EQ(listener.Await(1), (Changes{{CategoryChange::kAdded, count}}));
    ASSERT_EQ(list.Count(), count + 1);
    EXPECT_EQ(list.GetColor(count), 0xFF0000u) << "not that of the one of the same name";
    EXPECT_TRUE(list.SetColor(count, 0x22));
    EXPECT_EQ(list.GetColor(0), 0x22u);

    const CEOID record = list.At(count).record;
    const std::wstring oid = std::to_wstring(record) + L" ";
    ASSERT_TRUE(Change(L"change", oid + Values(L"Personal")));
    EXPECT_EQ(listener.Await(1), (Changes{{CategoryChange::kChanged, count}}));
    EXPECT_EQ(list.GetColor(count), 0x009300u);
    EXPECT_EQ(list.At(count).record, record);
    const std::wstring longName(260, L'?');
    ASSERT_TRUE(Change(L"change", oid + Values(longName.c_str())));
    listener.Await(1);
    ASSERT_EQ(list.At(count).name, longName);
    EXPECT_FALSE(list.SetColor(count, 0x33)) << "the registry takes no name of that length";
    EXPECT_EQ(list.GetColor(count), 0x33u);
    EXPECT_FALSE(list.SetIcon(count, GetInstallPath(L"IconSet\\car.bmp")));
    ASSERT_TRUE(Change(L"delete", oid));
    EXPECT_EQ(listener.Await(1), (Changes{{CategoryChange::kRemoved, count}}));
    EXPECT_EQ(list.At(count).record, Category::kDeleted);
    EXPECT_EQ(list.At(count).name, L"");
    EXPECT_FALSE(list.SetColor(count, 1) || list.SetIcon(count, GetInstallPath(L"x")));

    ASSERT_TRUE(Change(L"add", Values(L"Half", false)));
    EXPECT_EQ(listener.Await(1), (Changes{{CategoryChange::kAdded, count + 1}}));
    EXPECT_EQ(list.At(count + 1).name, L"") << "the record is malformed";
    EXPECT_EQ(Stored(L"Half"), SETTINGS_NO_DEFAULT);
    Change(L"delete", std::to_wstring(list.At(count + 1).record));
}

}  // namespace
