#include "pages/stores/mail_filter_names.h"

#include <algorithm>
#include <optional>

namespace {

constexpr std::wstring_view kBetween = L" - ";
constexpr int kLargestNumber = 99'999'999;

// The number that a text begins with, behind blanks; one that no name of ours has counts as none.
std::optional<int> LeadingNumber(std::wstring_view text) {
    std::size_t i = std::min(text.find_first_not_of(L' '), text.size());
    int number = 0;
    const std::size_t begin = i;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
        number = number * 10 + static_cast<int>(text[i] - L'0');
        if (number > kLargestNumber) return std::nullopt;
    }
    return i > begin ? std::optional(number) : std::nullopt;
}

// The base name with the number after the largest one that a filter has; the first one is 1.
std::wstring NumberedName(const std::wstring& base, const std::vector<std::wstring>& filters) {
    int number = 1;
    for (const std::wstring& filter : filters) {
        if (!filter.starts_with(base)) continue;
        if (const auto found = LeadingNumber(std::wstring_view(filter).substr(base.size()))) {
            number = std::max(number, *found + 1);
        }
    }
    return base + L' ' + std::to_wstring(number);
}

}  // namespace

std::wstring AutomaticFilterName(const NewMailFilterNames& texts, std::size_t ticked,
                                 const std::wstring& one,
                                 const std::vector<std::wstring>& filters) {
    if (ticked == 0) return texts.none;
    return ticked == 1 ? one : NumberedName(texts.base, filters);
}

std::vector<std::wstring> SuggestedFilterNames(const MailFolderNames& names,
                                               const std::vector<std::wstring>& containing,
                                               NameStandsBefore before) {
    std::vector<std::wstring> list = {names.account, names.folder};
    list.insert(list.end(), containing.begin(), containing.end());
    list.push_back(names.account + std::wstring(kBetween) + names.folder);
    list.push_back(names.folder + std::wstring(kBetween) + names.account);
    // First by every unit, so that equal names are neighbours and the order is always the same.
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    std::erase(list, std::wstring());
    std::stable_sort(list.begin(), list.end(), before);
    return list;
}
