#include "pages/shared/layouts_dialog.h"

#include <commctrl.h>

#include <utility>

#include "app/language/language_table.h"
#include "resources/ids.h"
#include "settings/keyboard_layouts.h"

namespace {

// Posted to the dialog as the list's notification code; no list sends it.
constexpr int kRefuseTick = 0x1000;

}  // namespace

std::wstring LayoutLabel(const std::wstring& name) {
    return KeyboardLayouts::IsBuiltIn(name) ? GetLanguageTable().Translate(name) : name;
}

LayoutsDialog::LayoutsDialog(std::wstring title, LayoutSelection& selection)
    : FullScreenDialog(IDD_LAYOUTS_SELECT, L"options_layouts_select"),
      title_(std::move(title)),
      selection_(selection) {}

std::span<const Fill> LayoutsDialog::Fills() const {
    static constexpr Fill kFills[] = {{IDC_LAYOUTS_LIST, 30}};
    return kFills;
}

bool LayoutsDialog::OnInit() {
    SetWindowTextW(hwnd(), title_.c_str());
    list_.Attach(Item(IDC_LAYOUTS_LIST), CheckList::Order::kFixed);
    ShowRows();
    SendDlgItemMessageW(hwnd(), IDC_LAYOUTS_SWITCH, BM_SETCHECK,
                        selection_.noLanguageSwitch ? BST_UNCHECKED : BST_CHECKED, 0);
    UpdateSwitch();
    return true;
}

void LayoutsDialog::ShowRows() {
    KeyboardLayouts& layouts = GetKeyboardLayouts();
    for (int i = 0; i < layouts.Count(); ++i) {
        const KeyboardLayout* const layout = layouts.At(i);
        if (!layout) continue;
        list_.Insert(list_.Count(), LayoutLabel(layouts.NameAt(i)), i,
                     selection_.offered.Contains(layout));
    }
    list_.FitColumn();
    list_.Select(0);
}

// There is something to switch between from two layouts on.
void LayoutsDialog::UpdateSwitch() {
    int checked = 0;
    for (int i = 0; i < list_.Count(); ++i) checked += list_.IsChecked(i);
    EnableWindow(Item(IDC_LAYOUTS_SWITCH), checked >= 2);
}

void LayoutsDialog::OnRowChanged(int row) {
    if (row >= 0 && list_.IsChecked(row)) {
        const auto position = static_cast<int>(list_.Data(row));
        if (!OfferedLayouts::CanBeListed(GetKeyboardLayouts().NameAt(position))) {
            list_.SetChecked(row, false);
            // Later: the list has not done with the tap yet.
            PostMessageW(hwnd(), WM_COMMAND, MAKEWPARAM(IDC_LAYOUTS_LIST, kRefuseTick), 0);
        }
    }
    UpdateSwitch();
}

// False when they cannot be stored.
bool LayoutsDialog::TakeRows() {
    OfferedLayouts offered = selection_.offered;
    offered.layouts.clear();
    for (int i = 0; i < list_.Count(); ++i) {
        if (!list_.IsChecked(i)) continue;
        const auto position = static_cast<int>(list_.Data(i));
        offered.layouts.push_back(GetKeyboardLayouts().At(position));
    }
    if (!GetKeyboardLayouts().CanStore(offered)) {
        return Refuse(IDC_LAYOUTS_LIST, GetLanguageTable().LoadString(IDS_TOO_MANY_LAYOUTS));
    }
    selection_.offered = std::move(offered);
    const bool switches =
        SendDlgItemMessageW(hwnd(), IDC_LAYOUTS_SWITCH, BM_GETCHECK, 0, 0) == BST_CHECKED;
    selection_.noLanguageSwitch = switches ? 0 : 1;
    return true;
}

bool LayoutsDialog::OnCommand(int id, int code) {
    if (id == IDOK && !TakeRows()) return true;
    if (id == IDC_LAYOUTS_LIST && code == kRefuseTick) {
        Refuse(IDC_LAYOUTS_LIST, GetLanguageTable().LoadString(IDS_LAYOUT_UNLISTABLE));
    }
    return FullScreenDialog::OnCommand(id, code);
}

std::optional<INT_PTR> LayoutsDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY && wParam == IDC_LAYOUTS_LIST) {
        const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code == LVN_ITEMCHANGED) {
            OnRowChanged(reinterpret_cast<const NMLISTVIEW&>(header).iItem);
        }
        if (header.code == LVN_KEYDOWN) list_.OnKeyDown(header);
    }
    return FullScreenDialog::OnMessage(message, wParam, lParam);
}
