#include "settings/date_picture.h"

#include <cwchar>
#include <vector>

namespace {

// Of each character, whether it stands outside quotes.
std::vector<bool> OutsideQuotes(const std::wstring& picture) {
    std::vector<bool> outside(picture.size());
    bool quoted = false;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        if (picture[i] == L'\'') {
            quoted = !quoted;
        } else {
            outside[i] = !quoted;
        }
    }
    return outside;
}

std::wstring WithoutYear(const std::wstring& picture) {
    const std::vector<bool> outside = OutsideQuotes(picture);
    const std::size_t size = picture.size();
    const auto isDayOrMonth = [&](std::size_t i) {
        return outside[i] && (picture[i] == L'M' || picture[i] == L'd');
    };
    std::size_t year = 0;
    while (year < size && !(outside[year] && picture[year] == L'y')) ++year;
    if (year == size) return picture;

    std::size_t before = year;  // just after the last day or month before the year; 0: none
    while (before > 0 && !isDayOrMonth(before - 1)) --before;
    std::size_t after = before;
    while (after < size && !isDayOrMonth(after)) ++after;
    if (after == size) return picture.substr(0, before);
    if (before == 0) return picture.substr(after);
    // The separator before what follows the year stays; a quoted one as a whole.
    std::size_t separator = after - 1;
    if (picture[separator] == L'\'') separator = picture.rfind(L'\'', separator - 1);
    return picture.substr(0, before) + L" " + picture.substr(separator);
}

void ReplaceAll(std::wstring& text, const wchar_t* from, const wchar_t* to) {
    const std::size_t length = wcslen(from);
    for (std::size_t found; (found = text.find(from)) != std::wstring::npos;) {
        text.replace(found, length, to);
    }
}

}  // namespace

std::wstring BuildDatePicture(std::wstring picture, DatePictureFlags flags) {
    if (!flags.keepYear) picture = WithoutYear(picture);
    if (flags.shortYear) ReplaceAll(picture, L"yyyy", L"yy");
    if (flags.shortMonth) ReplaceAll(picture, L"MMMM", L"MMM");
    if (flags.shortDay) ReplaceAll(picture, L"dddd", L"ddd");
    return picture;
}
