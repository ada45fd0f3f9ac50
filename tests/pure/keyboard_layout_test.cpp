#include "settings/keyboard_layout.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyboardLayout, ParsesItsText) {
    const std::wstring longest(123, L'a');
    const std::pair<std::wstring, std::optional<KeyboardLayout>> cases[] = {
        {L"labc(abc)def(def)", {{false, {{L"abc", L"abc"}, {L"def", L"def"}}}}},
        {L"rabc(abcx) d(e) ", {{true, {{L"abc", L"abcx"}, {L"d", L"e"}}}}},
        {L"Ra(b)", {{false, {{L"a", L"b"}}}}},  // Only a small r is the direction.
        {L"l\xD800(\xDC00\xD800)", {{false, {{L"\xD800", L"\xDC00\xD800"}}}}},
        {L"l" + longest + L"(b)", {{false, {{longest, L"b"}}}}},
        {L"la" + longest + L"(b)", {}},
        {L"l" + std::wstring(10000, L'('), {}},
    };
    for (const auto& [text, layout] : cases) {
        EXPECT_TRUE(KeyboardLayout::Parse(text) == layout) << testing::PrintToString(text);
    }
    for (const wchar_t* const none : {L"labc(abc) def (def)", L"l a(b)", L"labc()", L"l(abc)",
                                      L"labc(a(bc)", L"labc(abc", L"labc)abc(", L"la(b)c", L""}) {
        EXPECT_FALSE(KeyboardLayout::Parse(none)) << testing::PrintToString(none);
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
