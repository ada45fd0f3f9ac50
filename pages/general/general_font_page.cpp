#include "pages/general/general_pages.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/drawing/fonts.h"
#include "base/names.h"
#include "base/scale.h"
#include "controls/explanation.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_FONT_SYSTEM, settings::UseSystem),
    rows::Own(IDC_FONT_FACE, settings::FontName).DisabledBy(IDC_FONT_SYSTEM),
    rows::NoValue(IDC_FONT_FACE_LABEL).DisabledBy(IDC_FONT_SYSTEM),
    rows::Own(IDC_FONT_SIZE, settings::FontHeight).DisabledBy(IDC_FONT_SYSTEM),
    rows::NoValue(IDC_FONT_SIZE_LABEL).DisabledBy(IDC_FONT_SYSTEM),
    rows::Own(IDC_FONT_CLEARTYPE, settings::ClearTypeOnPage).DisabledBy(IDC_FONT_SYSTEM),
    rows::NoValue(IDC_FONT_CLEARTYPE_LABEL).DisabledBy(IDC_FONT_SYSTEM),
};

constexpr Fill kFills[] = {{IDC_FONT_PREVIEW, 20}};
constexpr int kSampleMargin = 4;

// Faces that begin with "@" are turned for vertical writing.
int CALLBACK CollectFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM context) {
    auto& faces = *reinterpret_cast<std::vector<std::wstring>*>(context);
    const std::wstring face = font->lfFaceName;
    const auto isSame = [&](const std::wstring& other) { return IsSameName(other, face); };
    if (!face.starts_with(L'@') && std::ranges::none_of(faces, isSame)) faces.push_back(face);
    return 1;
}

// The font of the lists.
class GeneralFontPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    void OnTranslated() override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void FillFaces();
    void ShowFont();
    void FollowSystem();

    ListFontSettings current_;
    OwnedFont preview_;
    UINT metricsMessage_ = 0;
};

void GeneralFontPage::OnLoad(PageValues& values) {
    metricsMessage_ = RegisterWindowMessageW(L"SH_UIMETRIC_CHANGE");
    KeepNumbers(*this, IDC_FONT_SIZE);
    current_.clearType = values.Read(settings::ClearTypeOnPage);
    current_.height = static_cast<std::int32_t>(values.Read(settings::FontHeight));
    current_.face = values.Read(settings::FontName);
    ShowExplanation(Item(IDC_FONT_EXPLANATION),
                    GetLanguageTable().LoadString(IDS_FONT_EXPLANATION));
    if (IsChecked(IDC_FONT_SYSTEM)) current_ = ListFontSettings::OfSystem().value_or(current_);
}

void GeneralFontPage::OnTranslated() {
    FillFaces();
    ShowFont();
}

void GeneralFontPage::FillFaces() {
    std::vector<std::wstring> faces;
    EnumFontFamiliesW(WindowDc().get(), nullptr, CollectFace, reinterpret_cast<LPARAM>(&faces));
    for (const std::wstring& face : faces) AddItem(IDC_FONT_FACE, face, 0);
}

// Selects the current font in the lists; what a list does not have leaves it without a selection.
void GeneralFontPage::ShowFont() {
    SetSelection(IDC_FONT_FACE, FindItem(IDC_FONT_FACE, current_.face));
    SelectValue(*this, IDC_FONT_SIZE, current_.height);
    SetSelection(IDC_FONT_CLEARTYPE,
                 current_.clearType < static_cast<unsigned>(ItemCount(IDC_FONT_CLEARTYPE))
                     ? static_cast<int>(current_.clearType)
                     : -1);
    preview_ = CreatePreviewFont(current_);
    InvalidateRect(hwnd(), nullptr, TRUE);
    InvalidateRect(Item(IDC_FONT_PREVIEW), nullptr, TRUE);
}

void GeneralFontPage::FollowSystem() {
    if (!IsChecked(IDC_FONT_SYSTEM)) return;
    current_ = ListFontSettings::OfSystem().value_or(current_);
    ShowFont();
}

bool GeneralFontPage::OnCommand(int id, int code) {
    const bool handled = OptionsPage::OnCommand(id, code);
    if (id == IDC_FONT_SYSTEM && code == BN_CLICKED) FollowSystem();
    return handled;
}

void GeneralFontPage::OnUpdate() {
    ListFontSettings chosen = current_;
    if (const int face = Selection(IDC_FONT_FACE); face >= 0) {
        chosen.face = ItemText(IDC_FONT_FACE, face);
    }
    chosen.height = ChosenValue(*this, IDC_FONT_SIZE, chosen.height);
    if (const int clearType = Selection(IDC_FONT_CLEARTYPE); clearType >= 0) {
        chosen.clearType = static_cast<std::uint32_t>(clearType);
    }
    if (chosen == current_) return;
    current_ = chosen;
    ShowFont();
}

void GeneralFontPage::OnSave(PageValues& values) {
    FollowSystem();
    values.Write(settings::ClearTypeOnPage, current_.clearType);
    values.Write(settings::FontHeight, static_cast<std::uint32_t>(current_.height));
    values.Write(settings::FontName, current_.face);
    ResetListFonts();
}

void GeneralFontPage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    if (!preview_) return;
    const SelectedObject font(item.hDC, preview_.get());
    SetTextColor(item.hDC, GetSysColor(COLOR_WINDOWTEXT));
    const std::wstring text = GetLanguageTable().LoadString(IDS_FONT_SAMPLE);
    RECT area = item.rcItem;
    area.left += ScaleX(kSampleMargin);
    DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

std::optional<INT_PTR> GeneralFontPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == metricsMessage_ && message) {
        FollowSystem();
        return TRUE;
    }
    return OptionsPage::OnMessage(message, wParam, lParam);
}

}  // namespace

constexpr PageDescription kGeneralFontPage = {IDD_GENERAL_FONT, L"general_font", kRows,
                                              MakePage<GeneralFontPage>, kFills};
