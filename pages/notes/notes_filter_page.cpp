#include "pages/notes/notes_pages.h"

#include <commctrl.h>

#include <algorithm>
#include <optional>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "controls/check_list.h"
#include "pages/stores/note_folders.h"
#include "resources/ids.h"
#include "settings/hidden_names.h"
#include "settings/settings_key.h"

namespace {

constexpr Row kRows[] = {rows::Own(IDC_NOTES_FOLDERS, settings::HiddenFolders)};

constexpr Fill kFills[] = {{IDC_NOTES_FOLDERS, 34}};

std::wstring LowerCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

// No value when they cannot be read.
std::optional<std::vector<std::wstring>> LoadHidden() {
    const TextSetting& hidden = settings::HiddenFolders;
    CSettingsKey key = OpenProductKey(hidden.key);
    const std::wstring names = key.Read(hidden);
    if (key.HasUnread()) return {};
    return SplitHiddenNames(LowerCase(names));
}

class NotesFilterPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    bool OnCheck() override;
    void OnSave(PageValues& values) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

  private:
    void TickSameNames(int row);
    // What is to be stored; no value when that cannot be told.
    std::optional<std::wstring> HiddenNames() const;

    CheckList list_;
    std::vector<std::wstring> folders_;  // of the rows, in lower case
    bool isKnown_ = false;               // the list shows what was stored
};

void NotesFilterPage::OnLoad(PageValues&) {
    const auto stored = LoadHidden();
    isKnown_ = stored.has_value();
    const auto hidden = stored.value_or(std::vector<std::wstring>());
    const HWND list = Item(IDC_NOTES_FOLDERS);
    list_.Attach(list, CheckList::Order::kFixed);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (const std::wstring& name : NoteFolders()) {
        folders_.push_back(LowerCase(name));
        const bool shown = std::ranges::find(hidden, folders_.back()) == hidden.end();
        list_.Insert(list_.Count(), name, 0, shown);
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    list_.FitColumn();
    list_.Select(0);
}

std::optional<std::wstring> NotesFilterPage::HiddenNames() const {
    // Read anew: names of folders that are not there now stay hidden.
    const auto stored = LoadHidden();
    if (!stored || !isKnown_) return {};
    std::vector<std::wstring> hidden = *stored;
    for (int i = 0; i < list_.Count(); ++i) {
        const std::wstring& name = folders_[static_cast<std::size_t>(i)];
        if (list_.IsChecked(i)) {
            std::erase(hidden, name);
        } else if (std::ranges::find(hidden, name) == hidden.end()) {
            hidden.push_back(name);
        }
    }
    return JoinHiddenNames(hidden);
}

bool NotesFilterPage::OnCheck() {
    const auto names = HiddenNames();
    if (names && !FitsValue(*names)) {
        return Refuse(IDC_NOTES_FOLDERS, GetLanguageTable().LoadString(IDS_TOO_MANY_HIDDEN));
    }
    return true;
}

void NotesFilterPage::OnSave(PageValues&) {
    const TextSetting& hidden = settings::HiddenFolders;
    if (const auto names = HiddenNames()) OpenProductKey(hidden.key).Write(hidden, *names);
}

std::optional<INT_PTR> NotesFilterPage::OnControlNotification(const NMHDR& header) {
    if (header.idFrom != IDC_NOTES_FOLDERS) return std::nullopt;
    switch (header.code) {
        case LVN_ITEMCHANGED:
            TickSameNames(reinterpret_cast<const NMLISTVIEW&>(header).iItem);
            break;
        case LVN_KEYDOWN: list_.OnKeyDown(header); break;
    }
    return std::nullopt;
}

// A name hides the folder of the device and that of a storage card alike.
void NotesFilterPage::TickSameNames(int row) {
    if (row < 0) return;
    const bool ticked = list_.IsChecked(row);
    for (int i = 0; i < list_.Count(); ++i) {
        const bool same =
            folders_[static_cast<std::size_t>(i)] == folders_[static_cast<std::size_t>(row)];
        if (same && list_.IsChecked(i) != ticked) list_.SetChecked(i, ticked);
    }
}

}  // namespace

constexpr PageDescription kNotesFilterPage = {IDD_NOTES_FILTER, L"notes_filter", kRows,
                                              MakePage<NotesFilterPage>, kFills};
