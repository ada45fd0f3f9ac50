#include "controls/check_list.h"

#include <commctrl.h>

namespace {

// The state images of a list with check boxes.
constexpr UINT kUnchecked = 1, kChecked = 2;

}  // namespace

void CheckList::Attach(HWND list) {
    hwnd_ = list;
    SendMessageW(hwnd_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    LVCOLUMNW column = {};
    SendMessageW(hwnd_, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    FitColumn();
}

void CheckList::FitColumn() {
    RECT area = {};
    GetClientRect(hwnd_, &area);
    SendMessageW(hwnd_, LVM_SETCOLUMNWIDTH, 0, area.right);
}

int CheckList::Count() const {
    return static_cast<int>(SendMessageW(hwnd_, LVM_GETITEMCOUNT, 0, 0));
}

void CheckList::Insert(int position, std::wstring text, LPARAM value, bool checked) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = position;
    item.pszText = text.data();
    item.lParam = value;
    SendMessageW(hwnd_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(checked ? kChecked : kUnchecked);
    SendMessageW(hwnd_, LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
}

void CheckList::Remove(int position) { SendMessageW(hwnd_, LVM_DELETEITEM, position, 0); }

LPARAM CheckList::ValueAt(int position) const {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = position;
    SendMessageW(hwnd_, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

bool CheckList::IsChecked(int position) const {
    return SendMessageW(hwnd_, LVM_GETITEMSTATE, position, LVIS_STATEIMAGEMASK) ==
           INDEXTOSTATEIMAGEMASK(kChecked);
}

int CheckList::Selected() const {
    return static_cast<int>(
        SendMessageW(hwnd_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void CheckList::Select(int position) {
    LVITEMW item = {};
    item.stateMask = item.state = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(hwnd_, LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
    SendMessageW(hwnd_, LVM_ENSUREVISIBLE, position, FALSE);
}

void CheckList::OnKey(WORD key) const {
    const HWND dialog = GetParent(hwnd_);
    if (key == VK_UP && Selected() == 0) PostMessageW(dialog, WM_NEXTDLGCTL, TRUE, FALSE);
    if (key == VK_DOWN && Selected() == Count() - 1) {
        PostMessageW(dialog, WM_NEXTDLGCTL, FALSE, FALSE);
    }
}
