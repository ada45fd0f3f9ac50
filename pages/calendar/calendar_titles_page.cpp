#include "pages/calendar/calendar_pages.h"

#include "app/language/language_table.h"
#include "appearance/drawing/date_formats.h"
#include "appearance/drawing/sample_list.h"
#include "pages/shared/title_page.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Index(IDC_APP_SUBJECT_STYLE, &CDiarySettings::appointmentSubjectStyle),
    rows::Check(IDC_APP_LOCATION, &CDiarySettings::appointmentLocation),
    rows::Check(IDC_APP_START_ONLY, &CDiarySettings::startTimeOnly),
    rows::Check(IDC_APP_STATUS_BAR, &CDiarySettings::statusBar),
    rows::Check(IDC_APP_INDENT, &CDiarySettings::appointmentIndent),
    rows::Check(IDC_TIME_SPAN_NEW_STYLE, settings::TimeSpanNewStyle),
    rows::Own(IDC_TITLE_LIST),
    rows::Own(IDC_TITLE_FIELDS, &CDiarySettings::appointmentPattern),
    rows::Own(IDC_TITLE_FIELDS, &CDiarySettings::taskPattern),
    rows::Own(IDC_TITLE_FIELDS, &CDiarySettings::contactPattern),
    rows::Own(IDC_TITLE_UP),
    rows::Own(IDC_TITLE_DOWN),
    rows::Own(IDC_TITLE_MODE),
};

constexpr Fill kFills[] = {{IDC_TITLE_FIELDS, 60, 88}, {IDC_TITLE_PREVIEW, 24}};

// The lists whose titles can be edited, in the order of the drop-down.
struct TitledList {
    unsigned label;
    ItemIcon icon;
    DisplayPattern TitleDraft::*pattern;
    std::wstring_view fields;
};
constexpr TitledList kLists[] = {
    {IDS_VIEW_CALENDAR, ItemIcon::kAppointment, &TitleDraft::appointment, kItemFields},
    {IDS_VIEW_TASKS, ItemIcon::kTaskOpen, &TitleDraft::task, kItemFields},
    {IDS_VIEW_CONTACTS, ItemIcon::kContact, &TitleDraft::contact, kContactFields},
};

// The entries of the list that says where an appointment's time stands; the index is stored.
enum class TimePlace { kNone, kOwnLine, kBehind, kBefore };

// The states of the sample appointments.
constexpr int kTentative = 1, kBusy = 2;

CategoryColor SampleColor() {
    CategoryColor color;
    color.SetColor(RGB(0xFF, 0xD7, 0x00));
    color.SetIntensity(25);
    return color;
}

// What the titles of items show, of all three lists, and what the calendar adds to them.
class CalendarTitlesPage : public TitlePage {
  public:
    using TitlePage::TitlePage;

  protected:
    DisplayPattern& Edited() const override;
    std::wstring_view OfferedFields() const override {
        return kLists[Selection(IDC_TITLE_LIST)].fields;
    }
    bool OnSetActive() override;
    void OnLoad(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    std::wstring SampleTime(WORD begin, WORD end) const;
};

void CalendarTitlesPage::OnLoad(PageValues& values) {
    for (const TitledList& list : kLists) AddItem(IDC_TITLE_LIST, list.label, 0);
    SetSelection(IDC_TITLE_LIST, 0);
    FillChoices(*this, IDC_TITLE_MODE, kSubjectModes, Edited().mode);
    TitlePage::OnLoad(values);
}

DisplayPattern& CalendarTitlesPage::Edited() const {
    return Draft().*kLists[Selection(IDC_TITLE_LIST)].pattern;
}

// An unknown mode shows as none, and stays unless another is chosen.
bool CalendarTitlesPage::OnSetActive() {
    SelectValue(*this, IDC_TITLE_MODE, Edited().mode);
    return TitlePage::OnSetActive();
}

bool CalendarTitlesPage::OnCommand(int id, int code) {
    if (code == CBN_SELCHANGE && id == IDC_TITLE_LIST) OnSetActive();
    if (code == CBN_SELCHANGE && id == IDC_TITLE_MODE) {
        Edited().mode = ChosenValue(*this, IDC_TITLE_MODE, Edited().mode);
    }
    return TitlePage::OnCommand(id, code);
}

// A time span between whole hours: from beginning to end or, in the new style, with its length.
std::wstring CalendarTitlesPage::SampleTime(WORD begin, WORD end) const {
    const std::wstring start = FormatTime(begin, 0);
    if (IsChecked(IDC_APP_START_ONLY)) return start;
    if (!IsChecked(IDC_TIME_SPAN_NEW_STYLE)) return start + L" - " + FormatTime(end, 0);
    return start + L" (" + std::to_wstring(end - begin) + L":00)";
}

void CalendarTitlesPage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const TitledList& shown = kLists[Selection(IDC_TITLE_LIST)];
    SampleList list(item.hDC, item.rcItem, 3);
    const bool timed = shown.icon == ItemIcon::kAppointment;
    list.SetIndented(timed && IsChecked(IDC_APP_INDENT));
    const LanguageTable& texts = GetLanguageTable();
    if (shown.icon == ItemIcon::kContact) {
        list.AddTitle(shown.icon, Edited(), texts.LoadString(IDS_SAMPLE_CONTACT));
        return;
    }
    const bool place = timed && IsChecked(IDC_APP_LOCATION);
    const auto subject = [&](unsigned id) {
        const std::wstring text = texts.LoadString(id);
        return place ? text + L" (" + texts.LoadString(IDS_SAMPLE_PLACE) + L")" : text;
    };
    const auto timePlace = static_cast<TimePlace>(Selection(IDC_APP_SUBJECT_STYLE));
    const auto add = [&](const DisplayPattern& pattern, const std::wstring& time, std::wstring text,
                         TitleLook look) {
        if (timed) {
            switch (timePlace) {
                case TimePlace::kNone: break;
                case TimePlace::kOwnLine: list.AddDetail(time); break;
                case TimePlace::kBehind: look.details = time; break;
                case TimePlace::kBefore: text = time + L" " + text; break;
            }
        }
        list.AddTitle(shown.icon, pattern, text, look);
    };
    TitleLook first, second;
    first.selected = true;
    second.color = SampleColor();
    if (timed && IsChecked(IDC_APP_STATUS_BAR)) {
        first.status = kBusy;
        second.status = kTentative;
        second.conflicting = GetDiarySettings().markConflicting != 0;
    }
    add(Edited(), SampleTime(9, 10), subject(IDS_SAMPLE_LONG_SUBJECT), first);
    // With a line for the time there is room for one item. The other has no more than a note, so
    // that its text shows.
    if (timed && timePlace == TimePlace::kOwnLine) return;
    DisplayPattern plain = Edited();
    for (std::wstring* letters : {&plain.before, &plain.after}) {
        std::erase_if(*letters, [](wchar_t letter) { return letter != L'n'; });
    }
    add(plain, SampleTime(9, 11), subject(IDS_SAMPLE_APPOINTMENT), second);
}

}  // namespace

constexpr PageDescription kCalendarTitlesPage = {IDD_CALENDAR_TITLES, L"calendar_titles", kRows,
                                                 MakePage<CalendarTitlesPage>, kFills};
