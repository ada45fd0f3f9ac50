#include "tools/diarykit/known_values.h"

#include <algorithm>

#include "settings/settings_file_facts.h"
#include "tools/diarykit/text.h"

namespace {

std::vector<ShownValue> ReadTable() {
    struct Line {
        const wchar_t* value;  // null: an entry of the list before
        const char* page;
        ShownValue::How how;
        const char* text;
        std::uint32_t dialog, control;
        std::int32_t number;
    };
    static constexpr auto kCheck = ShownValue::How::kCheck;
    static constexpr auto kList = ShownValue::How::kList;
    static constexpr auto kOwn = ShownValue::How::kOwn;
    static constexpr Line kLines[] = {
#define ROW(value, page, how, label, dialog, control) {value, page, how, label, dialog, control, 0},
#define ENTRY(number, text) {nullptr, nullptr, kOwn, text, 0, 0, number},
#include "tools/diarykit/known_values.inc"
#undef ROW
#undef ENTRY
    };
    std::vector<ShownValue> values;
    for (const Line& line : kLines) {
        if (line.value) {
            values.push_back(
                {line.value, line.page, line.how, line.text, line.dialog, line.control, {}});
        } else {
            values.back().entries.push_back({line.number, line.text});
        }
    }
    return values;
}

bool IsOfEntry(const CatalogueEntry& entry, std::wstring_view key, std::wstring_view name) {
    if (!IsSameAsciiName(key, entry.key ? entry.key : L"")) return false;
    const std::wstring_view known = entry.name;
    if (!entry.ofEachTab) return IsSameAsciiName(name, known);
    return name.size() > known.size() &&
           IsSameAsciiName(name.substr(name.size() - known.size()), known);
}

}  // namespace

std::span<const ShownValue> ShownValues() {
    static const std::vector<ShownValue> table = ReadTable();
    return table;
}

KnownValue FindKnownValue(std::wstring_view key, std::wstring_view name) {
    KnownValue known;
    for (const CatalogueEntry& entry : Catalogue()) {
        if (known.entry || !IsOfEntry(entry, key, name)) continue;
        known.entry = &entry;
        std::wstring full = entry.key ? std::wstring(entry.key) + L'\\' : L"";
        full += entry.name;
        for (const ShownValue& shown : ShownValues()) {
            if (shown.value == full) known.shown.push_back(&shown);
        }
    }
    return known;
}

const CatalogueKey* FindKnownKey(std::wstring_view key) {
    const auto keys = CatalogueKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [key](const CatalogueKey& known) {
        return IsSameAsciiName(key, known.name);
    });
    return found == keys.end() ? nullptr : &*found;
}

bool HoldsKnownValues(std::wstring_view key) {
    const auto entries = Catalogue();
    return std::any_of(entries.begin(), entries.end(), [key](const CatalogueEntry& entry) {
        return IsSameAsciiName(key, entry.key ? entry.key : L"");
    });
}

std::string DefaultOf(const CatalogueEntry& entry) {
    switch (entry.rule) {
        case CatalogueEntry::Default::kOfDevice: return "depends on the device";
        case CatalogueEntry::Default::kNone: return "";
        case CatalogueEntry::Default::kFixed: break;
    }
    return entry.isText ? Quoted(entry.text) : std::to_string(entry.number);
}
