#include "pages/notes/notes_pages.h"

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/drawing/date_formats.h"
#include "appearance/drawing/note_label.h"
#include "appearance/drawing/sample_list.h"
#include "pages/shared/layout_drop_down.h"
#include "pages/stores/handwriting.h"
#include "resources/ids.h"

namespace {

bool ArePhatNotesPresent() { return PhatNotesVersion() != 0; }

constexpr Row kRows[] = {
    rows::Choice(IDC_NOTES_GROUP_BY, settings::NotesGroupBy, kNoteGroupings),
    rows::Index(IDC_NOTES_SORT, settings::NoteSortOrder),
    rows::Index(IDC_NOTES_ONE_TAP, settings::NotesOneTap),
    rows::Check(IDC_NOTES_SIZE, &CDiarySettings::noteShowSize),
    rows::Check(IDC_NOTES_TIME, &CDiarySettings::noteShowTime),
    rows::Check(IDC_NOTES_INDENT, &CDiarySettings::noteIndent),
    rows::Check(IDC_NOTES_TYPE_FIRST, &CDiarySettings::noteType0),
    rows::Check(IDC_NOTES_TYPE_FIRST + 1, &CDiarySettings::noteType1),
    rows::Check(IDC_NOTES_TYPE_FIRST + 2, &CDiarySettings::noteType2),
    rows::Check(IDC_NOTES_TYPE_FIRST + 3, &CDiarySettings::noteType3),
    rows::Check(IDC_NOTES_TYPE_FIRST + 4, &CDiarySettings::noteType4),
    rows::Check(IDC_NOTES_TYPE_FIRST + 5, &CDiarySettings::noteType5),
    rows::Check(IDC_NOTES_TYPE_FIRST + 6, &CDiarySettings::noteType6)
        .GreyedWithout(IsPhatPadPresent),
    rows::Check(IDC_NOTES_PHATNOTES, &CDiarySettings::phatNotes).GreyedWithout(ArePhatNotesPresent),
    rows::Own(IDC_NOTES_LAYOUT, settings::TabLayouts),
    rows::Own(IDC_NOTES_LAYOUT, settings::TabLayoutActive),
    rows::Own(IDC_NOTES_LAYOUT, &CDiarySettings::keypadNoLanguageSwitch),
};

constexpr Fill kFills[] = {{IDC_NOTES_PREVIEW, 30}};
// The plug-in's codes of groupings.
constexpr std::int32_t kGroupByLetter = 501, kGroupByCategory = 551, kGroupByFolder = 559;
constexpr std::uint32_t kSampleBytes = 1536;
constexpr std::uint32_t kSampleMilliseconds = 59999;

std::wstring DecimalSeparator() {
    wchar_t text[8] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text, 8);
    return text;
}

// Which notes the notes tab lists, in which order, and what it says of each.
class NotesCommonPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnTranslated() override;
    void OnSave(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    LayoutDropDown layouts_{IDC_NOTES_LAYOUT, L"Notes"};
};

void NotesCommonPage::OnTranslated() { layouts_.Load(hwnd()); }

void NotesCommonPage::OnSave(PageValues&) { layouts_.Save(); }

bool NotesCommonPage::OnCommand(int id, int code) {
    layouts_.OnCommand(id, code);
    return OptionsPage::OnCommand(id, code);
}

void NotesCommonPage::OnUpdate() { InvalidateRect(Item(IDC_NOTES_PREVIEW), nullptr, TRUE); }

void NotesCommonPage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const auto details = [this](const std::wstring& size) {
        std::wstring text = IsChecked(IDC_NOTES_TIME) ? FormatTime(9, 41) : L"";
        if (IsChecked(IDC_NOTES_SIZE)) text += (text.empty() ? L"" : L"  ") + size;
        return text;
    };
    const std::wstring separator = DecimalSeparator();
    SampleList list(item.hDC, item.rcItem, 3);
    const LanguageTable& texts = GetLanguageTable();
    const std::wstring note = texts.LoadString(IDS_SAMPLE_NOTE);
    const std::wstring recording = texts.LoadString(IDS_SAMPLE_RECORDING);
    list.SetIndented(IsChecked(IDC_NOTES_INDENT));
    switch (ChosenValue(*this, IDC_NOTES_GROUP_BY, 0)) {
        case kGroupByFolder: list.AddGroup(texts.LoadString(IDS_SAMPLE_FOLDER), 2); break;
        case kGroupByCategory: list.AddGroup(texts.LoadString(IDS_SAMPLE_CATEGORY), 2); break;
        default: list.AddGroup(recording.substr(0, 1), 1); break;
    }
    list.AddItem(ItemIcon::kNoteVoice, recording,
                 details(RecordingLabel(kSampleMilliseconds, separator)));
    if (ChosenValue(*this, IDC_NOTES_GROUP_BY, 0) == kGroupByLetter) {
        list.AddGroup(note.substr(0, 1), 1);
    } else {
        list.AddItem(ItemIcon::kNote, note, details(NoteSizeLabel(kSampleBytes, separator)));
    }
}

}  // namespace

constexpr PageDescription kNotesCommonPage = {IDD_NOTES_COMMON, L"notes_common", kRows,
                                              MakePage<NotesCommonPage>, kFills};
