#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

// The settings by which the plug-in builds its tabs. The plug-in only has to build them anew when
// they differ from what they were when this program started.
struct TabSettings {
    std::uint32_t showTabs = 0;
    std::wstring sequence;

    static TabSettings Read();
    bool operator==(const TabSettings&) const = default;
};

// Tells the running plug-in to reload its settings, and to rebuild its tabs when they differ from
// `atStart`. False when no plug-in runs.
bool NotifyPlugin(UINT updateMessage, WPARAM wParam, const TabSettings& atStart);
