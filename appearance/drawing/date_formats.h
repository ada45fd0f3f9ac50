#pragma once

#include <string>

#include "settings/date_picture.h"

// How many custom formats there are for the long date.
inline constexpr int kCustomLongFormats = 4;

// The pictures that dates are built from: the device's own, and the custom formats 0 to 3 for the
// long date. Any other number gives the first.
std::wstring RegionalLongPicture();
std::wstring RegionalShortPicture();
std::wstring CustomLongPicture(int format);

// The picture of the long date (the heading of a day) as the settings say. That of the short date
// (inside a line) always shortens months and days.
std::wstring LongDatePicture();
std::wstring ShortDatePicture(bool keepYear, bool shortYear);

// Today's date.
std::wstring FormatToday(const std::wstring& picture);
// A time of the day as the user writes it, without seconds.
std::wstring FormatTime(unsigned hour, unsigned minute);
