#include "app/language/dialog_init.h"
#include "base/dialog_template.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Target = DialogInitRecord::Target;

// One record: control 0x0C80, `message`, "Hi".
Bytes Hi(std::uint16_t message) {
    const auto low = static_cast<std::uint8_t>(message & 0xFF);
    const auto high = static_cast<std::uint8_t>(message >> 8);
    return {0x80, 0x0C, low, high, 6, 0, 0, 0, 'H', 0, 'i', 0, 0, 0};
}

Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

const Bytes kEnd = {0, 0};

TEST(DialogInit, MessagesTellTheKindOfList) {
    constexpr std::pair<std::uint16_t, Target> kMessages[] = {
        {0x0403, Target::kComboBox}, {0x0143, Target::kComboBox}, {0x0401, Target::kListBox},
        {0x0180, Target::kListBox},  {0x1234, Target::kNone},     {0x0000, Target::kNone},
        {0x4301, Target::kNone}};
    for (const auto& [message, target] : kMessages) {
        const std::vector<DialogInitRecord> records = ParseDialogInit(Hi(message) + kEnd);
        ASSERT_EQ(records.size(), 1u) << message;
        EXPECT_EQ(records[0].controlId, 0x0C80);
        EXPECT_EQ(records[0].target, target) << message;
        EXPECT_EQ(records[0].text, target == Target::kNone ? L"" : L"Hi");
    }
}

TEST(DialogInit, TextEndsAtItsTerminatorOrItsData) {
    const std::pair<Bytes, std::wstring> cases[] = {
        {{}, L""},
        {{0, 0}, L""},
        {{'a', 0, 0, 0, 'b', 0}, L"a"},
        {{'a', 0, 'b', 0}, L"ab"},
        {{'a', 0, 'b'}, L"a"},
        {{0x10, 0x04, 0x3D, 0xD8, 0x00, 0xDE}, L"\x0410\xD83D\xDE00"}};
    for (const auto& [data, text] : cases) {
        const Bytes head = {1, 0, 0x43, 0x01, static_cast<std::uint8_t>(data.size()), 0, 0, 0};
        const std::vector<DialogInitRecord> records = ParseDialogInit(head + data + Hi(0x143));
        ASSERT_EQ(records.size(), 2u);
        EXPECT_EQ(records[0].text, text);
        EXPECT_EQ(records[1].text, L"Hi");
    }
}

TEST(DialogTemplate, HasItsControls) {
    // In units of 16 bits, a line each: the dialog, its font, two controls, the second padded.
    const std::vector<std::uint16_t> units = {
        1,      0xFFFF, 0,   0,   0, 0,      0x40, 0x8000, 2,      0,      0, 160,
        0xFFFF, 0,      0,   'T', 0,  //
        8,      400,    1,   'A', 0,  //
        0,      0,      2,   0,   3, 0x5000, 4,    0xFFFC, 100,    12,     7, 1,
        0xFFFF, 0x80,   'H', 0,   2, 9,      0,    0,      0,      0,      0, 0,
        0,      0,      0,   0,   8, 0,      'B',  0,      0xFFFF, 0xBEEF, 0};
    const auto bytesOf = [](std::vector<std::uint16_t> of) {
        const auto* const first = reinterpret_cast<const std::uint8_t*>(of.data());
        return Bytes(first, first + 2 * of.size());
    };
    const Bytes bytes = bytesOf(units);
    const std::optional<DialogTemplate> dialog = ParseDialogTemplate(bytes);
    ASSERT_TRUE(dialog && dialog->controls.size() == 2);
    EXPECT_TRUE(dialog->width == 160 && dialog->height == -1 && dialog->caption == L"T");
    const DialogTemplate::Control &first = dialog->controls[0], &second = dialog->controls[1];
    EXPECT_TRUE(first.extendedStyle == 2 && first.style == 0x50000003 && first.id == 0x10007);
    EXPECT_TRUE(first.x == 4 && first.y == -4 && first.width == 100 && first.height == 12);
    EXPECT_TRUE(first.className == L"#0080" && first.text == L"H");
    EXPECT_TRUE(second.id == 8 && second.className == L"B" && second.text == L"#BEEF");
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(ParseDialogTemplate(Bytes(bytes.begin(), bytes.begin() + size))) << size;
    }
    std::vector<std::uint16_t> other = units;
    other[0] = 2;
    EXPECT_FALSE(ParseDialogTemplate(bytesOf(other))) << "of another form";
}

TEST(DialogInit, ControlZeroOrACutRecordEndsTheList) {
    EXPECT_EQ(ParseDialogInit(Hi(0x143) + kEnd + Hi(0x143)).size(), 1u);
    EXPECT_TRUE(ParseDialogInit(kEnd).empty());
    const Bytes whole = Hi(0x143) + Hi(0x180);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        // A copy, so that a read past its end is seen.
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(ParseDialogInit(cut).size(), size / Hi(0x143).size()) << size;
    }
    // Sizes that would wrap a 32-bit position.
    for (const std::uint8_t high : {0x7F, 0x80, 0xFF}) {
        EXPECT_TRUE(ParseDialogInit(Bytes{1, 0, 0x43, 1, 0xF8, 0xFF, 0xFF, high, 'a', 0}).empty());
    }
}

}  // namespace
