#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// A text of the program in English and in the user's language. An empty translation translates
// nothing.
struct LanguageEntry {
    std::wstring source;
    std::wstring translation;

    bool operator==(const LanguageEntry&) const = default;
};

// The longest line of a language file, in characters. What is longer goes on as a line of its own.
inline constexpr std::size_t kLongestLanguageLine = 4094;

// The first line of a file that the program writes. It translates nothing.
inline constexpr std::wstring_view kLanguageTemplateMark = L"$$$$$$$$ NEW FILE $$$$$$$";

// Reads a language file: UTF-16 little-endian behind a byte-order mark, else one character a byte.
// A line is "source|translation", with "\n", "\r", "\\" and "\|" for what cannot stand there
// itself. Takes any bytes; the text ends at the first NUL.
std::vector<LanguageEntry> ParseLanguageFile(std::span<const std::uint8_t> bytes);

// The steps of it: the file's characters, and its front entry with the line break behind it. An
// entry that ends at a second bar or after the longest line leaves the rest of its line.
struct LanguageText {
    std::wstring characters;
    bool utf16 = false;
};
LanguageText TextOfLanguageFile(std::span<const std::uint8_t> bytes);
LanguageEntry TakeLanguageEntry(std::wstring_view& rest);

// A text as it is written in a field of the file.
std::wstring EscapeLanguageText(std::wstring_view text);

// What follows the byte-order mark in a file that lists texts without translations.
std::wstring LanguageTemplateText(std::span<const std::wstring> texts);
