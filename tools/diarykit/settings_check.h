#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tools/diarykit/findings.h"
#include "tools/diarykit/settings_tree.h"

// A key's path below the product key; empty for that itself, none for a key elsewhere.
std::optional<std::wstring> PathInProductKey(const StoredSettings& settings, const StoredKey& key);

// What is odd about a settings file: it ends early, writes elsewhere, or holds what the program
// would not have written.
std::vector<Finding> CheckSettings(const std::string& file, std::span<const std::uint8_t> bytes);

Finding NotWhole(const std::string& file);
