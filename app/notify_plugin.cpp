#include "app/notify_plugin.h"

#include "settings/catalogue.h"
#include "settings/settings_key.h"

TabSettings TabSettings::Read() {
    CSettingsKey key = OpenProductKey();
    TabSettings tabs;
    tabs.showTabs = key.Read(settings::ShowTabs);
    tabs.sequence = key.Read(settings::ShowTabsSequence);
    return tabs;
}

bool NotifyPlugin(UINT updateMessage, WPARAM wParam, const TabSettings& atStart) {
    const HWND plugin = FindWindowW(L"LumDiaryTimeHelperWnd_1.0", nullptr);
    if (!plugin) return false;
    const bool tabsChanged = TabSettings::Read() != atStart;
    return PostMessageW(plugin, updateMessage, wParam, tabsChanged ? 1 : 0) != FALSE;
}
