#include "appearance/categories/category_dialog.h"

#include <commctrl.h>

#include <algorithm>

#include "appearance/categories/icon_chooser.h"
#include "appearance/categories/icon_library.h"
#include "base/scale.h"
#include "controls/focus_keeper.h"
#include "controls/list_column.h"
#include "resources/ids.h"

namespace {

// Lengths at 96 dots per inch: the cell of an icon, and what surrounds the name and the mark.
constexpr int kIconCell = 15;
constexpr int kMargin = 2;
constexpr int kMarkWidth = 10;

// The slider's positions stand for steps of intensity.
constexpr int kLastStep = 4;
constexpr int kFullIntensity = 100;

int StepOf(int intensity) { return intensity * kLastStep / kFullIntensity; }

// In the middle of its cell; what goes beyond it is cut off.
void DrawIcon(HDC dc, HBITMAP icon, const RECT& cell) {
    BITMAP info = {};
    if (!GetObjectW(icon, sizeof info, &info)) return;
    const int cellWidth = cell.right - cell.left, cellHeight = cell.bottom - cell.top;
    const int width = std::min<int>(info.bmWidth, cellWidth);
    const int height = std::min<int>(info.bmHeight, cellHeight);
    TransparentImage(dc, cell.left + (cellWidth - width) / 2, cell.top + (cellHeight - height) / 2,
                     width, height, icon, (info.bmWidth - width) / 2, (info.bmHeight - height) / 2,
                     width, height, kIconTransparentColor);
}

}  // namespace

std::span<const Fill> CategoryDialog::Fills() const {
    static constexpr Fill kFills[] = {{IDC_CATEGORY_LIST, 30}};
    return kFills;
}

CategoryDialog::CategoryDialog()
    : FullScreenDialog(IDD_CATEGORY_ICONS, L"options_category_icons_main", Band::kOwnTitle) {}

bool CategoryDialog::OnInitDialog() {
    const bool systemFocus = FullScreenDialog::OnInitDialog();
    SetFocus(Item(IDC_CATEGORY_LIST));
    return systemFocus;
}

bool CategoryDialog::OnInit() {
    categories_.LoadIcons();  // Other programs may have changed them meanwhile.
    color_.Create(hwnd(), IDC_CATEGORY_COLOR);
    const HWND slider = Item(IDC_CATEGORY_INTENSITY);
    SendMessageW(slider, TBM_SETRANGE, FALSE, MAKELPARAM(0, kLastStep));
    SetWindowLongPtrW(
        slider, GWLP_USERDATA,
        SetWindowLongPtrW(slider, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(SliderProcedure)));
    CreateListColumn();
    // The first that still has a name.
    int first = 0;
    while (first < categories_.Count() && categories_.At(first).name.empty()) ++first;
    ListCategories(first);
    categories_.AddListener(this);
    return false;
}

void CategoryDialog::CreateListColumn() {
    const HWND list = Item(IDC_CATEGORY_LIST);
    // Nothing is drawn of it; rows are as high as its pictures would be.
    rowHeight_.Reset(
        ImageList_Create(ScaleX(kIconCell), ScaleY(kIconCell) + 2 * ScaleY(1), ILC_COLOR, 0, 1));
    SendMessageW(list, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(rowHeight_.get()));
    AddColumn(list);
}

