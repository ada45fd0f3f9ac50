#include "pages/general/general_pages.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "base/fill_in.h"
#include "settings/device.h"
#include "settings/registration.h"

namespace {

constexpr Row kRows[] = {
    rows::Index(IDC_HEADER_STATE, settings::HeaderMinimized),
    rows::Check(IDC_ALLOW_MINIMIZATION, settings::AllowMinimization),
    rows::Check(IDC_AUTO_SIZE, settings::AutoSizeAdjust),
    rows::Own(IDC_HEIGHT, settings::TotalHeight),
    rows::Own(IDC_HEIGHT, settings::TotalHeightLandscape),
    rows::Own(IDC_PIM, settings::CurrentPIM),
};

constexpr int kHeaderHidden = 2;

// The other programs' numbers, as the plug-in knows them.
struct Pim {
    std::int32_t number;
    unsigned label;
    bool (*isPresent)();
};
constexpr Pim kPims[] = {
    {0, IDS_PIM_SYSTEM, [] { return true; }},
    {1, IDS_PIM_AGENDA_FUSION, IsAgendaFusionPresent},
    {2, IDS_PIM_POCKET_INFORMANT, IsPocketInformantPresent},
    {3, IDS_PIM_AGENDA_ONE, IsAgendaOnePresent},
};

// The diary's size on the Today screen, and the program whose data it shows.
class GeneralCommonPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    void OnTranslated() override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCheck() override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void FillPims(std::int32_t current);
    void ShowHeight();
    void TakeHeight();
    // What a height that adjusts itself was before is neither checked nor stored.
    bool HeightIsEdited() const { return IsWindowEnabled(Item(IDC_HEIGHT)) != FALSE; }

    // Pixels, upright and in landscape; the page shows that of the screen as it is held.
    struct Heights {
        int loaded = 0;
        int edited = 0;
    };
    std::array<Heights, 2> heights_;
    bool landscape_ = false;  // of what the page shows
    int smallest_ = 0;        // pixels; 0 until it is loaded
    bool isKnown_ = false;    // what `smallest_` follows from could be read
};

bool IsLandscape() { return GetSystemMetrics(SM_CXSCREEN) > GetSystemMetrics(SM_CYSCREEN); }

void GeneralCommonPage::OnLoad(PageValues& values) {
    const Registration registration = Registration::Probe();
    smallest_ = SmallestHeight(values.Read(settings::ShowTabs),
                               registration.state == Registration::kTabPerHostTab);
    isKnown_ = !registration.unknown && !values.HasUnread();
    landscape_ = IsLandscape();
    for (const bool landscape : {false, true}) {
        const NumberSetting setting = settings::HeightFor(landscape, smallest_);
        auto height = static_cast<std::int32_t>(values.Read(setting));
        if (height < smallest_) {
            height = smallest_;
            if (isKnown_) values.Write(setting, static_cast<std::uint32_t>(height));
        }
        heights_[landscape] = {std::min(height, kLargestHeight), std::min(height, kLargestHeight)};
    }
    const HWND spin = Item(IDC_HEIGHT_SPIN);
    UDACCEL step = {0, kHeightStep};
    SendMessageW(spin, UDM_SETRANGE32, smallest_, kLargestHeight);
    SendMessageW(spin, UDM_SETACCEL, 1, reinterpret_cast<LPARAM>(&step));

    FillPims(static_cast<std::int32_t>(values.Read(settings::CurrentPIM)));
}

// A number in an edit field is no text of the program's.
void GeneralCommonPage::OnTranslated() { ShowHeight(); }

void GeneralCommonPage::ShowHeight() {
    SendDlgItemMessageW(hwnd(), IDC_HEIGHT_SPIN, UDM_SETPOS32, 0, heights_[landscape_].edited);
}

void GeneralCommonPage::TakeHeight() {
    heights_[landscape_].edited =
        static_cast<int>(GetDlgItemInt(hwnd(), IDC_HEIGHT, nullptr, FALSE));
}

// When the screen is turned, the page goes on with the other height. What could not be stored comes
// into the range then, as nobody sees any more what would be refused.
std::optional<INT_PTR> GeneralCommonPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE && smallest_ && IsLandscape() != landscape_) {
        TakeHeight();
        int& height = heights_[landscape_].edited;
        height = std::clamp(height, smallest_, kLargestHeight);
        landscape_ = !landscape_;
        ShowHeight();
    }
    return OptionsPage::OnMessage(message, wParam, lParam);
}

void GeneralCommonPage::FillPims(std::int32_t current) {
    int selected = 0;
    for (const Pim& pim : kPims) {
        if (!pim.isPresent()) continue;
        if (pim.number == current) selected = ItemCount(IDC_PIM);
        AddItem(IDC_PIM, pim.label, pim.number);
    }
    SetSelection(IDC_PIM, selected);
    Enable(IDC_PIM, ItemCount(IDC_PIM) > 1);
}

// A height that adjusts itself is not set, and a hidden header cannot be tapped.
void GeneralCommonPage::OnUpdate() {
    const bool ownHeight = !IsChecked(IDC_AUTO_SIZE);
    for (const int control : {IDC_HEIGHT, IDC_HEIGHT_SPIN, IDC_HEIGHT_LABEL}) {
        Enable(control, ownHeight);
    }
    Enable(IDC_ALLOW_MINIMIZATION, Selection(IDC_HEADER_STATE) != kHeaderHidden);
}

bool GeneralCommonPage::OnCheck() {
    if (!HeightIsEdited()) return true;
    const int height = static_cast<int>(GetDlgItemInt(hwnd(), IDC_HEIGHT, nullptr, FALSE));
    if (height < smallest_ || height > kLargestHeight) {
        return Refuse(IDC_HEIGHT, FillIn(GetLanguageTable().LoadString(IDS_HEIGHT_REFUSED),
                                         {smallest_, kLargestHeight}));
    }
    return true;
}

void GeneralCommonPage::OnSave(PageValues& values) {
    TakeHeight();
    for (const bool landscape : {false, true}) {
        const Heights& height = heights_[landscape];
        const bool shown = landscape == landscape_ && isKnown_;
        if (!HeightIsEdited() || (!shown && height.edited == height.loaded)) continue;
        values.Write(settings::HeightFor(landscape, smallest_),
                     static_cast<std::uint32_t>(height.edited));
    }
    values.Write(settings::CurrentPIM, static_cast<std::uint32_t>(ChosenValue(*this, IDC_PIM, 0)));
}

}  // namespace

constexpr PageDescription kGeneralCommonPage = {IDD_GENERAL_COMMON, L"general_common", kRows,
                                                MakePage<GeneralCommonPage>};
