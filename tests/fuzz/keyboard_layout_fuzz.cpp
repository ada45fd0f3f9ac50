// Any text is a layout or none, and any text a tab's list; a layout printed anew is the same one.
#include "settings/keyboard_layout.h"

#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = TextOf({data, size});
    const std::optional<KeyboardLayout> layout = KeyboardLayout::Parse(text);
    if (layout) {
        std::wstring printed = layout->rightToLeft ? L"r" : L"l";
        for (const KeyboardLayout::Key& key : layout->keys) {
            REQUIRE(!key.label.empty() && !key.matches.empty());
            printed += key.label + L"(" + key.matches + L")";
        }
        REQUIRE(printed.size() <= text.size() && !layout->keys.empty());
        REQUIRE(KeyboardLayout::Parse(printed) == layout);
    }

    // Names of an even length are known.
    const KeyboardLayout known;
    std::int32_t asked = 0;
    const auto find = [&](const std::wstring& name) {
        REQUIRE(!name.empty() && name.find(L',') == std::wstring::npos);
        ++asked;
        return name.size() % 2 ? nullptr : &known;
    };
    const OfferedLayouts offered = OfferedLayouts::Parse(text, asked, find);
    const auto shown = static_cast<std::int32_t>(offered.layouts.size());
    REQUIRE(shown <= asked && offered.active <= shown - asked);
    return 0;
}