void CategoryDialog::ListCategories(int selected) {
    const HWND list = Item(IDC_CATEGORY_LIST);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    int row = 0;
    for (int i = 0; i < categories_.Count(); ++i) {
        std::wstring name = categories_.At(i).name;
        if (name.empty()) continue;
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
        item.iItem = row++;
        item.pszText = name.data();
        item.lParam = i;
        item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
        if (i == selected) item.state = item.stateMask;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        if (i == selected) SendMessageW(list, LVM_ENSUREVISIBLE, item.iItem, FALSE);
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    FitColumn(list);  // The scroll bar may have come or gone.
    Refresh();
}

int CategoryDialog::RowCount() const {
    return static_cast<int>(SendDlgItemMessageW(hwnd(), IDC_CATEGORY_LIST, LVM_GETITEMCOUNT, 0, 0));
}

int CategoryDialog::CategoryAt(int row) const {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    if (!SendDlgItemMessageW(hwnd(), IDC_CATEGORY_LIST, LVM_GETITEMW, 0,
                             reinterpret_cast<LPARAM>(&item))) {
        return -1;
    }
    return static_cast<int>(item.lParam);
}

int CategoryDialog::SelectedCategory() const {
    const LRESULT row = SendDlgItemMessageW(hwnd(), IDC_CATEGORY_LIST, LVM_GETNEXTITEM,
                                            static_cast<WPARAM>(-1), LVNI_SELECTED);
    return row < 0 ? -1 : CategoryAt(static_cast<int>(row));
}

void CategoryDialog::UpdateControls() {
    const int selected = SelectedCategory();
    const COLORREF color = categories_.GetColor(selected);
    const FocusKeeper keeper(hwnd(), IDC_CATEGORY_LIST);
    EnableWindow(Item(IDC_CATEGORY_CHOOSE), selected >= 0);
    EnableWindow(Item(IDC_CATEGORY_REMOVE), selected >= 0 && categories_.GetIcon(selected));
    color_.SetColor(color);
    color_.Enable(selected >= 0);
    const HWND slider = Item(IDC_CATEGORY_INTENSITY);
    SendMessageW(slider, TBM_SETPOS, TRUE, StepOf(std::max(0, categories_.GetIntensity(selected))));
    EnableWindow(slider, color != kNoColor);
}

void CategoryDialog::Refresh() {
    InvalidateRect(Item(IDC_CATEGORY_LIST), nullptr, TRUE);
    UpdateControls();
}

// One that is removed leaves nothing selected, so that no other is changed in its place.
void CategoryDialog::OnCategoryChange(CategoryChange, int) { ListCategories(SelectedCategory()); }

bool CategoryDialog::OnCommand(int id, int code) {
    if (id == IDC_CATEGORY_COLOR && code == kColorButtonChosen) {
        OnColorChosen();
        return true;
    }
    if (color_.OnCommand(id, code)) return true;
    if (code == BN_CLICKED && id == IDC_CATEGORY_CHOOSE) {
        ChooseIcon();
        return true;
    }
    if (code == BN_CLICKED && id == IDC_CATEGORY_REMOVE) {
        RemoveIcon();
        return true;
    }
    if (id == IDCANCEL) {
        // What was changed stays, and the diary is to be told of it.
        EndDialog(hwnd(), changed_ ? 1 : 0);
        return true;
    }
    return FullScreenDialog::OnCommand(id, code);
}

std::optional<INT_PTR> CategoryDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NOTIFY: {
            const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
            if (header.idFrom != IDC_CATEGORY_LIST) return std::nullopt;
            switch (header.code) {
                case LVN_ITEMCHANGED: UpdateControls(); break;
                case LVN_ITEMACTIVATE: ChooseIcon(); break;
                case LVN_KEYDOWN:
                    OnListKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey);
                    break;
            }
            return std::nullopt;
        }
        case WM_HSCROLL:
            if (reinterpret_cast<HWND>(lParam) == Item(IDC_CATEGORY_INTENSITY)) OnSliderMoved();
            return TRUE;
        case WM_DESTROY: categories_.RemoveListener(this); break;
    }
    return FullScreenDialog::OnMessage(message, wParam, lParam);
}

void CategoryDialog::ChooseIcon() {
    const int selected = SelectedCategory();
    if (selected < 0) return;
    IconChooser chooser(categories_.At(selected).name);
    if (!chooser.DoModal(hwnd()) || chooser.path().empty()) return;
    // The category keeps its index even if others have come and gone meanwhile.
    if (!categories_.SetIcon(selected, chooser.path())) return;
    changed_ = true;
    categories_.LoadIcons();
    Refresh();
}

