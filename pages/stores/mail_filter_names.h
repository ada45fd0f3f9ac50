#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// A folder's own name and that of its account, which may be the same.
struct MailFolderNames {
    std::wstring account;
    std::wstring folder;
};

inline constexpr std::size_t kLongestMailFilterName = 255;  // of a value in the registry

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

// The first name for a new filter that is not taken: the automatic one; for `one` folder, which is
// null while there are several, "account - folder" and the further suggestions; and the base name
// with a number.
std::wstring FreeFilterName(const std::wstring& automatic, const MailFolderNames* one,
                            const std::wstring& base, NameStandsBefore before,
                            const std::function<bool(const std::wstring&)>& isTaken);
