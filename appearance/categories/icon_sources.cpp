#include "appearance/categories/icon_sources.h"

#include <algorithm>

namespace {

// The digits of a positive number without leading zeros; empty for any other text.
std::wstring PositiveNumber(const std::wstring& text) {
    if (text.find_first_not_of(L"0123456789") != std::wstring::npos) return {};
    return text.substr(std::min(text.find_first_not_of(L'0'), text.size()));
}

// Numbers of any length, so that none needs a limit.
bool IsSmaller(const std::wstring& a, const std::wstring& b) {
    return a.size() != b.size() ? a.size() < b.size() : a < b;
}

}  // namespace

RememberedFolders::RememberedFolders(std::vector<std::pair<std::wstring, std::wstring>> values) {
    for (auto& [name, folder] : values) name = PositiveNumber(name);
    std::stable_sort(values.begin(), values.end(),
                     [](const auto& a, const auto& b) { return IsSmaller(a.first, b.first); });
    for (auto& [name, folder] : values) {
        const bool known = std::ranges::find(folders_, folder) != folders_.end();
        if (name.empty() || folder.empty() || known || folders_.size() == kMost) continue;
        folders_.push_back(std::move(folder));
    }
}

void RememberedFolders::Add(const std::wstring& folder) {
    const auto known = std::find(folders_.begin(), folders_.end(), folder);
    if (known != folders_.end()) {
        std::rotate(folders_.begin(), known, known + 1);
        return;
    }
    folders_.insert(folders_.begin(), folder);
    if (folders_.size() > kMost) folders_.resize(kMost);
}

std::optional<std::vector<std::wstring>> IconSources::Show(int source) {
    const int fixed = static_cast<int>(fixed_.size());
    const int last = fixed + static_cast<int>(remembered_.folders().size());
    if (source < 0 || source > last) {
        if (shown_) return std::nullopt;
        source = 0;
    }
    if (source > fixed) {
        const std::wstring folder =
            remembered_.folders()[static_cast<std::size_t>(source - fixed - 1)];
        return ShowFolder(folder);
    }
    shown_ = source;
    if (source > 0) return std::vector{fixed_[static_cast<std::size_t>(source - 1)]};
    std::vector<std::wstring> all = fixed_;
    all.insert(all.end(), remembered_.folders().begin(), remembered_.folders().end());
    return all;
}

std::vector<std::wstring> IconSources::ShowFolder(const std::wstring& folder) {
    remembered_.Add(folder);
    shown_ = static_cast<int>(fixed_.size()) + 1;
    return {folder};
}
