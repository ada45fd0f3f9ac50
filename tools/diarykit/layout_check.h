#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/diarykit/findings.h"

// A text of lines "name=layout", as the registry has them; empty lines and those that begin with
// "#" do not count. Gives what is wrong, and to `shown` a line for each that is a layout.
std::vector<Finding> CheckLayouts(const std::string& file, std::wstring_view text,
                                  std::vector<std::string>& shown);
