#pragma once

#include <array>
#include <string>

#include "settings/tab_layout.h"

// Where the plug-in is registered.
struct Registration {
    enum State {
        kNone = 0,
        kTodayDisabled = 1,  // an item of the Today screen that is switched off
        kToday = 2,
        kTabPerHostTab = 3,  // the tab host holds each diary tab as a tab of its own
        kOneHostTab = 4,     // the tab host holds all of them as one tab
    };
    State state = kNone;
    bool hostInstalled = false;
    bool unknown = false;  // part of it could not be read

    static Registration Probe();
};

// Registers the plug-in as the setting "AllTabsInShell" says, or as the tab host already holds it,
// in which case the setting follows. `labels` are the tabs' names in the order of kDiaryTabs.
// Failures are not reported: the registration there was is taken away only when the new one is
// stored.
void RegisterPlugin(const std::array<std::wstring, kDiaryTabs.size()>& labels);

// Tells the Today screen to load its items anew, and gives it the time to do so: a second.
void ReloadTodayItems();
