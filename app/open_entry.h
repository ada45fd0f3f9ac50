#pragma once

#include <windows.h>

#include <span>

#include "app/sheets/page_description.h"

// An entry of the main screen and the sheet behind it. A new page is a row in one of these.
struct MainEntry {
    unsigned text;     // string id
    unsigned icon;     // icon id
    unsigned caption;  // string id of the sheet's caption
    std::span<const PageDescription* const> pages;
    bool startPageCanBeChosen;
};

// In the order of the main screen.
std::span<const MainEntry> MainEntries();

// Opens an entry's sheet at a page, or its dialog, over the active window, until it is closed. True
// when it ended with a change. An entry that does not exist, or has no pages, does nothing.
bool OpenEntry(WPARAM entry, LPARAM page);
