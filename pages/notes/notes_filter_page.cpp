#include "pages/notes/notes_filter_page.h"

#include <commctrl.h>

#include <algorithm>

#include "pages/stores/note_folders.h"
#include "resources/ids.h"
#include "settings/hidden_names.h"
#include "settings/settings_key.h"

namespace {

constexpr wchar_t kFiltersKey[] = L"\\Software\\Lum Software House\\Lum Diary\\Filters";

std::wstring LowerCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

std::vector<std::wstring> LoadHidden(const wchar_t* valueName) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, kFiltersKey, true, true);
    return SplitHiddenNames(LowerCase(key.ReadString(valueName, L"")));
}

void SaveHidden(const wchar_t* valueName, const std::vector<std::wstring>& names) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, kFiltersKey, true, true);
    key.WriteString(valueName, JoinHiddenNames(names).c_str());
}

}  // namespace

NotesFilterPage::NotesFilterPage() : OptionsPage(IDD_NOTES_FILTER, L"notes_filter", {}) {}

void NotesFilterPage::OnLoad(PageValues&) {
    const std::vector<std::wstring> hidden = LoadHidden(settings::HiddenFolders.name);
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

void NotesFilterPage::OnSave(PageValues&) {
    // Read anew: names of folders that are not there now stay hidden.
    std::vector<std::wstring> hidden = LoadHidden(settings::HiddenFolders.name);
    for (int i = 0; i < list_.Count(); ++i) {
        const std::wstring& name = folders_[static_cast<std::size_t>(i)];
        const auto found = std::ranges::find(hidden, name);
        if (list_.IsChecked(i)) {
            if (found != hidden.end()) hidden.erase(found);
        } else if (found == hidden.end()) {
            hidden.push_back(name);
        }
    }
    SaveHidden(settings::HiddenFolders.name, hidden);
}

std::optional<INT_PTR> NotesFilterPage::OnControlNotification(const NMHDR& header) {
    if (header.idFrom == IDC_NOTES_FOLDERS && header.code == LVN_KEYDOWN) list_.OnKeyDown(header);
    return std::nullopt;
}
