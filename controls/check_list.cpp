#include "controls/check_list.h"

#include <commctrl.h>

#include "controls/list_column.h"

namespace {

// The state images of a list with check boxes.
constexpr UINT kUnchecked = 1, kChecked = 2;

}  // namespace

void CheckList::Attach(HWND list, Order order) {
    list_ = list;
    order_ = order;
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    AddColumn(list);
}

void CheckList::Insert(int position, const std::wstring& text, LPARAM data, bool checked) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = position;
    item.pszText = const_cast<wchar_t*>(text.c_str());  // Only read.
    item.lParam = data;
    SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    SetChecked(position, checked);
}

void CheckList::FitColumn() { ::FitColumn(list_); }

void CheckList::Clear() { SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0); }

int CheckList::Count() const {
    return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0));
}

LPARAM CheckList::Data(int position) const {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = position;
    SendMessageW(list_, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

bool CheckList::IsChecked(int position) const {
    return SendMessageW(list_, LVM_GETITEMSTATE, position, LVIS_STATEIMAGEMASK) ==
           INDEXTOSTATEIMAGEMASK(kChecked);
}

void CheckList::SetChecked(int position, bool checked) {
    LVITEMW item = {};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(checked ? kChecked : kUnchecked);
    SendMessageW(list_, LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
}

int CheckList::Selected() const {
    return static_cast<int>(
        SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void CheckList::Select(int position) {
    LVITEMW item = {};
    item.stateMask = item.state = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(list_, LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
    SendMessageW(list_, LVM_ENSUREVISIBLE, position, FALSE);
}

bool CheckList::MoveSelected(int by) {
    const int from = Selected(), to = from + by;
    if (from < 0 || to < 0 || to >= Count()) return false;
    wchar_t text[256] = {};
    LVITEMW item = {};
    item.pszText = text;
    item.cchTextMax = 256;
    SendMessageW(list_, LVM_GETITEMTEXTW, from, reinterpret_cast<LPARAM>(&item));
    const LPARAM data = Data(from);
    const bool checked = IsChecked(from);
    SendMessageW(list_, LVM_DELETEITEM, from, 0);
    Insert(to, text, data, checked);
    Select(to);
    return true;
}

bool CheckList::IsSelected(const NMHDR& header) {
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    return (change.uNewState & ~change.uOldState & LVIS_SELECTED) != 0;
}

void CheckList::OnKeyDown(const NMHDR& header) {
    const HWND dialog = GetParent(list_);
    switch (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey) {
        case VK_LEFT:
            if (order_ == Order::kMovable) MoveSelected(-1);
            break;
        case VK_RIGHT:
            if (order_ == Order::kMovable) MoveSelected(1);
            break;
        case VK_UP:
            if (Selected() <= 0) PostMessageW(dialog, WM_NEXTDLGCTL, TRUE, FALSE);
            break;
        case VK_DOWN:
            if (Selected() == Count() - 1) PostMessageW(dialog, WM_NEXTDLGCTL, FALSE, FALSE);
            break;
    }
}
