#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/diarykit/settings_tree.h"

// The desktop's text format for keys and values (".reg").

// A line of such a text that cannot be carried over.
struct RegFault {
    std::size_t line;
    std::string text;
};

// Settings as such a text. With `under`, a key that begins with a root key's name, they are put
// below it, the name of their own root key first. None for a root key without a name and for names
// of keys with line breaks, which the format cannot hold.
std::optional<std::wstring> FormatReg(const StoredSettings& settings, std::wstring_view under);

// The other way. Without faults the settings are whole; their outermost key is the one above all
// that the text names.
StoredSettings ParseReg(std::wstring_view text, std::wstring_view under,
                        std::vector<RegFault>& faults);
