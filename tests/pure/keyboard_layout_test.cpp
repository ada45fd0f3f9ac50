#include "settings/keyboard_layout.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyboardLayout, ParsesItsText) {
    const std::wstring longest(123, L'a');
    struct Case {
        std::wstring text;
        std::optional<KeyboardLayout> layout;
    };
    for (const Case& c : {
             Case{L"labc(abc)def(def)", {{false, {{L"abc", L"abc"}, {L"def", L"def"}}}}},
             Case{L"rabc(abcx) d(e) ", {{true, {{L"abc", L"abcx"}, {L"d", L"e"}}}}},
             Case{L"Ra(b)", {{false, {{L"a", L"b"}}}}},  // Only a small r is the direction.
             Case{L"l\xD800(\xDC00\xD800)", {{false, {{L"\xD800", L"\xDC00\xD800"}}}}},
             Case{L"l" + longest + L"(b)", {{false, {{longest, L"b"}}}}},
             Case{L"la" + longest + L"(b)", {}},
             Case{L"l" + std::wstring(10000, L'('), {}},
             Case{L"labc(abc) def (def)", {}},
             Case{L"l a(b)", {}},
             Case{L"labc()", {}},
             Case{L"l(abc)", {}},
             Case{L"labc(a(bc)", {}},
             Case{L"labc(abc", {}},
             Case{L"labc)abc(", {}},
             Case{L"la(b)c", {}},
             Case{L"", {}},
         }) {
        EXPECT_TRUE(KeyboardLayout::Parse(c.text) == c.layout) << testing::PrintToString(c.text);
    }
}

TEST(OfferedLayouts, UnknownPiecesShiftTheActivePosition) {
    const KeyboardLayout a, b;
    const auto parse = [&](const wchar_t* names, std::int32_t active) {
        return OfferedLayouts::Parse(names, active, [&](const std::wstring& name) {
            return name == L"a" ? &a : name == L"b" ? &b : nullptr;
        });
    };
    EXPECT_EQ(parse(L"a,x,b", 2).layouts, (std::vector{&a, &b}));
    EXPECT_EQ(parse(L"a,x,b", 2).Active(), &b);
    EXPECT_EQ(parse(L"a,b,x", 0).active, -1);
    EXPECT_EQ(parse(L",,b,", 2).active, 0);
    EXPECT_EQ(parse(L"a", 7).Active(), nullptr);
    EXPECT_EQ(parse(L",", INT32_MIN).active, INT32_MAX);
}

TEST(OfferedLayouts, ActivatesWhatItHas) {
    const KeyboardLayout a, b, c;
    OfferedLayouts offered = {{&a, &b}, 0};
    EXPECT_TRUE(offered.Contains(&a) && offered.Contains(&b) && !offered.Contains(&c));
    offered.Activate(&b);
    EXPECT_EQ(offered.active, 1);
    for (const KeyboardLayout* const other : {&c, static_cast<const KeyboardLayout*>(nullptr)}) {
        offered.Activate(other);
        EXPECT_EQ(offered.active, -1);
    }
}

}  // namespace
