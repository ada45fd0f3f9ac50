#pragma once

#include <functional>
#include <string>

// A path as it is shown where there is little room: its folders are left out from the left until
// `fits` says that it fits; of a last name that is too long, its beginning is.
std::wstring ShortenPath(const std::wstring& path,
                         const std::function<bool(const std::wstring&)>& fits);
