#include "app/open_entry.h"

#include <vector>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "app/sheets/options_sheet.h"
#include "appearance/categories/category_dialog.h"
#include "appearance/drawing/fonts.h"
#include "pages/calendar/calendar_pages.h"
#include "pages/contacts/contacts_pages.h"
#include "pages/general/general_pages.h"
#include "pages/messages/messages_pages.h"
#include "pages/notes/notes_pages.h"
#include "pages/shared/title_draft.h"
#include "pages/special_events/special_events_pages.h"
#include "pages/tasks/tasks_pages.h"
#include "resources/ids.h"

namespace {

constexpr const PageDescription* kGeneralPages[] = {
    &kGeneralCommonPage, &kGeneralShortDatePage,  &kGeneralLongDatePage,
    &kGeneralFontPage,   &kGeneralGroupStylePage, &kGeneralTabsPage,
    &kGeneralSkinsPage,  &kGeneralAutoReturnPage};
constexpr const PageDescription* kCalendarPages[] = {&kCalendarCommonPage, &kCalendarShowPage,
                                                     &kCalendarTasksPage, &kCalendarTitlesPage};
constexpr const PageDescription* kTasksPages[] = {&kTasksCommonPage, &kTasksViewStylePage,
                                                  &kTasksIconsPage};
constexpr const PageDescription* kContactsPages[] = {&kContactsCommonPage, &kContactsViewStylePage,
                                                     &kContactsIconsPage};
constexpr const PageDescription* kNotesPages[] = {&kNotesCommonPage, &kNotesFilterPage};
constexpr const PageDescription* kMessagesPages[] = {&kMessagesCommonPage, &kMessagesFilterPage};
constexpr const PageDescription* kSpecialEventsPages[] = {&kSpecialEventsCommonPage};

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
    SheetTitles titles;
    std::vector<std::unique_ptr<OptionsPage>> pages;  // Outlive the sheet.
    OptionsSheet sheet(GetLanguageTable().LoadString(row.caption));
    for (const PageDescription* const page : row.pages) {
        pages.push_back(MakeDescribedPage(*page));
        sheet.AddPage(*pages.back());
    }
    if (row.startPageCanBeChosen) sheet.SetActivePage(static_cast<int>(page));
    const bool changed = sheet.DoModal(GetActiveWindow()) != 0;
    if (changed && entry == kGeneralEntry) ResetListFonts();
    return changed;
}
