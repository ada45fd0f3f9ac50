#include "pages/messages/messages_pages.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "base/fill_in.h"
#include "base/names.h"
#include "base/wait_cursor.h"
#include "controls/focus_keeper.h"
#include "pages/messages/mail_folders_view.h"
#include "pages/stores/mail_filter.h"
#include "pages/stores/mail_filter_names.h"
#include "pages/stores/mail_folders_filters.h"
#include "settings/settings_key.h"

namespace {

constexpr Row kRows[] = {
    rows::Own(IDC_MAIL_FILTER, settings::EmailFilter),
    rows::Own(IDC_MAIL_FOLDERS),
    rows::Own(IDC_MAIL_FILTER_NAME),
    rows::Own(IDC_MAIL_FILTER_ADD),
    rows::Own(IDC_MAIL_FILTER_DELETE),
};

constexpr Fill kFills[] = {{IDC_MAIL_FOLDERS, 20, 60}};

// In the order of the filters that every device has.
constexpr unsigned kBuiltInNames[] = {IDS_DELETED_ITEMS, IDS_DRAFTS, IDS_INBOX, IDS_OUTBOX,
                                      IDS_SENT_ITEMS};
static_assert(std::size(kBuiltInNames) == kSpecialFolderCount);

constexpr int kNewFilter = -1;

std::wstring Trimmed(const std::wstring& text) {
    const std::size_t begin = text.find_first_not_of(L' ');
    if (begin == std::wstring::npos) return {};
    return text.substr(begin, text.find_last_not_of(L' ') - begin + 1);
}

std::vector<std::wstring> FilterNames() {
    std::vector<std::wstring> names;
    for (const MailFilter& filter : GetMailFoldersFilters().filters()) {
        names.push_back(filter.name);
    }
    return names;
}

// The filters of mail folders: which one the messages tab shows, and the folders of each. What is
// ticked holds until the sheet is cancelled, also while another filter is shown.
class MessagesFilterPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnTranslated() override;
    bool OnCheck() override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

  private:
    void LoadFilters();
    // The drop-down list anew, with the chosen filter selected.
    void ListFilters();
    // -1 is the new filter.
    void Choose(int filter);
    MailFilter& Edited();
    void OnToggled(const MailFolderNode& folder);
    bool IsBuiltIn(int filter) const;

    // Makes the new filter, if it has folders, one of the list and chooses it. False when another
    // filter has the name that was typed.
    bool AddNewFilter();
    void DeleteFilter();
    // Whether a name is that of a filter with other folders than the new one's.
    bool IsTaken(const std::wstring& name) const;
    bool RefuseFilter(int filter, unsigned reason);

    void ShowName();
    std::wstring ShownName() const;
    std::wstring AutomaticName() const;
    std::wstring FreeName() const;
    void ListSuggestedNames();
    // Of a folder that may no longer be there.
    MailFolderNames NamesOf(const MailFolderRef& folder) const;

    std::unique_ptr<MailFoldersView> view_;
    std::vector<std::wstring> builtInNames_;
    int chosen_ = -1;
    MailFilter new_;
    std::wstring typedName_;  // the user's for the new filter; empty while it follows the folders
    std::wstring active_;     // the active filter's name when the page opened
    bool activeDeleted_ = false;
};

void MessagesFilterPage::OnTranslated() {
    const WaitCursor wait;
    LoadFilters();
    SendDlgItemMessageW(hwnd(), IDC_MAIL_FILTER_NAME, CB_LIMITTEXT, kLongestMailFilterName, 0);
    active_ = CMailFoldersFilters::ActiveName();
    const int active = GetMailFoldersFilters().FindByName(active_);
    const bool listed = active >= 0 && !GetMailFoldersFilters().filters()[active].entries.empty();
    Choose(listed ? active : kNewFilter);
}

void MessagesFilterPage::LoadFilters() {
    CMailFoldersFilters& filters = GetMailFoldersFilters();
    Mail2& mail2 = GetMail2();
    if (mail2.IsInstalled()) mail2.Load();
    const MapiSession session;
    view_ = std::make_unique<MailFoldersView>(
        Item(IDC_MAIL_FOLDERS),
        ReadMailFolderTree(session, mail2, GetLanguageTable().LoadString(IDS_MESSAGES)),
        [this](const MailFolderNode& folder) { OnToggled(folder); });
    filters.Load(true);
    // What has no folders is in no list and could not be reached.
    std::erase_if(filters.filters(),
                  [](const MailFilter& filter) { return filter.entries.empty(); });
    CMailFoldersFilters::BuiltInNames names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = GetLanguageTable().LoadString(kBuiltInNames[i]);
    }
    builtInNames_.assign(names.begin(), names.end());
    const CMailFoldersFilters::BuiltIns builtIns = filters.FindBuiltIns(names);
    filters.AddMAPIFolders(session, builtIns);
    filters.AddMail2Folders(mail2, builtIns);
}

