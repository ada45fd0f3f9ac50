#include "app/language/language_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/language/language_index.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using Entries = std::vector<LanguageEntry>;

Bytes Utf16(std::wstring_view text) {
    Bytes bytes = {0xFF, 0xFE};
    for (const wchar_t c : text) {
        bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(c >> 8 & 0xFF));
    }
    return bytes;
}

Bytes EightBit(std::string_view text) { return {text.begin(), text.end()}; }

// Readable failures: "source=translation;" for each entry.
std::string Shown(const Entries& entries) {
    std::string shown;
    const auto append = [&shown](const std::wstring& text) {
        for (const wchar_t c : text) {
            shown += c >= ' ' && c < 0x7F ? std::string(1, static_cast<char>(c))
                                          : "{" + std::to_string(static_cast<unsigned>(c)) + "}";
        }
    };
    for (const LanguageEntry& entry : entries) {
        append(entry.source);
        shown += '=';
        append(entry.translation);
        shown += ';';
    }
    return shown;
}

TEST(LanguageFile, ReadsLinesFieldsAndEscapes) {
    using namespace std::string_view_literals;
    const std::pair<std::wstring_view, std::string> cases[] = {
        {L"", ""},
        {L"Cancel|Abbrechen", "Cancel=Abbrechen;"},
        {L"a|b\r\nc|d\r\n", "a=b;c=d;"},
        {L"a|b\rc|d\r", "a=b;c=d;"},
        {L"a|b\nc|d\n", "a=b;c=d;"},
        {L"\r\n\r\na|b\r\n\r\n\r\nc|d", "a=b;c=d;"},
        {L"$$$$$$$$ NEW FILE $$$$$$$\r\na|\r\nb|\r\n", "$$$$$$$$ NEW FILE $$$$$$$=;a=;b=;"},
        // Without a bar a line ends all the same.
        {L"alone\r\na|b", "alone=;a=b;"},
        {L"alone\na|b", "alone=;a=b;"},
        {L"alone\ra|b", "alone=;a=b;"},
        {L"alone", "alone=;"},
        // Behind a second bar the next entry begins.
        {L"a|b|c|d\r\ne|f", "a=b;c=d;e=f;"},
        {L"a|b|\r\nc|d", "a=b;c=d;"},
        {L"a||b|c", "a=;b=c;"},
        {L"|x\r\ny|z", "x=;y=z;"},
        // Escapes.
        {L"1\\n2|eins\\nzwei", "1{10}2=eins{10}zwei;"},
        {L"a\\r\\nb|c", "a{13}{10}b=c;"},
        {L"a\\|b|c\\|d", "a|b=c|d;"},
        {L"\\\\|\\\\n", "\\=\\n;"},
        {L"\\t\\N\\'|x", "tN'=x;"},
        {L"a\\\nb|c\\\rd\ne|f", "a{10}b=c{13}d;e=f;"},
        // A backslash with nothing behind it is nothing.
        {L"a|b\\", "a=b;"},
        {L"a\\", "a=;"},
        {L"\\", ""},
        // The text ends at a NUL, escaped or not.
        {L"a|b\0c|d\ne|f"sv, "a=b;"},
        {L"a|b\\\0c"sv, "a=b;"},
        {L"\0a|b"sv, ""},
        {L"a|b\n\0c|d"sv, "a=b;"},
        // Units above the 8-bit range, halves of pairs among them, are characters like others.
        {L"\x0410|\xD83D\xDE00\x017C"
         L"0\xD83D",
         "{1040}={55357}{56832}{380}0{55357};"},
        {L"\xFF7C|\x0A0D\x0D0A", "{65404}={2573}{3338};"},
    };
    for (const auto& [text, entries] : cases) {
        EXPECT_EQ(Shown(ParseLanguageFile(Utf16(text))), entries) << entries;
    }
}

TEST(LanguageFile, ReadsBytesWithoutMarkAsCharacters) {
    using namespace std::string_view_literals;
    const std::pair<std::string_view, std::string> cases[] = {
        {"Cancel|Abbrechen\r\nOK|Gut\r\n", "Cancel=Abbrechen;OK=Gut;"},
        {"caf\xE9|\x80\xFF", "caf{233}={128}{255};"},
        {"\xC3\xA9|x", "{195}{169}=x;"},
        // Entries that can never match are kept.
        {"|x\n\ny|z", "=;x=;y=z;"},
        {"a|b\n\n\n\nc|d", "a=b;=;c=d;"},
        {"\n", "=;"},
        // UTF-16 without or with the other mark ends at its first high byte of 0.
        {"C\0a\0|\0A\0"sv, "C=;"},
        {"\xFE\xFF\0C\0|\0A"sv, "{254}{255}=;"},
        // Too short for a mark.
        {"a", "a=;"},
        {"\xFF", "{255}=;"},
        {"", ""},
    };
    for (const auto& [bytes, entries] : cases) {
        EXPECT_EQ(Shown(ParseLanguageFile(EightBit(bytes))), entries) << entries;
    }
}

