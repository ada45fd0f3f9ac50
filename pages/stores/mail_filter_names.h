#pragma once

#include <string>
#include <string_view>
#include <vector>

// A folder's own name and that of its account, which may be the same.
struct MailFolderNames {
    std::wstring account;
    std::wstring folder;
};

// What a new filter is called by itself.
struct NewMailFilterNames {
    std::wstring none;  // while no folder is ticked
    std::wstring base;  // with a number, while several are
};

// The name that follows the ticked folders: `ticked` of them, of which `one` is the name of the
// only one when there is one.
std::wstring AutomaticFilterName(const NewMailFilterNames& texts, std::size_t ticked,
                                 const std::wstring& one, const std::vector<std::wstring>& filters);

// Whether one name stands before another one, in the user's alphabet and without regard to case.
using NameStandsBefore = bool (*)(std::wstring_view left, std::wstring_view right);

// What a filter with a folder may be called; `containing` are the filters that have it already.
std::vector<std::wstring> SuggestedFilterNames(const MailFolderNames& names,
                                               const std::vector<std::wstring>& containing,
                                               NameStandsBefore before);
