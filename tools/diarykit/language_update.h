#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// A translation brought up to date: the template's texts in its order, with the translations there
// are, and behind a mark the translated texts that it no longer has.
struct LanguageUpdate {
    std::wstring text;
    std::size_t added = 0, gone = 0;
};
LanguageUpdate UpdateLanguage(std::wstring_view oldText, std::wstring_view templateText);
