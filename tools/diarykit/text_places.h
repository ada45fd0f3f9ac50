#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

// A place where the program shows a text.
struct TextPlace {
    enum class Kind { kLabel, kCheckBox, kButton, kListEntry, kCaption, kMenu, kString };

    Kind kind;
    std::string where;          // the page's anchor, or what else a dialog is known by
    std::uint32_t id;           // of the control or the string
    int width = 0, height = 0;  // of the control in its dialog's units; 0: nothing to fit into
};

// For people, such as "check box on page calendar_tasks".
std::string Describe(const TextPlace& place);

// By the English text, where each of them is shown.
using TextPlaces = std::map<std::wstring, std::vector<TextPlace>>;

// Of the program's library of texts; empty for bytes that are none.
TextPlaces PlacesOfTexts(std::span<const std::uint8_t> library);

// By how many pixels a text is too wide for its place, or too high where it may have several lines,
// on the screen where that is most; 0 when it fits everywhere.
struct Excess {
    int pixels = 0, dpi = 0;
};
Excess ExcessOf(const std::wstring& text, const TextPlace& place);
