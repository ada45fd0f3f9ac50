#include "app/sheets/options_page.h"

#include <commctrl.h>

#include "app/language/language_table.h"
#include "app/language/module.h"
#include "base/names.h"
#include "resources/ids.h"
#include "settings/diary_settings.h"
#include "settings/settings_key.h"

namespace {

class ProductKeyValues : public PageValues {
  public:
    std::uint32_t Read(const NumberSetting& setting) override { return key_.Read(setting); }
    std::wstring Read(const TextSetting& setting) override { return key_.Read(setting); }
    bool TakeUnread() override { return key_.TakeUnread(); }
    bool HasUnread() const override { return key_.HasUnread(); }
    void Write(const NumberSetting& setting, std::uint32_t value) override {
        key_.Write(setting, value);
    }
    void Write(const TextSetting& setting, const std::wstring& text) override {
        key_.Write(setting, text);
    }

  private:
    CSettingsKey key_ = OpenProductKey();
};

}  // namespace

OptionsPage::OptionsPage(const PageDescription& description)
    : FullScreenDialog(description.dialog, std::wstring(L"options_") + description.anchor),
      rows_(description.rows),
      fills_(description.fills) {}

std::unique_ptr<OptionsPage> MakeDescribedPage(const PageDescription& description) {
    return description.make ? description.make(description)
                            : std::make_unique<OptionsPage>(description);
}

HPROPSHEETPAGE OptionsPage::CreateHandle() {
    // The system would accept a page without a template and fail to show it later.
    if (!FindResourceW(ResourceLibrary(), MAKEINTRESOURCEW(templateId()), RT_DIALOG))
        return nullptr;
    PROPSHEETPAGEW page = {};
    page.dwSize = sizeof page;
    page.hInstance = ResourceLibrary();
    page.pszTemplate = MAKEINTRESOURCEW(templateId());
    page.pfnDlgProc = DialogProcedure;
    page.lParam = reinterpret_cast<LPARAM>(static_cast<Dialog*>(this));
    handle_ = CreatePropertySheetPageW(&page);
    return handle_;
}

bool OptionsPage::OnInit() {
    CDiarySettings& shared = GetDiarySettings();
    if (rows_.HasSharedRows()) shared.Load();  // Another page may have changed it.
    ProductKeyValues values;
    rows_.Load(*this, values, shared);
    OnLoad(values);
    ownIsUnread_ = values.HasUnread();
    rows_.UpdateEnabled(*this);
    OnUpdate();
    return false;
}

void OptionsPage::RefreshRows() {
    CDiarySettings& shared = GetDiarySettings();
    if (rows_.HasSharedRows()) shared.Load();
    ProductKeyValues values;
    rows_.Refresh(*this, values, shared);
    rows_.UpdateEnabled(*this);
}

// Where one page refuses, none has stored anything, so that the sheet can still be cancelled.
LRESULT OptionsPage::OnApply() {
    if (SendMessageW(GetParent(hwnd()), PSM_QUERYSIBLINGS, 0, 0)) {
        return PSNRET_INVALID_NOCHANGEPAGE;
    }
    Store();
    return PSNRET_NOERROR;
}

void OptionsPage::Store() {
    CDiarySettings& shared = GetDiarySettings();
    {
        ProductKeyValues values;
        rows_.Save(*this, values, shared);
        if (!ownIsUnread_) OnSave(values);
    }
    if (rows_.HasSharedRows()) shared.Save();
}

bool OptionsPage::OnCommand(int, int code) {
    if (code == BN_CLICKED || code == CBN_SELCHANGE) {
        rows_.UpdateEnabled(*this);
        OnUpdate();
    }
    return false;
}

std::optional<INT_PTR> OptionsPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.hwndFrom == hwnd() || header.hwndFrom == GetParent(hwnd())) {
            return OnPageNotification(header);
        }
        return OnControlNotification(header);
    }
    if (message == PSM_QUERYSIBLINGS) return Answer(OnCheck() ? 0 : 1);
    // The sheet hears of help first and passes it to its current page as a notification.
    if (message == WM_HELP) return std::nullopt;
    return FullScreenDialog::OnMessage(message, wParam, lParam);
}

void OptionsPage::ComeToFront() const {
    SendMessageW(GetParent(hwnd()), PSM_SETCURSEL, 0, reinterpret_cast<LPARAM>(handle_));
}

std::optional<INT_PTR> OptionsPage::OnPageNotification(const NMHDR& header) {
    switch (header.code) {
        case PSN_SETACTIVE: return Answer(OnSetActive() ? 0 : -1);
        case PSN_APPLY: return Answer(OnApply());
        case PSN_HELP: ShowHelp(); return Answer(0);
        case PSN_KILLACTIVE:
        case PSN_RESET:
        case PSN_WIZBACK:
        case PSN_WIZNEXT:
        case PSN_WIZFINISH:
        case PSN_QUERYCANCEL: return Answer(0);
    }
    return std::nullopt;
}

bool OptionsPage::IsChecked(int control) const {
    return SendDlgItemMessageW(hwnd(), control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void OptionsPage::SetChecked(int control, bool checked) {
    SendDlgItemMessageW(hwnd(), control, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void OptionsPage::Enable(int control, bool enabled) { EnableWindow(Item(control), enabled); }

void OptionsPage::Remove(int control) { DestroyWindow(Item(control)); }

void OptionsPage::AddItem(int control, unsigned label, std::int32_t value) {
    AddItem(control, LanguageTable::LoadSource(label), value);
}

void OptionsPage::AddItem(int control, const std::wstring& text, std::int32_t value) {
    const LRESULT index = SendDlgItemMessageW(hwnd(), control, CB_ADDSTRING, 0,
                                              reinterpret_cast<LPARAM>(text.c_str()));
    SetItemValue(control, static_cast<int>(index), value);
}

int OptionsPage::Selection(int control) const {
    return static_cast<int>(SendDlgItemMessageW(hwnd(), control, CB_GETCURSEL, 0, 0));
}

void OptionsPage::SetSelection(int control, int index) {
    SendDlgItemMessageW(hwnd(), control, CB_SETCURSEL, index, 0);
}

int OptionsPage::ItemCount(int control) const {
    return static_cast<int>(SendDlgItemMessageW(hwnd(), control, CB_GETCOUNT, 0, 0));
}

std::int32_t OptionsPage::ItemValue(int control, int index) const {
    return static_cast<std::int32_t>(
        SendDlgItemMessageW(hwnd(), control, CB_GETITEMDATA, index, 0));
}

void OptionsPage::SetItemValue(int control, int index, std::int32_t value) {
    SendDlgItemMessageW(hwnd(), control, CB_SETITEMDATA, index, value);
}

std::wstring OptionsPage::ItemText(int control, int index) const {
    const LRESULT length = SendDlgItemMessageW(hwnd(), control, CB_GETLBTEXTLEN, index, 0);
    if (length <= 0) return {};
    std::wstring text(length, L'\0');
    SendDlgItemMessageW(hwnd(), control, CB_GETLBTEXT, index,
                        reinterpret_cast<LPARAM>(text.data()));
    return text;
}

int OptionsPage::FindItem(int control, const std::wstring& name) const {
    for (int i = 0; i < ItemCount(control); ++i) {
        if (IsSameName(ItemText(control, i), name)) return i;
    }
    return -1;
}