void MessagesFilterPage::ListFilters() {
    const CMailFoldersFilters& filters = GetMailFoldersFilters();
    SendDlgItemMessageW(hwnd(), IDC_MAIL_FILTER, CB_RESETCONTENT, 0, 0);
    AddItem(IDC_MAIL_FILTER, GetLanguageTable().LoadString(IDS_MAIL_FILTER_NEW), kNewFilter);
    SetSelection(IDC_MAIL_FILTER, 0);
    std::vector<int> shown = filters.SortedIndices();
    // The chosen one also while no folder is ticked.
    if (chosen_ >= 0 && std::ranges::find(shown, chosen_) == shown.end()) {
        shown.insert(std::ranges::find_if(shown,
                                          [&](int filter) {
                                              return StandsBefore(Edited().name,
                                                                  filters.filters()[filter].name);
                                          }),
                     chosen_);
    }
    for (const int filter : shown) {
        AddItem(IDC_MAIL_FILTER, filters.filters()[filter].name, filter);
        if (filter == chosen_) SetSelection(IDC_MAIL_FILTER, ItemCount(IDC_MAIL_FILTER) - 1);
    }
}

void MessagesFilterPage::Choose(int filter) {
    chosen_ = filter;
    ListFilters();
    view_->ShowTicks(Edited().entries);
    ShowName();
    OnUpdate();
}

MailFilter& MessagesFilterPage::Edited() {
    return chosen_ < 0 ? new_ : GetMailFoldersFilters().filters().at(chosen_);
}

bool MessagesFilterPage::IsBuiltIn(int filter) const {
    const std::wstring& name = GetMailFoldersFilters().filters().at(filter).name;
    return std::ranges::any_of(
        builtInNames_, [&](const std::wstring& builtIn) { return IsSameName(builtIn, name); });
}

void MessagesFilterPage::OnToggled(const MailFolderNode& folder) {
    MailFilter& edited = Edited();
    if (edited.Contains(folder.folder)) {
        edited.Remove(folder.folder);
    } else {
        // Where the way is too long to be stored, the folder's own name has to do.
        const bool fits = folder.path.size() <= kLongestMailFolderName;
        edited.Add(folder.folder,
                   fits ? folder.path : folder.name.substr(0, kLongestMailFolderName));
    }
    ShowName();
    OnUpdate();
}

void MessagesFilterPage::OnUpdate() {
    if (!view_) return;
    const FocusKeeper keeper(hwnd(), IDC_MAIL_FILTER);
    Enable(IDC_MAIL_FILTER_NAME, chosen_ < 0);
    Enable(IDC_MAIL_FILTER_NAME_LABEL, chosen_ < 0);
    Enable(IDC_MAIL_FILTER_ADD, chosen_ < 0 && !new_.entries.empty());
    Enable(IDC_MAIL_FILTER_DELETE, chosen_ >= 0 && !IsBuiltIn(chosen_));
}

bool MessagesFilterPage::OnCommand(int id, int code) {
    switch (id) {
        case IDC_MAIL_FILTER:
            if (code == CBN_SELCHANGE) {
                const int selected = Selection(IDC_MAIL_FILTER);
                if (selected >= 0) Choose(ItemValue(IDC_MAIL_FILTER, selected));
            }
            break;
        case IDC_MAIL_FILTER_NAME:
            // The focus is with the edit control within it.
            if (code == CBN_SETFOCUS) ScrollIntoView(Item(id));
            if (code == CBN_DROPDOWN) ListSuggestedNames();
            if (code == CBN_SELCHANGE) {
                typedName_ = Trimmed(ItemText(id, Selection(id))).substr(0, kLongestMailFilterName);
            }
            if (code == CBN_EDITCHANGE) typedName_ = ShownName();
            break;
        case IDC_MAIL_FILTER_ADD:
            if (code == BN_CLICKED) AddNewFilter();
            break;
        case IDC_MAIL_FILTER_DELETE:
            if (code == BN_CLICKED) DeleteFilter();
            break;
    }
    return OptionsPage::OnCommand(id, code);
}

std::optional<INT_PTR> MessagesFilterPage::OnControlNotification(const NMHDR& header) {
    if (header.idFrom != IDC_MAIL_FOLDERS || !view_) return std::nullopt;
    if (header.code == NM_SETFOCUS) ScrollIntoView(header.hwndFrom);
    const auto answer = view_->OnNotification(header, hwnd());
    return answer ? std::optional(Answer(*answer)) : std::nullopt;
}

bool MessagesFilterPage::AddNewFilter() {
    if (new_.entries.empty()) return true;
    new_.name = typedName_.empty() ? FreeName() : typedName_;
    if (IsTaken(new_.name)) {
        return Refuse(IDC_MAIL_FILTER_NAME,
                      FillIn(GetLanguageTable().LoadString(IDS_MAIL_FILTER_TAKEN), {new_.name}));
    }
    std::vector<MailFilter>& filters = GetMailFoldersFilters().filters();
    int place = GetMailFoldersFilters().FindByName(new_.name);
    if (place < 0) {
        place = static_cast<int>(filters.size());
        filters.push_back(new_);
    }
    new_ = {};
    typedName_.clear();
    Choose(place);
    return true;
}

