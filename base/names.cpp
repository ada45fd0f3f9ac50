#include "base/names.h"

#include <windows.h>

#include <string>

namespace {

std::wstring UpperCase(std::wstring_view name) {
    std::wstring text(name);
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

}  // namespace

bool StandsBefore(std::wstring_view left, std::wstring_view right) {
    return CompareStringW(LOCALE_USER_DEFAULT,
                          NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH, left.data(),
                          static_cast<int>(left.size()), right.data(),
                          static_cast<int>(right.size())) == CSTR_LESS_THAN;
}

bool IsSameName(std::wstring_view left, std::wstring_view right) {
    return left.size() == right.size() && UpperCase(left) == UpperCase(right);
}