// A line has room for 4094 characters; what stands behind them is a line of its own.
TEST(LanguageFile, CutsLongLines) {
    const auto x = [](std::size_t count) { return std::wstring(count, L'x'); };
    struct Case {
        std::wstring text;
        Entries entries;
    };
    const Case cases[] = {
        {x(4092) + L"|t", {{x(4092), L"t"}}},
        {x(4092) + L"|tu", {{x(4092), L"t"}, {L"u", L""}}},
        {x(4093) + L"|t", {{x(4093), L""}, {L"t", L""}}},
        {x(4094) + L"|t", {{x(4094), L""}, {L"t", L""}}},
        {L"s|" + x(5000) + L"\nnext|t", {{L"s", x(4092)}, {x(908), L""}, {L"next", L"t"}}},
        {x(10000) + L"|t\na|b", {{x(4094), L""}, {x(4094), L""}, {x(1812), L"t"}, {L"a", L"b"}}},
        // Escapes take their room as they are written.
        {x(4092) + L"\\n|t", {{x(4092) + L"\n", L""}, {L"t", L""}}},
        {x(4093) + L"\\n|t", {{x(4093), L""}, {L"n", L"t"}}},
        // A line break that the end of the room divides.
        {x(4093) + L"\r\na|b", {{x(4093), L""}, {L"a", L"b"}}},
        {x(4094) + L"\r\na|b", {{x(4094), L""}, {L"a", L"b"}}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ParseLanguageFile(Utf16(c.text)), c.entries) << Shown(c.entries);
    }
    // The room begins anew with each line.
    const std::wstring line = x(4000) + L"|y\r\n";
    EXPECT_EQ(ParseLanguageFile(Utf16(line + line)), (Entries{{x(4000), L"y"}, {x(4000), L"y"}}));
}

TEST(LanguageFile, TemplateListsTextsWithoutTranslations) {
    const std::wstring texts[] = {L"Cancel", L"Two\nlines", L"a|b\\"};
    const std::wstring file = LanguageTemplateText(texts);
    EXPECT_EQ(file, L"$$$$$$$$ NEW FILE $$$$$$$\r\nCancel|\r\nTwo\\nlines|\r\na\\|b\\\\|\r\n");
    EXPECT_EQ(Shown(ParseLanguageFile(Utf16(file))),
              "$$$$$$$$ NEW FILE $$$$$$$=;Cancel=;Two{10}lines=;a|b\\=;");
}

TEST(LanguageIndex, FindsWhatASearchFromTheFrontFinds) {
    const LanguageIndex index({
        {L"Cancel", L"Abbrechen"},
        {L"Cancel", L"Verwerfen"},
        {L"Calendar", L""},
        {L"Calendar", L"Kalender"},  // hidden by the pair before it
        {L"", L"nothing"},
        {L"Name", L"Name"},
        {L"Two\nlines", L"Zwei\nZeilen"},
    });
    const auto found = [&index](const wchar_t* source) {
        const std::wstring* translation = index.Find(source);
        return translation ? *translation : L"(none)";
    };
    EXPECT_EQ(found(L"Cancel"), L"Abbrechen");
    EXPECT_EQ(found(L"Calendar"), L"(none)");
    EXPECT_EQ(found(L"Two\nlines"), L"Zwei\nZeilen");
    for (const wchar_t* source : {L"", L"Name", L"cancel", L"Cance", L"Cancel ", L"Abbrechen"}) {
        EXPECT_EQ(found(source), L"(none)") << source;
    }
    EXPECT_EQ(LanguageIndex().Find(L"Cancel"), nullptr);
}

TEST(LanguageIndex, KeepsItsTextsWhenMoved) {
    LanguageIndex first({{L"a", L"b"}, {L"c", L"d"}});
    LanguageIndex second;
    second = std::move(first);
    first = LanguageIndex(std::vector<LanguageEntry>{{L"a", L"x"}});
    ASSERT_NE(second.Find(L"a"), nullptr);
    EXPECT_EQ(*second.Find(L"a"), L"b");
    EXPECT_EQ(*first.Find(L"a"), L"x");
}

}  // namespace
