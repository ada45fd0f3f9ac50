#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/catalogue.h"

// What a page shows of a value.
struct ShownValue {
    enum class How { kCheck, kList, kOwn };  // kOwn: the page's own code knows

    std::wstring_view value;  // its name; behind a key below the product key's and a backslash
    std::string page;         // the page's anchor
    How how;
    std::string label;              // may be empty
    std::uint32_t dialog, control;  // ids of the page's template and of the control in it
    struct Entry {
        std::int32_t number;
        std::string text;
    };
    std::vector<Entry> entries;  // of a list
};

// What the program's tables know of a value; without an entry it is not among them.
struct KnownValue {
    const CatalogueEntry* entry = nullptr;
    std::vector<const ShownValue*> shown;  // on each page that edits it
};

// Everything that pages show, in their order.
std::span<const ShownValue> ShownValues();

// A value by the path of its key below the product key (empty: in that itself) and its name.
KnownValue FindKnownValue(std::wstring_view key, std::wstring_view name);

// A key of the owner's own records; null for any other.
const CatalogueKey* FindKnownKey(std::wstring_view key);
// Whether values that are known lie in this key.
bool HoldsKnownValues(std::wstring_view key);

// The default as it is told; empty for none.
std::string DefaultOf(const CatalogueEntry& entry);
