#include "tools/diarykit/layout_check.h"

#include <algorithm>

#include "settings/keyboard_layout.h"
#include "tools/diarykit/text.h"

namespace {

std::string WordsFor(KeyboardLayout::Fault fault) {
    switch (fault) {
        case KeyboardLayout::Fault::kLength:
            return "empty, or longer than " + std::to_string(kLongestLayoutText) + " characters";
        case KeyboardLayout::Fault::kSpace: return "a space elsewhere than behind a )";
        case KeyboardLayout::Fault::kGroup: break;
    }
    return "a group that is not \"letters(matches)\"";
}

std::string Describe(const std::wstring& name, const KeyboardLayout& layout) {
    std::string text = Plain(name) + (layout.rightToLeft ? ", right to left:" : ":");
    for (const KeyboardLayout::Key& key : layout.keys) text += " " + Plain(key.label);
    return text;
}

}  // namespace

std::vector<Finding> CheckLayouts(const std::string& file, std::wstring_view text,
                                  std::vector<std::string>& shown) {
    std::vector<Finding> findings;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find(L'\n'), text.size());
        std::wstring_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with(L'\r')) line.remove_suffix(1);
        if (line.empty() || line.front() == L'#') continue;
        const auto add = [&](std::string fault) {
            findings.push_back({file, number, std::move(fault)});
        };
        const std::size_t separator = line.find(L'=');
        if (separator == std::wstring_view::npos) {
            add("no line \"name=layout\"");
            continue;
        }
        const std::wstring name(line.substr(0, separator));
        KeyboardLayout::Fault fault = {};
        const auto layout = KeyboardLayout::Parse(line.substr(separator + 1), &fault);
        if (!OfferedLayouts::CanBeListed(name)) add("a name that is empty or has a comma");
        if (layout) {
            shown.push_back(Describe(name, *layout));
        } else {
            add(WordsFor(fault));
        }
    }
    return findings;
}
