#include "app/language/language_index.h"

#include <utility>

LanguageIndex::LanguageIndex(std::vector<LanguageEntry> entries) : entries_(std::move(entries)) {
    firstTranslations_.reserve(entries_.size());
    for (const LanguageEntry& entry : entries_) {
        firstTranslations_.try_emplace(entry.source, &entry.translation);
    }
}

const std::wstring* LanguageIndex::Find(std::wstring_view source) const {
    if (source.empty()) return nullptr;
    const auto found = firstTranslations_.find(source);
    if (found == firstTranslations_.end()) return nullptr;
    const std::wstring& translation = *found->second;
    return translation.empty() || translation == source ? nullptr : &translation;
}
