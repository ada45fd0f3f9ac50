#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tools/diarykit/findings.h"
#include "tools/diarykit/text_places.h"

// Texts that the program no longer has, with their translations, stand behind this line.
inline constexpr std::wstring_view kGoneTextsMark = L"$$$$$$$$ GONE $$$$$$$";

struct LanguageCheck {
    std::vector<Finding> findings;
    std::size_t known = 0;  // texts of the template that need a translation
};

// What is wrong in a language file beside the template that the program writes. Where `places` know
// them, translations must fit; with `withContext` each finding says where its text is shown.
LanguageCheck CheckLanguage(const std::string& file, std::span<const std::uint8_t> bytes,
                            std::wstring_view templateText, const TextPlaces& places,
                            bool withContext);
