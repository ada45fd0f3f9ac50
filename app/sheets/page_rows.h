#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "settings/diary_settings.h"
#include "settings/value_labels.h"

// What rows need of a page's controls, named by their ids.
class PageControls {
  public:
    virtual ~PageControls() = default;
    virtual bool IsChecked(int control) const = 0;
    virtual void SetChecked(int control, bool checked) = 0;
    virtual void Enable(int control, bool enabled) = 0;
    virtual void Remove(int control) = 0;
    // While the page is made: it is translated with the whole page.
    virtual void AddItem(int control, unsigned label, std::int32_t value) = 0;
    virtual int Selection(int control) const = 0;  // -1: none
    virtual void SetSelection(int control, int index) = 0;
    virtual int ItemCount(int control) const = 0;
    virtual std::int32_t ItemValue(int control, int index) const = 0;  // as given to AddItem
    virtual void SetItemValue(int control, int index, std::int32_t value) = 0;
    virtual std::wstring ItemText(int control, int index) const = 0;
};

// What rows and pages need of the product key.
class PageValues {
  public:
    virtual ~PageValues() = default;
    virtual std::uint32_t Read(const NumberSetting& setting) = 0;
    virtual std::wstring Read(const TextSetting& setting) = 0;
    // Whether something that is stored could not be read since this was asked last.
    virtual bool TakeUnread() = 0;
    virtual bool HasUnread() const = 0;
    virtual void Write(const NumberSetting& setting, std::uint32_t value) = 0;
    virtual void Write(const TextSetting& setting, const std::wstring& text) = 0;
};

// One control of a page and the number it edits: a value of the product key or a member of the
// shared settings.
struct Row {
    enum class Kind {
        kCheck,          // 1 while checked
        kInvertedCheck,  // 0 while checked
        kIndex,          // the index in a fixed list
        kNumberText,     // the number that the text of a fixed list's entry is
        kChoice,         // a value/label list, filled from `choices`
        kNoValue,        // a label, which is only enabled and disabled
        kOwn,            // the page's own code shows and stores it; the row says what it edits
    };

    Kind kind;
    int control;
    NumberSetting setting = {};  // without a name: shared
    std::int32_t CDiarySettings::*shared = nullptr;
    const ValueLabel* choices = nullptr;
    DisplayPattern CDiarySettings::*pattern = nullptr;  // only of kOwn, like `text`
    TextSetting text = {};
    int enabledBy = 0;          // the check box that enables the control; 0: always enabled
    bool enablingState = true;  // the state of that check box in which the control is enabled
    // What becomes of a check box while it is disabled. Both kinds of kept boxes show empty then,
    // and come back with their mark; meanwhile the number as it was loaded is stored, or nothing.
    enum class WhileOff { kShown, kKeptAndStored, kKeptAndNotStored };
    WhileOff whileOff = WhileOff::kShown;
    // What the device must have for the control to be of use; null: nothing. Without it the control
    // is greyed or is not there at all, in which case the number is left alone.
    bool (*needed)() = nullptr;
    bool removedWithout = false;
    std::optional<std::uint32_t> defaultWithout = {};  // instead of the setting's

    constexpr Row EnabledBy(int checkBox) const {
        Row row = *this;
        row.enabledBy = checkBox;
        return row;
    }
    constexpr Row DisabledBy(int checkBox) const {
        Row row = EnabledBy(checkBox);
        row.enablingState = false;
        return row;
    }
    constexpr Row KeptWhileOff(int checkBox) const {
        Row row = EnabledBy(checkBox);
        row.whileOff = WhileOff::kKeptAndStored;
        return row;
    }
    constexpr Row GreyedWithout(bool (*present)(),
                                std::optional<std::uint32_t> defaultValue = {}) const {
        Row row = *this;
        row.needed = present;
        row.defaultWithout = defaultValue;
        return row;
    }
    constexpr Row RemovedWithout(bool (*present)()) const {
        Row row = GreyedWithout(present);
        row.removedWithout = true;
        return row;
    }
    // Also, nothing of it is stored meanwhile.
    constexpr Row KeptWhileOn(int checkBox) const {
        Row row = DisabledBy(checkBox);
        row.whileOff = WhileOff::kKeptAndNotStored;
        return row;
    }
};

