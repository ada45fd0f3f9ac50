#pragma once

#include <optional>
#include <string>

// The name under which an entry of the Skins folder is offered. None for an entry that begins with
// a dot, and for a file unless all that follows its first dot is "zip", in whatever case.
std::optional<std::wstring> OfferedSkinName(const std::wstring& entry, bool isFolder);
