#include "app/sheets/page_rows.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

namespace {

// A page's controls as plain data. Lists are those that a template would bring along.
class FakeControls : public PageControls {
  public:
    struct Item {
        std::wstring text;
        std::int32_t value = 0;
    };
    struct Control {
        bool checked = false;
        bool enabled = true;
        int selection = -1;
        std::vector<Item> items;
    };
    std::map<int, Control> controls;

    bool IsChecked(int control) const override { return controls.at(control).checked; }
    void SetChecked(int control, bool checked) override { controls[control].checked = checked; }
    void Enable(int control, bool enabled) override { controls[control].enabled = enabled; }
    void Remove(int control) override { controls.erase(control); }
    void AddItem(int control, unsigned label, std::int32_t value) override {
        controls[control].items.push_back({std::to_wstring(label), value});
    }
    int Selection(int control) const override { return controls.at(control).selection; }
    void SetSelection(int control, int index) override { controls[control].selection = index; }
    int ItemCount(int control) const override {
        return static_cast<int>(controls.at(control).items.size());
    }
    std::int32_t ItemValue(int control, int index) const override {
        return controls.at(control).items.at(index).value;
    }
    void SetItemValue(int control, int index, std::int32_t value) override {
        controls.at(control).items.at(index).value = value;
    }
    std::wstring ItemText(int control, int index) const override {
        return controls.at(control).items.at(index).text;
    }
};

class FakeValues : public PageValues {
  public:
    std::map<std::wstring, std::uint32_t> stored;
    std::vector<std::wstring> readOrder;
    bool unread = false;  // whether what is read could not be

    std::uint32_t Read(const NumberSetting& setting) override {
        readOrder.push_back(setting.name);
        return stored.emplace(setting.name, setting.defaultValue).first->second;
    }
    std::wstring Read(const TextSetting&) override { return {}; }
    bool TakeUnread() override { return unread; }
    bool HasUnread() const override { return unread; }
    void Write(const NumberSetting& setting, std::uint32_t value) override {
        stored[setting.name] = value;
    }
    void Write(const TextSetting&, const std::wstring&) override {}
};

// Rows that are kept for as long as they are used.
class HeldRows : private std::vector<Row>, public PageRows {
  public:
    HeldRows(std::initializer_list<Row> rows)
        : std::vector<Row>(rows), PageRows(static_cast<const std::vector<Row>&>(*this)) {}
};

constexpr NumberSetting kFirst{L"First", 1};
constexpr NumberSetting kSecond{L"Second", 0};
constexpr NumberSetting kThird{L"Third", 1};

struct Page {
    FakeControls controls;
    FakeValues values;
    CDiarySettings shared;
};

TEST(PageRows, LoadReadsInOrderAndSaveWritesEveryRow) {
    Page page;
    page.values.stored[L"Second"] = 5;  // Any number but 0 shows as checked.
    page.shared.keypadNoBackspace = 1;
    HeldRows rows({rows::NoValue(4), rows::Check(1, kSecond), rows::Check(2, kFirst),
                   rows::InvertedCheck(3, &CDiarySettings::keypadNoBackspace)});
    rows.Load(page.controls, page.values, page.shared);
    EXPECT_EQ(page.values.readOrder, (std::vector<std::wstring>{L"Second", L"First"}));
    EXPECT_TRUE(page.controls.IsChecked(1));
    EXPECT_TRUE(page.controls.IsChecked(2));
    EXPECT_FALSE(page.controls.IsChecked(3));
    EXPECT_TRUE(rows.HasSharedRows());

    page.controls.SetChecked(2, false);
    page.controls.SetChecked(3, true);
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.values.stored[L"Second"], 1u);  // A check box stores exactly 0 or 1.
    EXPECT_EQ(page.values.stored[L"First"], 0u);
    EXPECT_EQ(page.shared.keypadNoBackspace, 0);
    page.controls.SetChecked(3, false);
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.shared.keypadNoBackspace, 1);
}