namespace rows {

constexpr Row Check(int control, NumberSetting setting) {
    return {Row::Kind::kCheck, control, setting};
}
constexpr Row Check(int control, std::int32_t CDiarySettings::*shared) {
    return {Row::Kind::kCheck, control, {}, shared};
}
constexpr Row InvertedCheck(int control, std::int32_t CDiarySettings::*shared) {
    return {Row::Kind::kInvertedCheck, control, {}, shared};
}
constexpr Row Index(int control, NumberSetting setting) {
    return {Row::Kind::kIndex, control, setting};
}
constexpr Row Index(int control, std::int32_t CDiarySettings::*shared) {
    return {Row::Kind::kIndex, control, {}, shared};
}
constexpr Row NumberText(int control, NumberSetting setting) {
    return {Row::Kind::kNumberText, control, setting};
}
constexpr Row NumberText(int control, std::int32_t CDiarySettings::*shared) {
    return {Row::Kind::kNumberText, control, {}, shared};
}
constexpr Row Choice(int control, NumberSetting setting, const ValueLabel* choices) {
    return {Row::Kind::kChoice, control, setting, nullptr, choices};
}
constexpr Row Choice(int control, std::int32_t CDiarySettings::*shared, const ValueLabel* choices) {
    return {Row::Kind::kChoice, control, {}, shared, choices};
}
constexpr Row NoValue(int control) { return {Row::Kind::kNoValue, control}; }
// A control that edits several values has a row for each; one that edits none, a row without.
constexpr Row Own(int control) { return {Row::Kind::kOwn, control}; }
constexpr Row Own(int control, NumberSetting setting) {
    return {Row::Kind::kOwn, control, setting};
}
constexpr Row Own(int control, TextSetting text) {
    return {Row::Kind::kOwn, control, {}, nullptr, nullptr, nullptr, text};
}
constexpr Row Own(int control, std::int32_t CDiarySettings::*shared) {
    return {Row::Kind::kOwn, control, {}, shared};
}
constexpr Row Own(int control, DisplayPattern CDiarySettings::*pattern) {
    return {Row::Kind::kOwn, control, {}, nullptr, nullptr, pattern};
}

}  // namespace rows

// For a fixed list whose texts are numbers: keeps them as the entries' values, before the texts are
// translated; an entry that is no number selects as kNoNumber.
inline constexpr std::int32_t kNoNumber = INT32_MIN;
void KeepNumbers(PageControls& controls, int control);

// Selects the entry of a value, or that of an index (-1: none) when the list has no such value.
void SelectValue(PageControls& controls, int control, std::int32_t value, int otherwise = -1);

// Fills a list and selects the entry of `value`, or the first one when the list has no such value.
void FillChoices(PageControls& controls, int control, const ValueLabel* choices,
                 std::int32_t value);

// The value of the selected entry; `stored` when none is selected.
std::int32_t ChosenValue(const PageControls& controls, int control, std::int32_t stored);

// The rows of one page while it is open.
class PageRows {
  public:
    // The rows must outlive the object.
    explicit PageRows(std::span<const Row> rows) : rows_(rows), states_(rows.size()) {}

    // Shows the stored numbers, in the order of the rows: a first read creates the value.
    void Load(PageControls& controls, PageValues& values, const CDiarySettings& shared);
    // Shows what others have stored meanwhile, but for what the user has changed here and for boxes
    // that are kept while off, which show nothing.
    void Refresh(PageControls& controls, PageValues& values, const CDiarySettings& shared);
    // Stores every row but those that could not be read and show so still. An entry that the list
    // does not have stays as it was loaded.
    void Save(const PageControls& controls, PageValues& values, CDiarySettings& shared) const;
    // Enables what the check boxes enable; to be called when all is loaded and after each click.
    void UpdateEnabled(PageControls& controls);
    bool HasSharedRows() const;

  private:
    struct State {
        std::int32_t loaded = 0;   // the number as it was loaded
        bool keptChecked = false;  // of a row kept while off: the mark that comes back
        bool enabled = true;
        bool present = true;  // what the row needs of the device
        bool unread = false;  // `loaded` only stands in for what could not be read
    };

    std::int32_t Stored(std::size_t index, PageValues& values, const CDiarySettings& shared) const;
    bool IsUnread(const Row& row, PageValues& values, const CDiarySettings& shared) const;
    std::int32_t Edited(const PageControls& controls, std::size_t index) const;

    std::span<const Row> rows_;
    std::vector<State> states_;
};
