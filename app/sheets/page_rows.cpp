#include "app/sheets/page_rows.h"

#include <algorithm>

namespace {

// A whole decimal number; kNoNumber for any other text.
std::int32_t NumberOf(const std::wstring& text) {
    constexpr std::size_t kMostDigits = 9;
    if (text.empty() || text.size() > kMostDigits) return kNoNumber;
    std::int32_t number = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9') return kNoNumber;
        number = number * 10 + (c - L'0');
    }
    return number;
}

void AddChoices(PageControls& controls, int control, const ValueLabel* choices) {
    for (int i = 0; choices[i].label; ++i) {
        controls.AddItem(control, choices[i].label, choices[i].value);
    }
}

void Show(PageControls& controls, const Row& row, std::int32_t number) {
    switch (row.kind) {
        case Row::Kind::kCheck: controls.SetChecked(row.control, number != 0); break;
        case Row::Kind::kInvertedCheck: controls.SetChecked(row.control, number == 0); break;
        case Row::Kind::kIndex: {
            const bool listed = number >= 0 && number < controls.ItemCount(row.control);
            controls.SetSelection(row.control, listed ? number : -1);
            break;
        }
        case Row::Kind::kNumberText: SelectValue(controls, row.control, number); break;
        case Row::Kind::kChoice: SelectValue(controls, row.control, number, 0); break;
        case Row::Kind::kNoValue:
        case Row::Kind::kOwn: break;
    }
}

bool HasValue(const Row& row) {
    return row.kind != Row::Kind::kNoValue && row.kind != Row::Kind::kOwn;
}

}  // namespace

void KeepNumbers(PageControls& controls, int control) {
    const int count = controls.ItemCount(control);
    for (int i = 0; i < count; ++i) {
        controls.SetItemValue(control, i, NumberOf(controls.ItemText(control, i)));
    }
}

void SelectValue(PageControls& controls, int control, std::int32_t value, int otherwise) {
    int selected = controls.ItemCount(control) - 1;
    while (selected >= 0 && controls.ItemValue(control, selected) != value) --selected;
    controls.SetSelection(control, selected < 0 ? otherwise : selected);
}

void FillChoices(PageControls& controls, int control, const ValueLabel* choices,
                 std::int32_t value) {
    AddChoices(controls, control, choices);
    SelectValue(controls, control, value, 0);
}

std::int32_t ChosenValue(const PageControls& controls, int control, std::int32_t stored) {
    const int index = controls.Selection(control);
    return index < 0 ? stored : controls.ItemValue(control, index);
}

void PageRows::Load(PageControls& controls, PageValues& values, const CDiarySettings& shared) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        State& state = states_[i];
        state.present = !row.needed || row.needed();
        if (!state.present) {
            if (row.removedWithout) {
                controls.Remove(row.control);
                continue;
            }
            controls.Enable(row.control, false);
        }
        if (!HasValue(row)) continue;
        state.loaded = Stored(i, values, shared);
        state.unread = IsUnread(row, values, shared);
        if (row.kind == Row::Kind::kNumberText) KeepNumbers(controls, row.control);
        if (row.kind == Row::Kind::kChoice) AddChoices(controls, row.control, row.choices);
        Show(controls, row, state.loaded);
    }
}

void PageRows::Refresh(PageControls& controls, PageValues& values, const CDiarySettings& shared) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        State& state = states_[i];
        const bool kept = row.whileOff != Row::WhileOff::kShown && !state.enabled;
        if (!HasValue(row) || kept || (row.removedWithout && !state.present)) continue;
        const std::int32_t stored = Stored(i, values, shared);
        if (IsUnread(row, values, shared) || Edited(controls, i) != state.loaded) continue;
        state.unread = false;
        if (stored == state.loaded) continue;
        state.loaded = stored;
        Show(controls, row, stored);
    }
}

std::int32_t PageRows::Stored(std::size_t index, PageValues& values,
                              const CDiarySettings& shared) const {
    const Row& row = rows_[index];
    if (row.shared) return shared.*row.shared;
    NumberSetting setting = row.setting;
    if (!states_[index].present && row.defaultWithout) setting.defaultValue = *row.defaultWithout;
    return static_cast<std::int32_t>(values.Read(setting));
}

bool PageRows::IsUnread(const Row& row, PageValues& values, const CDiarySettings& shared) const {
    return row.shared ? shared.IsUnread(row.shared) : values.TakeUnread();
}

std::int32_t PageRows::Edited(const PageControls& controls, std::size_t index) const {
    const Row& row = rows_[index];
    const State& state = states_[index];
    switch (row.kind) {
        case Row::Kind::kCheck:
            if (row.whileOff != Row::WhileOff::kShown && !state.enabled) return state.loaded;
            return controls.IsChecked(row.control) ? 1 : 0;
        case Row::Kind::kInvertedCheck: return controls.IsChecked(row.control) ? 0 : 1;
        case Row::Kind::kIndex: {
            const int selection = controls.Selection(row.control);
            return selection < 0 ? state.loaded : selection;
        }
        case Row::Kind::kNumberText: {
            const std::int32_t number = ChosenValue(controls, row.control, kNoNumber);
            return number == kNoNumber ? state.loaded : number;
        }
        case Row::Kind::kChoice: return ChosenValue(controls, row.control, state.loaded);
        case Row::Kind::kNoValue:
        case Row::Kind::kOwn: break;
    }
    return state.loaded;
}

void PageRows::Save(const PageControls& controls, PageValues& values,
                    CDiarySettings& shared) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        if (!HasValue(row) || (row.removedWithout && !states_[i].present)) continue;
        if (row.whileOff == Row::WhileOff::kKeptAndNotStored && !states_[i].enabled) continue;
        const std::int32_t number = Edited(controls, i);
        if (states_[i].unread && number == states_[i].loaded) continue;
        if (row.shared) {
            shared.*row.shared = number;
        } else {
            values.Write(row.setting, static_cast<std::uint32_t>(number));
        }
    }
}

void PageRows::UpdateEnabled(PageControls& controls) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const Row& row = rows_[i];
        State& state = states_[i];
        if (!row.enabledBy || !state.present) continue;
        const bool enabled = controls.IsChecked(row.enabledBy) == row.enablingState;
        if (row.whileOff != Row::WhileOff::kShown && enabled != state.enabled) {
            if (!enabled) state.keptChecked = controls.IsChecked(row.control);
            controls.SetChecked(row.control, enabled && state.keptChecked);
        }
        state.enabled = enabled;
        controls.Enable(row.control, enabled);
    }
}

bool PageRows::HasSharedRows() const {
    return std::any_of(rows_.begin(), rows_.end(),
                       [](const Row& row) { return row.shared || row.pattern; });
}
