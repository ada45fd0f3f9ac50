#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "app/language/language_file.h"

// Finds translations as a search of the list from its front would, at a cost that does not grow
// with it.
class LanguageIndex {
  public:
    LanguageIndex() = default;
    explicit LanguageIndex(std::vector<LanguageEntry> entries);
    LanguageIndex(LanguageIndex&&) = default;
    LanguageIndex& operator=(LanguageIndex&&) = default;

    // The translation in the first pair with this source; null when there is none, or when it
    // changes nothing because it is empty or the source itself.
    const std::wstring* Find(std::wstring_view source) const;

  private:
    std::vector<LanguageEntry> entries_;  // never changed: the map points into it
    std::unordered_map<std::wstring_view, const std::wstring*> firstTranslations_;
};