bool MessagesFilterPage::IsTaken(const std::wstring& name) const {
    const CMailFoldersFilters& filters = GetMailFoldersFilters();
    const int place = filters.FindByName(name);
    return place >= 0 && !filters.filters()[place].HasSameFolders(new_);
}

void MessagesFilterPage::DeleteFilter() {
    if (chosen_ < 0 || IsBuiltIn(chosen_)) return;
    std::vector<MailFilter>& filters = GetMailFoldersFilters().filters();
    if (IsSameName(filters.at(chosen_).name, active_)) activeDeleted_ = true;
    filters.erase(filters.begin() + chosen_);
    Choose(kNewFilter);
}

std::wstring MessagesFilterPage::AutomaticName() const {
    const LanguageTable& texts = GetLanguageTable();
    const NewMailFilterNames names = {texts.LoadString(IDS_MAIL_FILTER_DEFAULT_NAME),
                                      texts.LoadString(IDS_MAIL_FILTER_BASE_NAME)};
    const std::size_t count = new_.entries.size();
    const std::wstring one = count == 1 ? NamesOf(new_.entries.front().folder).folder : L"";
    return AutomaticFilterName(names, count, one, FilterNames()).substr(0, kLongestMailFilterName);
}

// The automatic name may be that of a filter with other folders, which the new one must not change:
// every account has an inbox, and all of them together are the filter called so.
std::wstring MessagesFilterPage::FreeName() const {
    const bool single = new_.entries.size() == 1;
    const MailFolderNames one = single ? NamesOf(new_.entries.front().folder) : MailFolderNames();
    return FreeFilterName(AutomaticName(), single ? &one : nullptr,
                          GetLanguageTable().LoadString(IDS_MAIL_FILTER_BASE_NAME), StandsBefore,
                          [this](const std::wstring& name) { return IsTaken(name); });
}

void MessagesFilterPage::ShowName() {
    const std::wstring automatic = typedName_.empty() ? AutomaticName() : typedName_;
    const std::wstring& name = chosen_ < 0 ? automatic : Edited().name;
    if (name != ShownName()) SetWindowTextW(Item(IDC_MAIL_FILTER_NAME), name.c_str());
}

std::wstring MessagesFilterPage::ShownName() const {
    wchar_t text[kLongestMailFilterName + 1] = {};
    GetWindowTextW(Item(IDC_MAIL_FILTER_NAME), text, static_cast<int>(std::size(text)));
    return Trimmed(text);
}

void MessagesFilterPage::ListSuggestedNames() {
    const std::wstring text = ShownName();
    SendDlgItemMessageW(hwnd(), IDC_MAIL_FILTER_NAME, CB_RESETCONTENT, 0, 0);
    if (const MailFolderNode* folder = view_->Selected()) {
        std::vector<std::wstring> containing;
        for (const MailFilter& filter : GetMailFoldersFilters().filters()) {
            if (filter.Contains(folder->folder)) containing.push_back(filter.name);
        }
        for (const std::wstring& name :
             SuggestedFilterNames(NamesOf(folder->folder), containing, StandsBefore)) {
            AddItem(IDC_MAIL_FILTER_NAME, name, 0);
        }
    }
    SetWindowTextW(Item(IDC_MAIL_FILTER_NAME), text.c_str());
}

MailFolderNames MessagesFilterPage::NamesOf(const MailFolderRef& folder) const {
    const MailFoldersView::Place* const place = view_->Find(folder);
    return place ? MailFolderNames{place->account->name, place->folder->name} : MailFolderNames();
}

bool MessagesFilterPage::OnCheck() {
    if (chosen_ < 0 && !AddNewFilter()) return false;
    const std::vector<MailFilter>& filters = GetMailFoldersFilters().filters();
    for (int i = 0; i < static_cast<int>(filters.size()); ++i) {
        if (filters[i].entries.empty() && !IsBuiltIn(i)) {
            return RefuseFilter(i, IDS_MAIL_FILTER_EMPTY);
        }
        const auto bytes = MailFilterBytes(filters[i].entries);
        if (bytes && bytes->size() > kLargestValue) {
            return RefuseFilter(i, IDS_MAIL_FILTER_TOO_LARGE);
        }
    }
    return true;
}

bool MessagesFilterPage::RefuseFilter(int filter, unsigned reason) {
    Choose(filter);
    return Refuse(IDC_MAIL_FOLDERS, FillIn(GetLanguageTable().LoadString(reason), {Edited().name}));
}

void MessagesFilterPage::OnSave(PageValues&) {
    const CMailFoldersFilters& filters = GetMailFoldersFilters();
    filters.Save();
    if (chosen_ >= 0 || activeDeleted_) filters.SetActive(chosen_);
}

}  // namespace

constexpr PageDescription kMessagesFilterPage = {IDD_MESSAGES_FILTER, L"messages_filter", kRows,
                                                 MakePage<MessagesFilterPage>, kFills};
