#include "pages/general_tabs_page.h"

#include <commctrl.h>

#include "app/language_table.h"
#include "controls/wait_cursor.h"
#include "settings/registration.h"
#include "settings/settings_key.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_TABS_IN_ONE, settings::AllTabsInShell),
};
// The state images of a list with check boxes.
constexpr UINT kNotShown = 1, kShown = 2;
constexpr int kLastTab = static_cast<int>(kDiaryTabs.size()) - 1;

const DiaryTab& Tab(int index) { return kDiaryTabs[static_cast<std::size_t>(index)]; }

}  // namespace

GeneralTabsPage::GeneralTabsPage()
    : OptionsPage(IDD_GENERAL_TABS, L"general_tabs", {std::begin(kRows), std::end(kRows)}) {}

void GeneralTabsPage::OnLoad(PageValues& values) {
    const HWND list = Item(IDC_TABS_LIST);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    RECT area;
    GetClientRect(list, &area);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = area.right;
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));

    const TabLayout layout =
        TabLayout::Parse(values.Read(settings::ShowTabs),
                         OpenProductKey().ReadString(settings::ShowTabsSequence, L""));
    for (int i = 0; i <= kLastTab; ++i) {
        const int tab = layout.order[static_cast<std::size_t>(i)];
        InsertTab(i, tab, (layout.shown & Tab(tab).bit) != 0);
    }
    LVITEMW first = {};
    first.stateMask = first.state = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&first));

    // Once the tab host holds the diary's tabs, it is the host that arranges them.
    const Registration registration = Registration::Probe();
    const bool heldApart = registration.state == Registration::kTabPerHostTab;
    const bool heldInOne = registration.state == Registration::kOneHostTab;
    if (registration.hostInstalled && (heldApart || heldInOne)) {
        SetChecked(IDC_TABS_IN_ONE, heldInOne);
    }
    Enable(IDC_TABS_IN_ONE, registration.hostInstalled && !heldApart && !heldInOne);
}

void GeneralTabsPage::InsertTab(int position, int tab, bool shown) {
    const HWND list = Item(IDC_TABS_LIST);
    std::wstring text = GetLanguageTable().LoadString(Tab(tab).label);
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = position;
    item.pszText = text.data();
    item.lParam = tab;
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(shown ? kShown : kNotShown);
    SendMessageW(list, LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
}

int GeneralTabsPage::TabAt(int position) const {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = position;
    SendDlgItemMessageW(hwnd(), IDC_TABS_LIST, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<int>(item.lParam);
}

bool GeneralTabsPage::IsShown(int position) const {
    return SendDlgItemMessageW(hwnd(), IDC_TABS_LIST, LVM_GETITEMSTATE, position,
                               LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(kShown);
}

int GeneralTabsPage::SelectedPosition() const {
    return static_cast<int>(SendDlgItemMessageW(hwnd(), IDC_TABS_LIST, LVM_GETNEXTITEM,
                                                static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void GeneralTabsPage::Move(int by) {
    const HWND list = Item(IDC_TABS_LIST);
    const int from = SelectedPosition(), to = from + by;
    if (from < 0 || to < 0 || to > kLastTab) return;
    const int tab = TabAt(from);
    const bool shown = IsShown(from);
    SendMessageW(list, LVM_DELETEITEM, from, 0);
    InsertTab(to, tab, shown);
    LVITEMW moved = {};
    moved.stateMask = moved.state = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, to, reinterpret_cast<LPARAM>(&moved));
    SendMessageW(list, LVM_ENSUREVISIBLE, to, FALSE);
}

void GeneralTabsPage::OnUpdate() {
    const int selected = SelectedPosition();
    const HWND focus = GetFocus();
    Enable(IDC_TABS_UP, selected > 0);
    Enable(IDC_TABS_DOWN, selected >= 0 && selected < kLastTab);
    // The keys must not stay with a button that can no longer be pressed.
    if (focus && GetParent(focus) == hwnd() && !IsWindowEnabled(focus)) {
        SetFocus(Item(IDC_TABS_LIST));
    }
}

bool GeneralTabsPage::OnCommand(int id, int code) {
    if (code == BN_CLICKED && (id == IDC_TABS_UP || id == IDC_TABS_DOWN)) {
        Move(id == IDC_TABS_UP ? -1 : 1);
    }
    return OptionsPage::OnCommand(id, code);
}

std::optional<INT_PTR> GeneralTabsPage::OnControlNotification(const NMHDR& header) {
    if (header.idFrom != IDC_TABS_LIST) return std::nullopt;
    switch (header.code) {
        case LVN_ITEMCHANGED: OnUpdate(); break;
        case LVN_KEYDOWN: OnKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey); break;
    }
    return std::nullopt;
}

// Left and right move the tab, as up and down move the selection; at either end these leave the
// list, so that a device without a Tab key reaches the other controls.
void GeneralTabsPage::OnKey(WORD key) {
    switch (key) {
        case VK_LEFT: Move(-1); break;
        case VK_RIGHT: Move(1); break;
        case VK_UP:
            if (SelectedPosition() == 0) PostMessageW(hwnd(), WM_NEXTDLGCTL, TRUE, FALSE);
            break;
        case VK_DOWN:
            if (SelectedPosition() == kLastTab) PostMessageW(hwnd(), WM_NEXTDLGCTL, FALSE, FALSE);
            break;
    }
}

void GeneralTabsPage::OnSave(PageValues& values) {
    TabLayout layout;
    layout.shown = settings::ShowTabs.defaultValue;
    for (int i = 0; i <= kLastTab; ++i) {
        layout.order[static_cast<std::size_t>(i)] = TabAt(i);
        if (!IsShown(i)) layout.shown &= ~Tab(TabAt(i)).bit;
    }
    values.Write(settings::ShowTabs, layout.shown);
    OpenProductKey().WriteString(settings::ShowTabsSequence, layout.Sequence().c_str());

    const bool apart = Registration::Probe().state == Registration::kTabPerHostTab;
    const int smallest = SmallestHeight(layout.shown, apart);
    for (const bool landscape : {false, true}) {
        const NumberSetting height = settings::TotalHeight(landscape, kUsualHeight);
        if (static_cast<std::int32_t>(values.Read(height)) < smallest) {
            values.Write(height, static_cast<std::uint32_t>(smallest));
        }
    }

    const WaitCursor wait;
    std::array<std::wstring, kDiaryTabs.size()> labels;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i] = GetLanguageTable().LoadString(kDiaryTabs[i].label);
    }
    RegisterPlugin(labels);
    ReloadTodayItems();
}