TEST(PageRows, WhatCouldNotBeReadIsStoredOnceItCouldOrWasChanged) {
    Page page;
    HeldRows rows({rows::Check(1, kFirst), rows::Check(3, &CDiarySettings::keypadNoBackspace),
                   rows::Check(2, kSecond), rows::Check(4, kThird)});
    page.values.unread = true;
    rows.Load(page.controls, page.values, page.shared);
    rows.Refresh(page.controls, page.values, page.shared);
    page.values.stored.clear();
    page.controls.SetChecked(2, true);
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.values.stored, (std::map<std::wstring, std::uint32_t>{{L"Second", 1}}));
    page.values = {};
    page.values.stored = {{L"First", 0}, {L"Third", 0}};
    rows.Refresh(page.controls, page.values, page.shared);
    EXPECT_TRUE(!page.controls.IsChecked(1) && page.controls.IsChecked(2));
    EXPECT_FALSE(page.controls.IsChecked(4));
    page.values.stored.clear();
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_TRUE(page.values.stored.contains(L"First"));
}

TEST(PageRows, ListsSelectStoredNumbersAndKeepUnlistedOnes) {
    constexpr auto kIndex = Row::Kind::kIndex, kText = Row::Kind::kNumberText,
                   kChoice = Row::Kind::kChoice;
    struct {
        Row::Kind kind;
        std::uint32_t stored;
        int selection;        // after loading
        std::uint32_t saved;  // untouched
    } const cases[] = {{kIndex, 0, 0, 0},
                       {kIndex, 3, 3, 3},
                       {kIndex, 4, -1, 4},
                       {kIndex, 0xFFFFFFFF, -1, 0xFFFFFFFF},
                       {kText, 7, 1, 7},
                       {kText, 1, 0, 1},
                       {kText, 10, 2, 10},
                       {kText, 8, -1, 8},
                       {kText, 0xFFFFFFF9, -1, 0xFFFFFFF9},
                       {kChoice, 0, 0, 0},
                       {kChoice, 3, 3, 3},
                       {kChoice, 99, 0, 0}};  // Falls back to the first entry.
    const std::vector<FakeControls::Item> fixed = {{L"1"}, {L"7"}, {L"10"}, {L"x"}};
    for (const auto& c : cases) {
        Page page;
        if (c.kind != Row::Kind::kChoice) page.controls.controls[1].items = fixed;
        page.values.stored[L"First"] = c.stored;
        HeldRows rows({{c.kind, 1, kFirst, nullptr, kTaskPlacements}});
        rows.Load(page.controls, page.values, page.shared);
        EXPECT_EQ(page.controls.Selection(1), c.selection) << c.stored;
        rows.Save(page.controls, page.values, page.shared);
        EXPECT_EQ(page.values.stored[L"First"], c.saved) << c.stored;
    }
}

TEST(PageRows, SelectedEntriesAreStored) {
    Page page;
    page.controls.controls[1].items = {{L"1"}, {L"7"}, {L"123456789012"}};
    page.controls.controls[3].items = {{L"a"}, {L"b"}};
    HeldRows rows({rows::NumberText(1, &CDiarySettings::groupSpan),
                   rows::Choice(2, &CDiarySettings::specialPeriod, kSpecialPeriods),
                   rows::Index(3, kFirst)});
    rows.Load(page.controls, page.values, page.shared);
    EXPECT_EQ(page.controls.Selection(2), 3);  // 0 stands fourth.
    page.controls.SetSelection(1, 1);
    page.controls.SetSelection(2, 4);
    page.controls.SetSelection(3, 0);
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.shared.groupSpan, 7);
    EXPECT_EQ(page.shared.specialPeriod, 4);
    EXPECT_EQ(page.values.stored[L"First"], 0u);
    page.controls.SetSelection(1, 2);  // No number that fits.
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.shared.groupSpan, 0);
}

