#include "app/open_entry.h"

#include <vector>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "app/sheets/options_sheet.h"
#include "appearance/categories/category_dialog.h"
#include "appearance/drawing/fonts.h"
#include "pages/calendar/calendar_common_page.h"
#include "pages/calendar/calendar_show_page.h"
#include "pages/calendar/calendar_tasks_page.h"
#include "pages/calendar/calendar_titles_page.h"
#include "pages/contacts/contacts_common_page.h"
#include "pages/contacts/contacts_view_style_page.h"
#include "pages/general/general_auto_return_page.h"
#include "pages/general/general_common_page.h"
#include "pages/general/general_font_page.h"
#include "pages/general/general_group_style_page.h"
#include "pages/general/general_long_date_page.h"
#include "pages/general/general_short_date_page.h"
#include "pages/general/general_skins_page.h"
#include "pages/general/general_tabs_page.h"
#include "pages/messages/messages_common_page.h"
#include "pages/messages/messages_filter_page.h"
#include "pages/notes/notes_common_page.h"
#include "pages/notes/notes_filter_page.h"
#include "pages/shared/flag_icons_page.h"
#include "pages/shared/title_draft.h"
#include "pages/special_events/special_events_common_page.h"
#include "pages/tasks/tasks_common_page.h"
#include "pages/tasks/tasks_view_style_page.h"
#include "resources/ids.h"

namespace {

template <typename Page>
std::unique_ptr<OptionsPage> Make() {
    return std::make_unique<Page>();
}

constexpr MainEntry::PageFactory kGeneralPages[] = {
    Make<GeneralCommonPage>, Make<GeneralShortDatePage>,  Make<GeneralLongDatePage>,
    Make<GeneralFontPage>,   Make<GeneralGroupStylePage>, Make<GeneralTabsPage>,
    Make<GeneralSkinsPage>,  Make<GeneralAutoReturnPage>,
};
constexpr MainEntry::PageFactory kCalendarPages[] = {
    Make<CalendarCommonPage>,
    Make<CalendarShowPage>,
    Make<CalendarTasksPage>,
    Make<CalendarTitlesPage>,
};
constexpr MainEntry::PageFactory kTasksPages[] = {
    Make<TasksCommonPage>,
    Make<TasksViewStylePage>,
    Make<TasksIconsPage>,
};
constexpr MainEntry::PageFactory kContactsPages[] = {
    Make<ContactsCommonPage>,
    Make<ContactsViewStylePage>,
    Make<ContactsIconsPage>,
};
constexpr MainEntry::PageFactory kNotesPages[] = {Make<NotesCommonPage>, Make<NotesFilterPage>};
constexpr MainEntry::PageFactory kMessagesPages[] = {
    Make<MessagesCommonPage>,
    Make<MessagesFilterPage>,
};
constexpr MainEntry::PageFactory kSpecialEventsPages[] = {Make<SpecialEventsCommonPage>};

constexpr MainEntry kEntries[] = {
    {IDS_GENERAL, IDI_GENERAL, IDS_GENERAL_CAPTION, kGeneralPages, true},
    {IDS_CALENDAR, IDI_CALENDAR, IDS_CALENDAR_CAPTION, kCalendarPages, true},
    {IDS_TASKS, IDI_TASKS, IDS_TASKS_CAPTION, kTasksPages, true},
    {IDS_CONTACTS, IDI_CONTACTS, IDS_CONTACTS_CAPTION, kContactsPages, false},
    {IDS_NOTES, IDI_NOTES, IDS_NOTES_CAPTION, kNotesPages, false},
    {IDS_MESSAGES, IDI_MESSAGES, IDS_MESSAGES_CAPTION, kMessagesPages, true},
    {IDS_SPECIAL_EVENTS, IDI_SPECIAL_EVENTS, IDS_SPECIAL_EVENTS_CAPTION, kSpecialEventsPages,
     false},
    {IDS_CATEGORY_ICONS, IDI_CATEGORY_ICONS, IDS_CATEGORY_ICONS, {}, false},
};

// Its pages change what the cached fonts were made from.
constexpr WPARAM kGeneralEntry = 0;
// A dialog, not a sheet.
constexpr WPARAM kCategoryEntry = 7;

}  // namespace

std::span<const MainEntry> MainEntries() { return kEntries; }

bool OpenEntry(WPARAM entry, LPARAM page) {
    if (entry == kCategoryEntry) {
        CategoryDialog dialog;
        return dialog.DoModal(GetActiveWindow()) > 0;
    }
    if (entry >= std::size(kEntries) || kEntries[entry].pages.empty()) return false;
    const MainEntry& row = kEntries[entry];
    ForgetTitleDraft();
    std::vector<std::unique_ptr<OptionsPage>> pages;  // Outlive the sheet.
    OptionsSheet sheet(GetLanguageTable().LoadString(row.caption));
    for (const MainEntry::PageFactory make : row.pages) {
        pages.push_back(make());
        sheet.AddPage(*pages.back());
    }
    if (row.startPageCanBeChosen) sheet.SetActivePage(static_cast<int>(page));
    const bool changed = sheet.DoModal(GetActiveWindow()) != 0;
    if (changed && entry == kGeneralEntry) ResetListFonts();
    return changed;
}
