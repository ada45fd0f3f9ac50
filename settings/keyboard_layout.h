#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Which letters the keys of a phone keypad stand for in one script.
struct KeyboardLayout {
    struct Key {
        std::wstring label;    // the letters shown for the key
        std::wstring matches;  // the letters of a name that the key finds
        bool operator==(const Key&) const = default;
    };

    bool rightToLeft = false;
    std::vector<Key> keys;  // in the order of the keypad

    // What keeps a text from being a layout.
    enum class Fault {
        kLength,  // there is none, or it does not fit the plug-in's buffer
        kSpace,   // a space elsewhere than behind a group
        kGroup,   // a group that is not "label(matches)"
    };
    // The layout that a text such as "labc(abc) def(def)" describes; none when it is invalid, and
    // why then goes to `fault`.
    static std::optional<KeyboardLayout> Parse(std::wstring_view text, Fault* fault = nullptr);
    bool operator==(const KeyboardLayout&) const = default;
};

// The units that the plug-in's buffer for a layout text holds besides the terminator.
inline constexpr std::size_t kLongestLayoutText = 127;

// The layouts that one of the plug-in's tabs offers, and the one it uses.
struct OfferedLayouts {
    using Find = std::function<const KeyboardLayout*(const std::wstring&)>;

    std::vector<const KeyboardLayout*> layouts;
    std::int32_t active = -1;  // a position in `layouts`; any other number: none

    // The list that `names`, joined by commas, stands for; `find` yields null for unknown names.
    // Every piece that stands for no layout lowers the active position by one, wherever it is: the
    // plug-in counts the same way.
    static OfferedLayouts Parse(std::wstring_view names, std::int32_t active, const Find& find);
    // Whether a layout's name can be a piece of such a text.
    static bool CanBeListed(std::wstring_view name);
    bool Contains(const KeyboardLayout* layout) const;
    const KeyboardLayout* Active() const;  // null: none
    // Makes a layout of the list the active one; none when the list does not have it.
    void Activate(const KeyboardLayout* layout);
};
