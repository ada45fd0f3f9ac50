#include "pages/shared/layout_drop_down.h"

#include "app/language/language_table.h"
#include "resources/ids.h"
#include "settings/diary_settings.h"
#include "settings/keyboard_layouts.h"

namespace {

// The values of the entries that are no layouts; a layout's value is its address.
constexpr LPARAM kNoLayout = 0, kSelectLayouts = -2;
// Posted to the page as the list's notification code; no list sends it.
constexpr int kOpenDialog = 0x1000;

}  // namespace

void LayoutDropDown::Load(HWND page) {
    page_ = page;
    selection_.offered = GetKeyboardLayouts().LoadOffered(tab_);
    selection_.noLanguageSwitch = GetDiarySettings().keypadNoLanguageSwitch;
    Fill();
}

void LayoutDropDown::Save() {
    // In a list that is still down the keys have moved, but nothing has been chosen yet.
    if (SelectedValue() != kSelectLayouts) TakeSelection();
    OfferedLayouts offered = selection_.offered;
    if (!offered.Active()) offered.active = -1;
    GetKeyboardLayouts().SaveOffered(tab_, offered);
    GetDiarySettings().keypadNoLanguageSwitch = selection_.noLanguageSwitch;
}

LRESULT LayoutDropDown::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendDlgItemMessageW(page_, control_, message, wParam, lParam);
}

void LayoutDropDown::Add(const std::wstring& text, LPARAM value) {
    const LRESULT index = Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    Send(CB_SETITEMDATA, static_cast<WPARAM>(index), value);
}

void LayoutDropDown::Fill() {
    const LanguageTable& language = GetLanguageTable();
    Send(CB_RESETCONTENT);
    for (const KeyboardLayout* const layout : selection_.offered.layouts) {
        Add(LayoutLabel(GetKeyboardLayouts().NameOf(layout)), reinterpret_cast<LPARAM>(layout));
    }
    Add(language.LoadString(IDS_NO_LAYOUT), kNoLayout);
    Add(language.LoadString(IDS_SELECT_LAYOUTS), kSelectLayouts);
    Add(L"", kNoLayout);
    ShowActive();
}

void LayoutDropDown::ShowActive() {
    const OfferedLayouts& offered = selection_.offered;
    const std::size_t noLayout = offered.layouts.size();
    Send(CB_SETCURSEL, offered.Active() ? static_cast<WPARAM>(offered.active) : noLayout);
}

LPARAM LayoutDropDown::SelectedValue() const {
    const LRESULT index = Send(CB_GETCURSEL);
    return index < 0 ? kNoLayout : Send(CB_GETITEMDATA, static_cast<WPARAM>(index));
}

void LayoutDropDown::OnCommand(int id, int code) {
    if (id != control_) return;
    switch (code) {
        case CBN_SETFOCUS: before_ = selection_.offered.Active(); break;
        case CBN_SELCHANGE: OnChosen(); break;
        case CBN_CLOSEUP:
            OnChosen();
            if (SelectedValue() != kSelectLayouts) before_ = selection_.offered.Active();
            break;
        case CBN_SELENDCANCEL: ShowActive(); break;
        case kOpenDialog:
            if (SelectedValue() == kSelectLayouts) OpenDialog();
            break;
    }
}

void LayoutDropDown::OnChosen() {
    // While the list is down, its keys only move over the entries.
    if (Send(CB_GETDROPPEDSTATE)) return;
    if (SelectedValue() == kSelectLayouts) {
        // On their way here the keys have passed "No layout", which nobody meant to choose.
        if (!selection_.offered.Active()) selection_.offered.Activate(before_);
        // Later: the list has not done with its closing yet.
        PostMessageW(page_, WM_COMMAND, MAKEWPARAM(control_, kOpenDialog), 0);
    } else {
        TakeSelection();
    }
}

void LayoutDropDown::TakeSelection() {
    selection_.offered.active = static_cast<std::int32_t>(Send(CB_GETCURSEL));
    if (!selection_.offered.Active()) selection_.offered.active = -1;
}

void LayoutDropDown::OpenDialog() {
    ShowActive();
    const KeyboardLayout* const active = selection_.offered.Active();
    LayoutsDialog dialog(GetLanguageTable().LoadString(IDS_LAYOUTS_TITLE), selection_);
    if (!dialog.DoModal(GetParent(page_))) return;
    OfferedLayouts& offered = selection_.offered;
    offered.Activate(active);
    // Whoever replaces the layout in use wants another, not none.
    if (active && !offered.Active() && !offered.layouts.empty()) offered.active = 0;
    Fill();
}
