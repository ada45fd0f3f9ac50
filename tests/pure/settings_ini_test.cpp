#include "pages/stores/settings_ini.h"

#include <gtest/gtest.h>

namespace {

// A character a byte; UTF-8 shows by a mark in front.
std::wstring Decode(unsigned codePage, std::string_view bytes) {
    std::wstring text = codePage == kUtf8CodePage && !bytes.empty() ? L"~" : L"";
    for (const char c : bytes) text += static_cast<wchar_t>(static_cast<unsigned char>(c));
    return text;
}

SettingsIni Parse(std::string_view text) {
    return ParseSettingsIni({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                            Decode);
}

using Pairs = std::vector<SettingsIniSection::Pair>;

TEST(SettingsIni, ReadsLinesAsPairsOrSkipsThem) {
    using namespace std::string_literals;
    const std::string full(kLongestIniLine - 4, 'x');
    const std::wstring wideFull(kLongestIniLine - 4, L'x');
    const std::pair<std::string, Pairs> cases[] = {
        {"key=value", {{L"key", L"value"}}},
        {"  key = value \t\r\n", {{L"key ", L" value"}}},
        {"ab=c\nab=d\n", {{L"ab", L"c"}, {L"ab", L"d"}}},
        {"key=a=b\rc", {{L"key", L"a=b\rc"}}},
        {"key=", {{L"key", L""}}},
        // Too short, nothing before the sign, no sign, a comment.
        {"a=b\n[a]\nabc\n=value\nvalue\n;key=value\n", {}},
        {"[open=1\n", {{L"[open", L"1"}}},
        {"one=1\0two=2\nthree=3\n"s, {{L"one", L"1"}, {L"three", L"3"}}},
        // A full line and its rest, which is a line of its own.
        {"key=" + full + "more=1\n", {{L"key", wideFull}, {L"more", L"1"}}},
        // UTF-8 behind a mark of the value's own; the file's mark is none.
        {"key=\xEF\xBB\xBF\xC3\xA4", {{L"key", L"~\xC3\xA4"}}},
        {"key=\xEF\xBB\xBF", {{L"key", L""}}},
        {"key=\xC3\xA4\xEF\xBB\xBF", {{L"key", L"\xC3\xA4\xEF\xBB\xBF"}}},
        {"\xEF\xBB\xBF[Name]\nkey=1\n", {{L"key", L"1"}}},
        {"key=\xEF\xBB\xBF" + std::string(512, 'x'), {{L"key", L""}}},
    };
    for (const auto& [text, pairs] : cases) {
        const SettingsIni file = Parse(text);
        EXPECT_EQ(file.top.pairs, pairs) << text;
        EXPECT_TRUE(file.sections.empty()) << text;
    }
}

TEST(SettingsIni, KeepsSectionsInOrderAndFindsTheFirst) {
    const SettingsIni file = Parse(
        "top=1\n[Settings]\nFlag=fAlSe\nflag=TRUE\nFlag=TRUE\nOdd=yes\n[Service.a]\n"
        "[Settings]\nFlag=TRUE\n[ other ]\n");
    ASSERT_EQ(file.sections.size(), 4u);
    EXPECT_EQ(file.top.pairs, (Pairs{{L"top", L"1"}}));
    EXPECT_EQ(file.sections[3].name, L" other ");
    const SettingsIniSection* settings = file.FindSection(L"Settings");
    ASSERT_EQ(settings, &file.sections[0]);
    EXPECT_EQ(settings->FindBoolean(L"Flag"), false);
    EXPECT_EQ(settings->FindBoolean(L"flag"), true);
    EXPECT_EQ(settings->FindBoolean(L"Odd"), std::nullopt);
    EXPECT_EQ(settings->FindBoolean(L"FLAG"), std::nullopt);
    EXPECT_EQ(file.FindSection(L"settings"), nullptr);
}

}  // namespace
