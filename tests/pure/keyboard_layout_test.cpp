#include "settings/keyboard_layout.h"

#include <gtest/gtest.h>

namespace {

using Keys = std::vector<KeyboardLayout::Key>;

TEST(KeyboardLayout, ParsesItsText) {
    const auto group = [](std::size_t letters) {
        return L"l" + std::wstring(letters, L'a') + L"(b)";
    };
    struct Case {
        std::wstring text;
        Keys keys;  // none: invalid
        bool rightToLeft = false;
    };
    for (const Case& c : {
             Case{L"labc(abc)def(def)", {{L"abc", L"abc"}, {L"def", L"def"}}},
             Case{L"rabc(abcx) d(e) ", {{L"abc", L"abcx"}, {L"d", L"e"}}, true},
             Case{L"Ra(b)", {{L"a", L"b"}}},  // Only a small r is the direction.
             Case{L"l\xD800(\xDC00\xD800)", {{L"\xD800", L"\xDC00\xD800"}}},
             Case{group(123), {{std::wstring(123, L'a'), L"b"}}},
             Case{group(124), {}},
             Case{group(10000), {}},
             Case{L"l" + std::wstring(10000, L'('), {}},
             Case{L"labc(abc) def (def)", {}},
             Case{L"labc(abc)  def(def)", {}},
             Case{L"l a(b)", {}},
             Case{L"labc()", {}},
             Case{L"l(abc)", {}},
             Case{L"labc(a(bc)", {}},
             Case{L"labc(abc))", {}},
             Case{L"labc(abc", {}},
             Case{L"labc)abc(", {}},
             Case{L"la(b)c", {}},
             Case{L"l", {}},
             Case{L"", {}},
         }) {
        const std::optional<KeyboardLayout> layout = KeyboardLayout::Parse(c.text);
        ASSERT_EQ(layout.has_value(), !c.keys.empty()) << testing::PrintToString(c.text);
        if (!layout) continue;
        EXPECT_EQ(layout->keys, c.keys);
        EXPECT_EQ(layout->rightToLeft, c.rightToLeft) << testing::PrintToString(c.text);
    }
}

TEST(OfferedLayouts, UnknownPiecesShiftTheActivePosition) {
    const KeyboardLayout latin, greek;
    struct Case {
        std::wstring names;
        std::int32_t active;
        std::vector<const KeyboardLayout*> layouts;
        std::int32_t shifted;
        const KeyboardLayout* chosen;
    };
    for (const Case& c : {
             Case{L"Latin,Foo,Greek", 2, {&latin, &greek}, 1, &greek},
             Case{L"Latin,Greek,Foo", 0, {&latin, &greek}, -1, nullptr},
             Case{L"Greek,", 0, {&greek}, 0, &greek},
             Case{L",,Greek", 2, {&greek}, 0, &greek},
             Case{L"Latin,Latin", 7, {&latin, &latin}, 7, nullptr},
             Case{L"", 0, {}, 0, nullptr},
             Case{L",", INT32_MIN, {}, INT32_MAX, nullptr},
         }) {
        const OfferedLayouts offered =
            OfferedLayouts::Parse(c.names, c.active, [&](const std::wstring& name) {
                return name == L"Latin" ? &latin : name == L"Greek" ? &greek : nullptr;
            });
        EXPECT_EQ(offered.layouts, c.layouts) << testing::PrintToString(c.names);
        EXPECT_EQ(offered.active, c.shifted) << testing::PrintToString(c.names);
        EXPECT_EQ(offered.Active(), c.chosen) << testing::PrintToString(c.names);
    }
}

}  // namespace
