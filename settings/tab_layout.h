#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "resources/ids.h"

// One of the plug-in's tabs.
struct DiaryTab {
    wchar_t digit;           // stands for the tab in the stored order
    unsigned label;          // string id
    std::uint32_t bit;       // set in the stored mask while the tab is shown
    const wchar_t* hostKey;  // names the tab to the tab host
};

inline constexpr std::array kDiaryTabs = {
    DiaryTab{L'1', IDS_VIEW_CALENDAR, 0x20, L"DiaryCalendar"},
    DiaryTab{L'2', IDS_VIEW_TASKS, 0x01, L"DiaryTasks"},
    DiaryTab{L'3', IDS_VIEW_CONTACTS, 0x02, L"DiaryContacts"},
    DiaryTab{L'4', IDS_VIEW_NOTES, 0x04, L"DiaryNotes"},
    DiaryTab{L'5', IDS_VIEW_MESSAGES, 0x08, L"DiaryMessages"},
    DiaryTab{L'6', IDS_VIEW_SPECIAL_EVENTS, 0x10, L"DiarySpecial"},
};

// Heights of the plug-in on the Today screen, in pixels.
inline constexpr int kLargestHeight = 300;
inline constexpr int kHeightStep = 10;
// What a missing height counts as when it is compared with the smallest.
inline constexpr int kUsualHeight = 120;

// The smallest height for a mask of shown tabs; each needs a row of its own, unless each is a tab
// of the tab host.
int SmallestHeight(std::uint32_t shownTabs, bool tabPerHostTab);

// The tabs in the user's order, and which of them are shown.
struct TabLayout {
    std::array<int, kDiaryTabs.size()> order;  // indices into kDiaryTabs
    std::uint32_t shown = 0;                   // the mask, with all bits that are no tab's set

    // Of a stored mask and order, which may be any text: what stands for no tab, or for one that
    // has its place already, moves nothing. Without any tab the calendar is shown.
    static TabLayout Parse(std::uint32_t mask, std::wstring_view sequence);
    std::wstring Sequence() const;
};
