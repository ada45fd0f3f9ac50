#include "appearance/drawing/note_label.h"

namespace {

constexpr std::size_t kWidth = 4;
constexpr std::size_t kRemainderDigits = 3;
constexpr wchar_t kSeparator = L'#';  // stands for the user's separator while the text is cut

std::wstring Label(std::uint32_t whole, std::uint32_t remainder, wchar_t unit,
                   const std::wstring& decimalSeparator) {
    const std::wstring digits = std::to_wstring(remainder);
    std::wstring text = std::to_wstring(whole) + kSeparator;
    if (digits.size() < kRemainderDigits) text.append(kRemainderDigits - digits.size(), L'0');
    text += digits;
    if (text.size() > kWidth) text.resize(text[kWidth - 1] == kSeparator ? kWidth - 1 : kWidth);
    text += unit;
    if (const std::size_t place = text.find(kSeparator); place != std::wstring::npos) {
        text.replace(place, 1, decimalSeparator);
    }
    return text;
}

}  // namespace

std::wstring NoteSizeLabel(std::uint32_t bytes, const std::wstring& decimalSeparator) {
    if (bytes < 1024) return std::to_wstring(bytes) + L"B";
    int shift = 10;
    wchar_t unit = L'K';
    if (bytes >= 1u << 30) {
        shift = 30;
        unit = L'G';
    } else if (bytes >= 1u << 20) {
        shift = 20;
        unit = L'M';
    }
    const std::uint32_t whole = bytes >> shift;
    // In a unit above the kilobyte the bytes that are left are many, but only some digits show.
    return Label(whole, bytes - (whole << shift), unit, decimalSeparator);
}

std::wstring RecordingLabel(std::uint32_t milliseconds, const std::wstring& decimalSeparator) {
    const std::uint32_t unit = milliseconds < 60000 ? 1000 : 60000;
    const std::uint32_t whole = milliseconds / unit;
    return Label(whole, milliseconds - unit * whole, unit == 1000 ? L'S' : L'M', decimalSeparator);
}
