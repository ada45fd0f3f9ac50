#include "settings/keyboard_layout.h"

#include <algorithm>

namespace {

constexpr wchar_t kRightToLeft = L'r';

// A group's closing parenthesis may be followed by one space; there may be no other.
std::optional<std::wstring> WithoutSpaces(std::wstring_view text) {
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L' ') {
            result += text[i];
        } else if (i == 0 || text[i - 1] != L')') {
            return std::nullopt;
        }
    }
    return result;
}

}  // namespace

std::optional<KeyboardLayout> KeyboardLayout::Parse(std::wstring_view text, Fault* fault) {
    Fault ignored;
    Fault& why = fault ? *fault : ignored;
    why = Fault::kLength;
    if (text.empty() || text.size() > kLongestLayoutText) return std::nullopt;
    why = Fault::kSpace;
    const std::optional<std::wstring> groups = WithoutSpaces(text.substr(1));
    if (!groups) return std::nullopt;
    why = Fault::kGroup;

    KeyboardLayout layout;
    layout.rightToLeft = text.front() == kRightToLeft;
    std::wstring_view rest = *groups;
    do {
        const std::size_t close = rest.find(L')');
        if (close == std::wstring_view::npos) return std::nullopt;
        const std::wstring_view group = rest.substr(0, close);
        const std::size_t open = group.find(L'(');
        if (open == std::wstring_view::npos || open != group.rfind(L'(')) return std::nullopt;
        if (open == 0 || open + 1 == close) return std::nullopt;
        layout.keys.push_back(
            {std::wstring(group.substr(0, open)), std::wstring(group.substr(open + 1))});
        rest.remove_prefix(close + 1);
    } while (!rest.empty());
    return layout;
}

OfferedLayouts OfferedLayouts::Parse(std::wstring_view names, std::int32_t active,
                                     const Find& find) {
    OfferedLayouts offered;
    // Unsigned, as the stored number may be any.
    auto position = static_cast<std::uint32_t>(active);
    while (!names.empty()) {
        const std::size_t length = std::min(names.find(L','), names.size());
        const std::wstring name(names.substr(0, length));
        names.remove_prefix(std::min(length + 1, names.size()));
        const KeyboardLayout* const layout = name.empty() ? nullptr : find(name);
        if (layout) {
            offered.layouts.push_back(layout);
        } else {
            --position;
        }
    }
    offered.active = static_cast<std::int32_t>(position);
    return offered;
}

bool OfferedLayouts::CanBeListed(std::wstring_view name) {
    return !name.empty() && name.find(L',') == std::wstring_view::npos;
}

bool OfferedLayouts::Contains(const KeyboardLayout* layout) const {
    return std::find(layouts.begin(), layouts.end(), layout) != layouts.end();
}

const KeyboardLayout* OfferedLayouts::Active() const {
    const auto position = static_cast<std::uint32_t>(active);
    return position < layouts.size() ? layouts[position] : nullptr;
}

void OfferedLayouts::Activate(const KeyboardLayout* layout) {
    const auto found = std::find(layouts.begin(), layouts.end(), layout);
    active = found == layouts.end() ? -1 : static_cast<std::int32_t>(found - layouts.begin());
}
