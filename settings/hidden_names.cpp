#include "settings/hidden_names.h"

std::vector<std::wstring> SplitHiddenNames(std::wstring_view stored) {
    std::vector<std::wstring> names;
    if (stored.empty()) return names;
    std::size_t begin = 0;
    for (std::size_t bar; (bar = stored.find(L'|', begin)) != std::wstring_view::npos;) {
        names.emplace_back(stored.substr(begin, bar - begin));
        begin = bar + 1;
    }
    names.emplace_back(stored.substr(begin));
    return names;
}

std::wstring JoinHiddenNames(const std::vector<std::wstring>& names) {
    std::wstring text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) text += L'|';
        text += names[i];
    }
    return text;
}