// Switch 1 enables and keeps box 2, and enables list 3.
class KeptRows : public ::testing::Test {
  protected:
    void Load(bool on, bool kept) {
        page.values.stored = {{L"First", on}, {L"Second", kept}};
        rows.Load(page.controls, page.values, page.shared);
        rows.UpdateEnabled(page.controls);
    }
    void Click(int control, bool checked) {
        page.controls.SetChecked(control, checked);
        rows.UpdateEnabled(page.controls);
    }
    std::uint32_t SavedKept() {
        rows.Save(page.controls, page.values, page.shared);
        return page.values.stored[L"Second"];
    }

    Page page;
    HeldRows rows{{rows::Check(1, kFirst), rows::Check(2, kSecond).KeptWhileOff(1),
                   rows::Choice(3, &CDiarySettings::taskPlacement, kTaskPlacements).EnabledBy(1)}};
};

TEST_F(KeptRows, SwitchingOffEmptiesAndSwitchingOnBringsBack) {
    Load(true, true);
    for (const bool on : {true, false, true}) {
        Click(1, on);
        EXPECT_EQ(page.controls.controls[2].enabled, on);
        EXPECT_EQ(page.controls.controls[3].enabled, on);
        EXPECT_EQ(page.controls.IsChecked(2), on);
        EXPECT_EQ(SavedKept(), 1u);
    }
    // Saved while off is what was loaded; back on comes the user's last mark.
    Click(2, false);
    Click(1, false);
    EXPECT_EQ(SavedKept(), 1u);
    Click(1, true);
    EXPECT_FALSE(page.controls.IsChecked(2));
    EXPECT_EQ(SavedKept(), 0u);
}

TEST_F(KeptRows, LoadedOffShowsEmptyAndKeeps) {
    Load(false, true);
    EXPECT_FALSE(page.controls.IsChecked(2) || page.controls.controls[2].enabled);
    rows.UpdateEnabled(page.controls);  // Clicking elsewhere loses nothing.
    EXPECT_EQ(SavedKept(), 1u);
    Click(1, true);
    EXPECT_TRUE(page.controls.IsChecked(2));
}

TEST(PageRows, KeptWhileOnIsNotStored) {
    Page page;
    page.values.stored = {{L"First", 1}, {L"Second", 1}};
    HeldRows rows({rows::Check(2, kSecond).KeptWhileOn(1), rows::Check(1, kFirst)});
    rows.Load(page.controls, page.values, page.shared);
    rows.UpdateEnabled(page.controls);
    EXPECT_FALSE(page.controls.IsChecked(2) || page.controls.controls[2].enabled);
    page.values.stored[L"Second"] = 7;
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.values.stored[L"Second"], 7u);
    page.controls.SetChecked(1, false);
    rows.UpdateEnabled(page.controls);
    EXPECT_TRUE(page.controls.IsChecked(2) && page.controls.controls[2].enabled);
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.values.stored[L"Second"], 1u);
}

TEST(PageRows, WhatTheDeviceLacksIsGreyedOrRemoved) {
    const auto absent = [] { return false; };
    Page page;
    page.controls.controls[2] = {};
    HeldRows rows({rows::Check(1, kFirst).GreyedWithout(absent, 0),
                   rows::Check(2, kThird).RemovedWithout(absent),
                   rows::Check(3, kSecond).GreyedWithout(absent).DisabledBy(1)});
    rows.Load(page.controls, page.values, page.shared);
    rows.Refresh(page.controls, page.values, page.shared);
    rows.UpdateEnabled(page.controls);
    EXPECT_EQ(page.values.stored[L"First"], 0u);  // the default of a device without it
    EXPECT_FALSE(page.controls.controls[1].enabled);
    EXPECT_FALSE(page.controls.controls.contains(2));
    EXPECT_FALSE(page.controls.controls[3].enabled);  // whatever enables it otherwise

    page.controls.SetChecked(1, true);
    rows.Save(page.controls, page.values, page.shared);
    EXPECT_EQ(page.values.stored[L"First"], 1u);
    EXPECT_FALSE(page.values.stored.contains(L"Third"));  // neither read nor stored
}

}  // namespace
