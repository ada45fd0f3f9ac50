#include "appearance/categories/short_path.h"

std::wstring ShortenPath(const std::wstring& path,
                         const std::function<bool(const std::wstring&)>& fits) {
    if (fits(path)) return path;
    const auto end = [&](std::size_t from) { return L"..." + path.substr(from); };
    const std::size_t last = path.size() - 1;  // A backslash there begins no name.
    std::size_t from = 0;
    for (std::size_t at = 1; at < last; ++at) {
        if (path[at] != L'\\') continue;
        from = at;
        if (fits(end(from))) return end(from);
    }
    while (from < path.size() && !fits(end(from))) ++from;
    return end(from);
}
