#pragma once

#include <string>
#include <string_view>

// A text as a language would have it that is longer than English and has other letters: in
// brackets, accented, and longer by two fifths of its characters, but at least by the brackets.
// Placeholders, mnemonics and breaks stay as they are; a text without letters is not translated.
std::wstring PseudoTranslation(std::wstring_view text);

// A template with such a translation for each text. What a line has no room for stays untranslated.
std::wstring PseudoLanguage(std::wstring_view templateText);
