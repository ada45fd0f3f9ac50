#include "pages/general/general_pages.h"

#include <string>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/skins/skin_art.h"
#include "appearance/skins/skin_list.h"
#include "base/fill_in.h"
#include "base/find_files.h"
#include "pages/general/skin_preview.h"
#include "resources/ids.h"
#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

constexpr Row kRows[] = {rows::Own(IDC_SKIN, settings::SkinName)};

constexpr Fill kFills[] = {{IDC_SKIN_ICONS, 0}, {IDC_SKIN_SAMPLE, 27}};

void AddSkin(HWND list, const wchar_t* name) {
    SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
}

// The skin of the diary. A choice is stored at once, and taken back when the skin lacks something.
class GeneralSkinsPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnTranslated() override;
    bool OnCommand(int id, int code) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void ListSkins();
    void ShowHint(const std::wstring& hint);
    void SelectSkin(const std::wstring& name);
    void OnSkinChosen();
    static std::wstring HintOf(const std::wstring& skin, const SkinArt::Fault& fault);

    std::wstring startingSkin_;
};

void GeneralSkinsPage::OnTranslated() {
    GetSkinArt().Reset();  // Other programs may have chosen another skin.
    ListSkins();
    ShowHint({});
}

// Without a hint its place is the sample's.
void GeneralSkinsPage::ShowHint(const std::wstring& hint) {
    SetWindowTextW(Item(IDC_SKIN_HINT), hint.c_str());
    ShowWindow(Item(IDC_SKIN_HINT), hint.empty() ? SW_HIDE : SW_SHOW);
    LayOut();
}

void GeneralSkinsPage::ListSkins() {
    const HWND list = Item(IDC_SKIN);
    SendMessageW(list, CB_RESETCONTENT, 0, 0);
    ForEachFile(SkinsFolder() + L"*.*", [list](const WIN32_FIND_DATAW& found) {
        const auto name = OfferedSkinName(found.cFileName, IsFolder(found));
        if (name) AddSkin(list, name->c_str());
        return true;
    });
    startingSkin_ = CurrentSkinName();
    if (ItemCount(IDC_SKIN) > 0) {
        SetSelection(IDC_SKIN, 0);
        SelectSkin(startingSkin_);
    } else {
        AddSkin(list, L"Classic");
        SetSelection(IDC_SKIN, 0);
    }
}

// Says of a skin why it is not taken.
std::wstring GeneralSkinsPage::HintOf(const std::wstring& skin, const SkinArt::Fault& fault) {
    const LanguageTable& texts = GetLanguageTable();
    if (fault.member.empty()) return FillIn(texts.LoadString(IDS_SKIN_UNREADABLE), {skin});
    const std::wstring member(fault.member.begin(), fault.member.end());
    return FillIn(texts.LoadString(fault.missing ? IDS_SKIN_LACKS : IDS_SKIN_INCOMPLETE),
                  {skin, member});
}

// Nothing changes when there is no such skin.
void GeneralSkinsPage::SelectSkin(const std::wstring& name) {
    const int index = FindItem(IDC_SKIN, name);
    if (index >= 0) SetSelection(IDC_SKIN, index);
}

bool GeneralSkinsPage::OnCommand(int id, int code) {
    if (id != IDC_SKIN || code != CBN_SELCHANGE) return OptionsPage::OnCommand(id, code);
    OnSkinChosen();
    return true;
}

void GeneralSkinsPage::OnSkinChosen() {
    const int chosen = Selection(IDC_SKIN);
    if (chosen < 0) return;
    OpenProductKey().Write(settings::SkinName, ItemText(IDC_SKIN, chosen));
    const std::optional<SkinArt::Fault> fault = GetSkinArt().FindFault();
    if (fault) {
        // The selection stays, so that the keys can go on from there.
        OpenProductKey().Write(settings::SkinName, startingSkin_);
        GetSkinArt().Reset();
    }
    ShowHint(fault ? HintOf(ItemText(IDC_SKIN, chosen), *fault) : L"");
    for (const int preview : {IDC_SKIN_ICONS, IDC_SKIN_SCROLL_BAR, IDC_SKIN_SAMPLE}) {
        InvalidateRect(Item(preview), nullptr, TRUE);
    }
}

void GeneralSkinsPage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    switch (item.CtlID) {
        case IDC_SKIN_ICONS: PaintItemIcons(item.hDC, item.rcItem); break;
        case IDC_SKIN_SCROLL_BAR: PaintScrollBar(item.hDC, item.rcItem); break;
        case IDC_SKIN_SAMPLE: PaintSampleList(item.hDC, item.rcItem); break;
    }
}

}  // namespace

constexpr PageDescription kGeneralSkinsPage = {IDD_GENERAL_SKINS, L"general_skins", kRows,
                                               MakePage<GeneralSkinsPage>, kFills};
