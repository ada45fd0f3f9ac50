#include "pages/stores/mail_filter_names.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::wstring_view kBetween = L" - ";
constexpr int kLargestNumber = 99'999'999;

// The number that a text begins with, behind blanks. 0 without one, and for one that no name of
// ours has.
int LeadingNumber(std::wstring_view text) {
    std::size_t i = std::min(text.find_first_not_of(L' '), text.size());
    int number = 0;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
        number = number * 10 + static_cast<int>(text[i] - L'0');
        if (number > kLargestNumber) return 0;
    }
    return number;
}

std::wstring Numbered(const std::wstring& base, int number) {
    return base + L' ' + std::to_wstring(number);
}

// The base name with the number after the largest one that a filter has; the first one is 1.
std::wstring NumberedName(const std::wstring& base, const std::vector<std::wstring>& filters) {
    int number = 1;
    for (const std::wstring& filter : filters) {
        if (!filter.starts_with(base)) continue;
        const int found = LeadingNumber(std::wstring_view(filter).substr(base.size()));
        number = std::max(number, found + 1);
    }
    return Numbered(base, number);
}

std::wstring Joined(const std::wstring& first, const std::wstring& second) {
    return first + std::wstring(kBetween) + second;
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
    list.push_back(Joined(names.account, names.folder));
    list.push_back(Joined(names.folder, names.account));
    // First by every unit, so that equal names are neighbours and the order is always the same.
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    std::erase(list, std::wstring());
    std::stable_sort(list.begin(), list.end(), before);
    return list;
}

std::wstring FreeFilterName(const std::wstring& automatic, const MailFolderNames* one,
                            const std::wstring& base, NameStandsBefore before,
                            const std::function<bool(const std::wstring&)>& isTaken) {
    std::vector<std::wstring> wanted = {automatic};
    if (one) {
        wanted.push_back(Joined(one->account, one->folder));
        std::ranges::copy(SuggestedFilterNames(*one, {}, before), std::back_inserter(wanted));
    }
    for (const std::wstring& name : wanted) {
        if (name.size() <= kLongestMailFilterName && !isTaken(name)) return name;
    }
    int number = 1;
    while (isTaken(Numbered(base, number))) ++number;
    return Numbered(base, number);
}
