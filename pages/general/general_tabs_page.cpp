#include "pages/general/general_pages.h"

#include <commctrl.h>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "base/wait_cursor.h"
#include "controls/check_list.h"
#include "controls/focus_keeper.h"
#include "settings/registration.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_TABS_IN_ONE, settings::AllTabsInShell),
    rows::Own(IDC_TABS_LIST, settings::ShowTabs),
    rows::Own(IDC_TABS_LIST, settings::ShowTabsSequence),
    // More tabs need more room.
    rows::Own(IDC_TABS_LIST, settings::TotalHeight),
    rows::Own(IDC_TABS_LIST, settings::TotalHeightLandscape),
    rows::Own(IDC_TABS_UP),
    rows::Own(IDC_TABS_DOWN),
};

constexpr Fill kFills[] = {{IDC_TABS_LIST, 34}};
constexpr int kLastTab = static_cast<int>(kDiaryTabs.size()) - 1;

const DiaryTab& Tab(int index) { return kDiaryTabs[static_cast<std::size_t>(index)]; }

// Which tabs the diary has, and in which order. Its ok also registers the plug-in.
class GeneralTabsPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

  private:
    CheckList list_;
};

void GeneralTabsPage::OnLoad(PageValues& values) {
    list_.Attach(Item(IDC_TABS_LIST), CheckList::Order::kMovable);
    const TabLayout layout =
        TabLayout::Parse(values.Read(settings::ShowTabs), values.Read(settings::ShowTabsSequence));
    for (int i = 0; i <= kLastTab; ++i) {
        const int tab = layout.order[static_cast<std::size_t>(i)];
        list_.Insert(i, GetLanguageTable().LoadString(Tab(tab).label), tab,
                     (layout.shown & Tab(tab).bit) != 0);
    }
    list_.FitColumn();
    list_.Select(0);

    // Once the tab host holds the diary's tabs, it is the host that arranges them.
    const Registration registration = Registration::Probe();
    const bool heldApart = registration.state == Registration::kTabPerHostTab;
    const bool heldInOne = registration.state == Registration::kOneHostTab;
    if (registration.hostInstalled && (heldApart || heldInOne)) {
        SetChecked(IDC_TABS_IN_ONE, heldInOne);
    }
    Enable(IDC_TABS_IN_ONE, registration.hostInstalled && !heldApart && !heldInOne);
}

void GeneralTabsPage::OnUpdate() {
    const int selected = list_.Selected();
    const FocusKeeper keeper(hwnd(), IDC_TABS_LIST);
    Enable(IDC_TABS_UP, selected > 0);
    Enable(IDC_TABS_DOWN, selected >= 0 && selected < kLastTab);
}

bool GeneralTabsPage::OnCommand(int id, int code) {
    if (code == BN_CLICKED && (id == IDC_TABS_UP || id == IDC_TABS_DOWN)) {
        list_.MoveSelected(id == IDC_TABS_UP ? -1 : 1);
    }
    return OptionsPage::OnCommand(id, code);
}

std::optional<INT_PTR> GeneralTabsPage::OnControlNotification(const NMHDR& header) {
    if (header.idFrom != IDC_TABS_LIST) return std::nullopt;
    switch (header.code) {
        case LVN_ITEMCHANGED:
            if (CheckList::IsSelected(header)) OnUpdate();
            break;
        case LVN_KEYDOWN: list_.OnKeyDown(header); break;
    }
    return std::nullopt;
}

void GeneralTabsPage::OnSave(PageValues& values) {
    TabLayout layout;
    layout.shown = settings::ShowTabs.defaultValue;
    for (int i = 0; i <= kLastTab; ++i) {
        const int tab = static_cast<int>(list_.Data(i));
        layout.order[static_cast<std::size_t>(i)] = tab;
        if (!list_.IsChecked(i)) layout.shown &= ~Tab(tab).bit;
    }
    values.Write(settings::ShowTabs, layout.shown);
    values.Write(settings::ShowTabsSequence, layout.Sequence());

    const Registration registration = Registration::Probe();
    const bool apart = registration.state == Registration::kTabPerHostTab;
    const int smallest = SmallestHeight(layout.shown, apart);
    for (const bool landscape : {false, true}) {
        if (registration.unknown) break;  // The height may do as it is.
        const NumberSetting height = settings::HeightFor(landscape, kUsualHeight);
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

}  // namespace

constexpr PageDescription kGeneralTabsPage = {IDD_GENERAL_TABS, L"general_tabs", kRows,
                                              MakePage<GeneralTabsPage>, kFills};
