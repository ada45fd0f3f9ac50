#include "appearance/drawing/date_formats.h"

#include <windows.h>

#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

constexpr int kTextLength = 100;

std::wstring LocalePicture(LCTYPE type) {
    wchar_t picture[kTextLength] = {};
    return GetLocaleInfoW(LOCALE_USER_DEFAULT, type, picture, kTextLength) ? picture : L"";
}

}  // namespace

std::wstring RegionalLongPicture() { return LocalePicture(LOCALE_SLONGDATE); }

std::wstring RegionalShortPicture() { return LocalePicture(LOCALE_SSHORTDATE); }

std::wstring CustomLongPicture(int format) {
    switch (format) {
        case 1: return L"d MMMM yyyy";
        case 2: return L"dddd, d MMMM yyyy";
        case 3: return RegionalShortPicture();
    }
    return L"dddd, MMMM d yyyy";
}

std::wstring LongDatePicture() {
    CSettingsKey key = OpenProductKey();
    const bool regional = key.Read(settings::LongDateRegional) != 0;
    const auto custom = static_cast<int>(key.Read(settings::LongDateCustomFormat));
    DatePictureFlags flags;
    flags.keepYear = key.Read(settings::LongDateNotYear) == 0;
    flags.shortYear = key.Read(settings::LongDateShortYear) != 0;
    flags.shortMonth = key.Read(settings::LongDateShortMonth) != 0;
    flags.shortDay = key.Read(settings::LongDateShortDay) != 0;
    return BuildDatePicture(regional ? RegionalLongPicture() : CustomLongPicture(custom), flags);
}

std::wstring ShortDatePicture(bool keepYear, bool shortYear) {
    return BuildDatePicture(RegionalShortPicture(), {keepYear, shortYear, true, true});
}

std::wstring FormatToday(const std::wstring& picture) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t text[kTextLength] = {};
    GetDateFormatW(LOCALE_USER_DEFAULT, 0, &now, picture.c_str(), text, kTextLength);
    return text;
}

std::wstring FormatTime(unsigned hour, unsigned minute) {
    SYSTEMTIME time = {2008, 5, 0, 13, 0, 0, 0, 0};
    time.wHour = static_cast<WORD>(hour);
    time.wMinute = static_cast<WORD>(minute);
    wchar_t text[kTextLength] = {};
    GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, text, kTextLength);
    return text;
}
