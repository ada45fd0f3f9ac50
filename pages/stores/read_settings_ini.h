#pragma once

#include <string>

#include "pages/stores/settings_ini.h"

// Reads a settings file. One that cannot be opened has no sections and no pairs.
SettingsIni ReadSettingsIni(const std::wstring& path);
