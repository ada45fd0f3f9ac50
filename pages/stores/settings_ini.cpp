#include "pages/stores/settings_ini.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\n\v\f\r";
constexpr std::size_t kLongestSkippedLine = 3;

// What reading in the manner of text files leaves: a line break is a line feed, and the text ends
// where such files were once marked to end.
std::string TextOf(std::span<const std::uint8_t> bytes) {
    constexpr char kEndOfText = 0x1A;
    std::string text;
    text.reserve(bytes.size());
    for (const std::uint8_t byte : bytes) {
        const char c = static_cast<char>(byte);
        if (c == kEndOfText) break;
        if (c == '\n' && text.ends_with('\r')) text.pop_back();
        text += c;
    }
    return text;
}

// Takes a line with its line feed, or as much of it as a line may hold.
std::string_view TakeLine(std::string_view& rest) {
    const std::string_view room = rest.substr(0, kLongestIniLine);
    const std::size_t end = room.find('\n');
    const std::string_view line = end == std::string_view::npos ? room : room.substr(0, end + 1);
    rest.remove_prefix(line.size());
    return line.substr(0, line.find('\0'));
}

// Works on bytes, as no code page has these characters within another one.
std::string_view Trim(std::string_view line) {
    const std::size_t begin = line.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) return {};
    return line.substr(begin, line.find_last_not_of(kBlanks) - begin + 1);
}

std::wstring ValueOf(std::string_view bytes, DecodeText decode) {
    if (!bytes.starts_with(kByteOrderMark)) return decode(kDeviceCodePage, bytes);
    std::wstring value = decode(kUtf8CodePage, bytes.substr(kByteOrderMark.size()));
    if (value.size() > kLongestUtf8Value) value.clear();
    return value;
}

// Compares without regard to the case of ASCII letters; `upper` is in upper case.
bool IsSameIgnoringCase(std::wstring_view text, std::wstring_view upper) {
    return std::equal(
        text.begin(), text.end(), upper.begin(), upper.end(),
        [](wchar_t c, wchar_t u) { return (c >= L'a' && c <= L'z' ? c - L'a' + L'A' : c) == u; });
}

}  // namespace

const std::wstring* SettingsIniSection::Find(std::wstring_view key) const {
    for (const Pair& pair : pairs) {
        if (pair.key == key) return &pair.value;
    }
    return nullptr;
}

std::optional<bool> SettingsIniSection::FindBoolean(std::wstring_view key) const {
    const std::wstring* value = Find(key);
    if (value && IsSameIgnoringCase(*value, L"FALSE")) return false;
    if (value && IsSameIgnoringCase(*value, L"TRUE")) return true;
    return std::nullopt;
}

const SettingsIniSection* SettingsIni::FindSection(std::wstring_view name) const {
    for (const SettingsIniSection& section : sections) {
        if (section.name == name) return &section;
    }
    return nullptr;
}

SettingsIni ParseSettingsIni(std::span<const std::uint8_t> bytes, DecodeText decode) {
    SettingsIni file;
    const std::string text = TextOf(bytes);
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::string_view line = Trim(TakeLine(rest));
        if (line.empty() || line.front() == ';' ||
            decode(kDeviceCodePage, line).size() <= kLongestSkippedLine) {
            continue;
        }
        if (line.front() == '[' && line.back() == ']') {
            const std::string_view name = line.substr(1, line.size() - 2);
            file.sections.push_back({decode(kDeviceCodePage, name), {}});
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos || equals == 0) continue;
        SettingsIniSection& section = file.sections.empty() ? file.top : file.sections.back();
        section.pairs.push_back({decode(kDeviceCodePage, line.substr(0, equals)),
                                 ValueOf(line.substr(equals + 1), decode)});
    }
    return file;
}
