#include "pages/shared/flag_icons_page.h"

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/drawing/sample_list.h"
#include "appearance/skins/skin_art.h"
#include "resources/ids.h"

namespace {

// In the order of the page. Both priorities are one field.
struct Flag {
    int control;
    wchar_t letter;
    ItemIcon icon;
};
constexpr Flag kFlags[] = {
    {IDC_FLAG_PRIVATE, L's', ItemIcon::kPrivate},
    {IDC_FLAG_REMINDER, L'r', ItemIcon::kReminder},
    {IDC_FLAG_RECURRENCE, L'q', ItemIcon::kRecurrence},
    {IDC_FLAG_IMPORTANCE, L'p', ItemIcon::kImportanceHigh},
    {IDC_FLAG_LOW_PRIORITY, L'p', ItemIcon::kImportanceLow},
    {IDC_FLAG_NOTE, L'n', ItemIcon::kNote},
};

class FlagIconsPage : public OptionsPage {
  public:
    FlagIconsPage(const PageDescription& description, DisplayPattern TitleDraft::*pattern,
                  ItemIcon icon, unsigned sample)
        : OptionsPage(description), pattern_(pattern), icon_(icon), sample_(sample) {}

  protected:
    bool OnSetActive() override;
    void OnSave(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    DisplayPattern& Edited() const { return titles_.Draft().*pattern_; }

    SheetTitles& titles_ = SheetTitles::Innermost();
    DisplayPattern TitleDraft::*pattern_;
    ItemIcon icon_;
    unsigned sample_;
};

// Another page of the sheet may have changed the pattern meanwhile.
bool FlagIconsPage::OnSetActive() {
    for (const Flag& flag : kFlags) SetChecked(flag.control, ShowsField(Edited(), flag.letter));
    InvalidateRect(Item(IDC_TITLE_PREVIEW), nullptr, TRUE);
    return true;
}

bool FlagIconsPage::OnCommand(int id, int code) {
    if (code == BN_CLICKED) {
        for (const Flag& flag : kFlags) {
            if (flag.control == id) ShowField(Edited(), flag.letter, IsChecked(id));
        }
        OnSetActive();
    }
    return OptionsPage::OnCommand(id, code);
}

void FlagIconsPage::OnSave(PageValues&) { titles_.Store(); }

void FlagIconsPage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    if (item.CtlID == IDC_TITLE_PREVIEW) {
        SampleList list(item.hDC, item.rcItem, 2);
        list.AddTitle(icon_, Edited(), GetLanguageTable().LoadString(sample_));
        return;
    }
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() == SkinArt::kFailed) return;
    for (const Flag& flag : kFlags) {
        if (flag.control + FLAG_PICTURE != static_cast<int>(item.CtlID)) continue;
        const SIZE size = art.Icons()->PieceSize(static_cast<int>(flag.icon));
        art.DrawItemIcon(item.hDC, flag.icon, 0, (item.rcItem.bottom - size.cy) / 2);
    }
}

}  // namespace

std::unique_ptr<OptionsPage> MakeFlagIconsPage(const PageDescription& description,
                                               DisplayPattern TitleDraft::*pattern, ItemIcon icon,
                                               unsigned sample) {
    return std::make_unique<FlagIconsPage>(description, pattern, icon, sample);
}
