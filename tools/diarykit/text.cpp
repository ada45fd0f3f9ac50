#include "tools/diarykit/text.h"

#include "base/byte_reader.h"

namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsHigh(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void PutUtf8(std::string& text, std::uint32_t c) {
    const auto put = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    const auto follow = [&](int shift) { put(0x80 | (c >> shift & 0x3F)); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | c >> 6);
        follow(0);
    } else if (c < 0x10000) {
        put(0xE0 | c >> 12);
        follow(6);
        follow(0);
    } else {
        put(0xF0 | c >> 18);
        follow(12);
        follow(6);
        follow(0);
    }
}

// Takes one character off the front; of what is none, a byte.
std::uint32_t TakeUtf8(std::string_view& text) {
    const auto byte = [&text](std::size_t i) {
        return i < text.size() ? static_cast<std::uint8_t>(text[i]) : 0u;
    };
    const std::uint32_t first = byte(0);
    const std::size_t length = first < 0x80   ? 1
                               : first < 0xC2 ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    std::uint32_t c = length > 1 ? first & (0x7F >> length) : first;
    bool good = length > 0;
    for (std::size_t i = 1; i < length; ++i) {
        good = good && (byte(i) & 0xC0) == 0x80;
        c = c << 6 | (byte(i) & 0x3F);
    }
    constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    good = good && c >= kLeast[length] && c < 0x110000 && !IsHigh(c) && !IsLow(c);
    text.remove_prefix(good ? length : 1);
    return good ? c : kReplacement;
}

}  // namespace

std::string ToUtf8(std::wstring_view units) {
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i) {
        std::uint32_t c = static_cast<std::uint32_t>(units[i]);
        if (IsHigh(c) && i + 1 < units.size() && IsLow(units[i + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<std::uint32_t>(units[++i]) - 0xDC00);
        } else if (IsHigh(c) || IsLow(c)) {
            c = kReplacement;
        }
        PutUtf8(text, c);
    }
    return text;
}

std::wstring FromUtf8(std::string_view text) {
    std::wstring units;
    while (!text.empty()) {
        const std::uint32_t c = TakeUtf8(text);
        if (c >= 0x10000) {
            units += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
            units += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
        } else {
            units += static_cast<wchar_t>(c);
        }
    }
    return units;
}

std::string Plain(std::wstring_view units) {
    constexpr wchar_t kFirstShown = L' ';
    std::wstring shown;
    for (const wchar_t c : units) {
        if (c == L'\n') {
            shown += L"\\n";
        } else if (c == L'\r') {
            shown += L"\\r";
        } else if (c < kFirstShown) {
            shown += L'\x2423';  // a mark for what cannot be seen
        } else {
            shown += c;
        }
    }
    return ToUtf8(shown);
}

std::string Quoted(std::wstring_view units) { return '"' + Plain(units) + '"'; }

std::wstring TextOfFile(std::span<const std::uint8_t> bytes) {
    if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) {
        return ByteReader(bytes.subspan(2)).TakeText(bytes.size() - 2);
    }
    std::wstring text = FromUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    constexpr wchar_t kByteOrderMark = 0xFEFF;
    if (text.starts_with(kByteOrderMark)) text.erase(0, 1);
    return text;
}
