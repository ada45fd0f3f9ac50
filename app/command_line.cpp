#include "app/command_line.h"

#include <limits>
#include <optional>

namespace {

bool IsBlank(wchar_t c) { return c == L' ' || (c >= L'\t' && c <= L'\r'); }

// Reads a decimal integer with optional blanks and sign before it, as a "%d" does, and removes it
// from the text. A number beyond the range of int is none.
std::optional<int> TakeInteger(std::wstring_view& text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == L'-';
    if (negative || (!text.empty() && text.front() == L'+')) text.remove_prefix(1);
    constexpr long long kLimit = std::numeric_limits<int>::max();
    long long number = 0;
    bool found = false;
    while (!text.empty() && text.front() >= L'0' && text.front() <= L'9') {
        if (number <= kLimit) number = number * 10 + (text.front() - L'0');
        found = true;
        text.remove_prefix(1);
    }
    if (!found || number > kLimit) return std::nullopt;
    return static_cast<int>(negative ? -number : number);
}

}  // namespace

std::vector<OpenRequest> ParseCommandLine(std::wstring_view commandLine) {
    std::vector<OpenRequest> requests;
    for (std::size_t dash = commandLine.find(L'-'); dash != std::wstring_view::npos;
         dash = commandLine.find(L'-', dash + 1)) {
        std::wstring_view rest = commandLine.substr(dash + 1);
        if (rest.empty() || (rest.front() != L'P' && rest.front() != L'p')) continue;
        rest.remove_prefix(1);
        const std::optional<int> entry = TakeInteger(rest);
        if (!entry || rest.empty() || rest.front() != L':') continue;
        rest.remove_prefix(1);
        const std::optional<int> page = TakeInteger(rest);
        if (page) requests.push_back({*entry, *page});
    }
    return requests;
}
