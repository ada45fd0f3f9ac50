#include "appearance/drawing/shell_colors.h"

#include <cwchar>

#include "settings/catalogue.h"
#include "settings/device.h"
#include "settings/settings_key.h"

namespace {

constexpr wchar_t kColorKey[] = L"SOFTWARE\\Microsoft\\Color";
constexpr int kTableLength = 45;

// By status, from the background on.
constexpr const NumberSetting* kStatusColors[] = {
    &settings::ApptStatusBackground,  &settings::ApptStatusFree,
    &settings::ApptStatusTentative,   &settings::ApptStatusBusy,
    &settings::ApptStatusOutOfOffice, &settings::ApptStatusNotLoaded,
    &settings::ApptStatusConflicting,
};

}  // namespace

COLORREF GetShellColor(int index, COLORREF defaultColor) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, kColorKey, true, false);
    wchar_t name[16];
    swprintf(name, 16, L"%d", index);
    COLORREF color = 0;
    DWORD size = sizeof color;
    if (key.ReadBinary(name, &color, &size)) return color;
    if (IsEarlyPocketPc() || index < 0 || index >= kTableLength) return defaultColor;

    // A table that is too short leaves the default in its place.
    COLORREF table[kTableLength] = {};
    table[index] = defaultColor;
    DWORD tableSize = sizeof table;
    if (!key.ReadBinary(L"SHColor", table, &tableSize)) {
        tableSize = sizeof table;
        key.ReadBinary(L"DefSHColor", table, &tableSize);
    }
    return table[index];
}

COLORREF GetApptStatusColor(int status) {
    if (status < kApptBackground || status > kApptConflicting) return 0;
    return OpenProductKey().Read(*kStatusColors[status - kApptBackground]);
}