void CategoryDialog::RemoveIcon() {
    const int selected = SelectedCategory();
    if (selected < 0) return;
    categories_.RemoveIcon(selected);
    changed_ = true;
    Refresh();
}

void CategoryDialog::OnColorChosen() {
    const int selected = SelectedCategory();
    if (selected < 0) return;
    if (categories_.SetColor(selected, color_.GetColor())) changed_ = true;
    Refresh();
}

void CategoryDialog::OnSliderMoved() {
    const int selected = SelectedCategory();
    const auto step =
        static_cast<int>(SendDlgItemMessageW(hwnd(), IDC_CATEGORY_INTENSITY, TBM_GETPOS, 0, 0));
    // A touch that moves nothing leaves an intensity between two steps as it is.
    if (selected < 0 || step == StepOf(categories_.GetIntensity(selected))) return;
    if (categories_.SetIntensity(selected, step * kFullIntensity / kLastStep)) changed_ = true;
}

// Up and down leave the list at its ends, so that a device without a Tab key reaches the other
// controls.
void CategoryDialog::OnListKey(WORD key) {
    const auto focused = static_cast<int>(SendDlgItemMessageW(
        hwnd(), IDC_CATEGORY_LIST, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    if (key == VK_UP && focused <= 0) {
        PostMessageW(hwnd(), WM_NEXTDLGCTL, TRUE, FALSE);
    } else if (key == VK_DOWN && focused == RowCount() - 1) {
        PostMessageW(hwnd(), WM_NEXTDLGCTL, FALSE, FALSE);
    }
}

// Left and right move the slider; up and down leave it.
LRESULT CALLBACK CategoryDialog::SliderProcedure(HWND hwnd, UINT message, WPARAM wParam,
                                                 LPARAM lParam) {
    const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (message == WM_KEYDOWN && (wParam == VK_UP || wParam == VK_DOWN)) {
        PostMessageW(GetParent(hwnd), WM_NEXTDLGCTL, wParam == VK_UP, FALSE);
        return 0;
    }
    return CallWindowProcW(procedure, hwnd, message, wParam, lParam);
}

void CategoryDialog::OnDrawItem(const DRAWITEMSTRUCT& item) {
    if (color_.OnDrawItem(item)) return;
    if (item.CtlID == IDC_CATEGORY_LIST) DrawCategory(item);
}

void CategoryDialog::DrawCategory(const DRAWITEMSTRUCT& item) const {
    const int index = CategoryAt(static_cast<int>(item.itemID));
    if (index < 0) return;
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const RECT& area = item.rcItem;
    FillRect(item.hDC, &area, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));

    RECT cell = area;
    cell.right = cell.left + ScaleX(kIconCell);
    if (const HBITMAP icon = categories_.GetIcon(index)) DrawIcon(item.hDC, icon, cell);

    RECT text = area;
    text.left = cell.right + ScaleX(kMargin);
    text.right -= 2 * ScaleX(kMargin) + ScaleX(kMarkWidth);
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    const std::wstring& name = categories_.At(index).name;
    DrawTextW(item.hDC, name.c_str(), static_cast<int>(name.size()), &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);

    const COLORREF color = categories_.GetColor(index);
    if (color != kNoColor) {
        const RECT mark = {area.right - ScaleX(kMargin) - ScaleX(kMarkWidth),
                           area.top + ScaleY(kMargin), area.right - ScaleX(kMargin),
                           area.bottom - ScaleY(kMargin)};
        const OwnedBrush brush(CreateSolidBrush(color));
        FillRect(item.hDC, &mark, brush.get());
    }
    if (item.itemState & ODS_FOCUS && GetFocus() == item.hwndItem) DrawFocusRect(item.hDC, &area);
}
