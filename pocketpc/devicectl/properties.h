#pragma once

#include <windows.h>

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pocketpc/include/windbase.h"

// "NUMBER:TYPE" as in "2:string"; nothing when it is not that.
std::optional<CEPROPID> ParseProperty(std::wstring_view text);
std::wstring PropertyText(CEPROPID property);

// Bytes from hexadecimal digits, two each.
std::optional<std::vector<BYTE>> ParseBytes(std::wstring_view digits);

// Properties for a record as the system takes them, with what their pointers point to.
class PropertyValues {
  public:
    // Takes "NUMBER:TYPE=VALUE", or "NUMBER:TYPE" alone for what has no value: the record's own
    // identifier, or a property to be removed.
    bool Add(std::wstring_view text);
    std::vector<CEPROPVAL>& values() { return values_; }

  private:
    std::vector<CEPROPVAL> values_;
    std::deque<std::wstring> texts_;
    std::deque<std::vector<BYTE>> blobs_;
};

// "NUMBER:TYPE=VALUE" in the form that Add takes.
std::wstring ValueText(const CEPROPVAL& value);
