#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "app/language/language_file.h"

// An entry of a language file, as the program reads it, and where it stands.
struct LanguageLine {
    std::size_t number;  // of the line, from 1
    bool continued;      // begins within the line, which has more than an entry or is too long
    std::size_t length;  // of the line up to here, without its break
    LanguageEntry entry;
};

// Every entry of a language file's text, those with an empty source too.
std::vector<LanguageLine> LanguageLines(std::wstring_view text);

// Whether a text holds a letter, so that a language has a word for it.
bool NeedsTranslation(std::wstring_view text);

// The text of a language file; throws a UseError when it cannot be read or is not UTF-16.
LanguageText ReadLanguageText(const std::string& path);
