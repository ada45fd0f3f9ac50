#include "base/dialog_template.h"

#include <utility>

#include "base/byte_reader.h"

namespace {

constexpr std::uint32_t kNumberFollows = 0xFFFF;

void Align(ByteReader& reader) { reader.Take((4 - reader.position() % 4) % 4); }

int TakeShort(ByteReader& reader) { return static_cast<std::int16_t>(reader.TakeNumber(2)); }

// A text up to its terminator, or a number behind a mark.
std::wstring TakeName(ByteReader& reader) {
    std::wstring name;
    std::uint32_t unit = reader.TakeNumber(2);
    if (unit == kNumberFollows) {
        constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
        const std::uint32_t number = reader.TakeNumber(2);
        name = L"#";
        for (int shift = 12; shift >= 0; shift -= 4) name += kDigits[number >> shift & 0xF];
        return name;
    }
    for (; unit && !reader.failed(); unit = reader.TakeNumber(2)) {
        name += static_cast<wchar_t>(unit);
    }
    return name;
}

}  // namespace

std::optional<DialogTemplate> ParseDialogTemplate(std::span<const std::uint8_t> bytes) {
    constexpr std::uint32_t kExtended = 0xFFFF0001;
    constexpr std::uint32_t kSetFont = 0x40;  // DS_SETFONT
    ByteReader reader(bytes);
    if (reader.TakeNumber() != kExtended) return {};
    DialogTemplate result;
    reader.Take(8);  // the help's id, the extended style
    result.style = reader.TakeNumber();
    const std::uint32_t count = reader.TakeNumber(2);
    reader.Take(4);  // the place
    result.width = TakeShort(reader);
    result.height = TakeShort(reader);
    TakeName(reader);
    TakeName(reader);
    result.caption = TakeName(reader);
    if (result.style & kSetFont) {
        reader.Take(6);
        TakeName(reader);
    }
    for (std::uint32_t i = 0; i < count && !reader.failed(); ++i) {
        DialogTemplate::Control control;
        Align(reader);
        reader.Take(4);  // the help's id
        control.extendedStyle = reader.TakeNumber();
        control.style = reader.TakeNumber();
        control.x = TakeShort(reader);
        control.y = TakeShort(reader);
        control.width = TakeShort(reader);
        control.height = TakeShort(reader);
        control.id = reader.TakeNumber();
        control.className = TakeName(reader);
        control.text = TakeName(reader);
        reader.Take(reader.TakeNumber(2));
        result.controls.push_back(std::move(control));
    }
    if (reader.failed()) return {};
    return result;
}
