// Short texts and their parts.
#include <gtest/gtest.h>

#include "app/command_line.h"
#include "appearance/categories/file_name_escape.h"
#include "appearance/drawing/note_label.h"
#include "base/fill_in.h"
#include "settings/contact_name.h"
#include "settings/date_picture.h"
#include "settings/display_pattern.h"
#include "settings/hidden_names.h"
#include "settings/keyboard_layout.h"
#include "settings/tab_layout.h"
#include "settings/title_fields.h"

namespace {

TEST(CommandLine, ListsTheSheetsToOpen) {
    const std::pair<std::wstring, std::vector<OpenRequest>> cases[] = {
        {L"", {}},
        {L"-P1:3", {{1, 3}}},
        {L"-p0:0", {{0, 0}}},
        {L"-P 1:3", {{1, 3}}},
        {L"-P\t 1:\r9", {{1, 9}}},
        {L"-P1:3 -p7:0", {{1, 3}, {7, 0}}},
        {L"-P+1:-3", {{1, -3}}},
        {L"-P-1:2", {{-1, 2}}},
        {L"-P007:010", {{7, 10}}},
        {L"-P1:2x", {{1, 2}}},
        {L"open -P1:2 please", {{1, 2}}},
        {L"--P1:2", {{1, 2}}},
        {L"-P1:2147483647", {{1, 2147483647}}},
        // What is wrong does not hide what follows it.
        {L"-P1: -P2:4", {{2, 4}}},
        {L"-P-P3:5", {{3, 5}}},
    };
    for (const auto& [text, requests] : cases) {
        EXPECT_EQ(ParseCommandLine(text), requests) << testing::PrintToString(text);
    }
    for (const wchar_t* const none :
         {L"P1:3", L"/P1:3", L"- P1:3", L"-Q1:3", L"-", L"-P", L"-P:", L"-P1", L"-P1:", L"-P1: ",
          L"-P:2", L"-P1 :2", L"-P1;2", L"-P1:x", L"-P+-1:2", L"-P- 1:2", L"-P\x0661:2",
          L"-P1:2147483648", L"-P99999999999999999999999999:1"}) {
        EXPECT_TRUE(ParseCommandLine(none).empty()) << testing::PrintToString(none);
    }
}

TEST(DisplayPattern, ParsesAndPrintsTheNormalForm) {
    struct {
        std::wstring text, before;
        std::int32_t mode;
        std::wstring after, printed;
    } const cases[] = {
        {L"p3nqrsc", L"p", 3, L"nqrsc", L"p3nqrsc"},
        {L"c1n", L"c", 1, L"n", L"c1n"},
        {L"0abc", L"", 0, L"abc", L"0abc"},
        {L"abc9", L"abc", 9, L"", L"abc9"},
        {L"5", L"", 5, L"", L"5"},
        // Without a digit the mode stays.
        {L"", L"", 7, L"", L"7"},
        {L"abc", L"", 7, L"abc", L"7abc"},
        // Of two digits the last one counts, with the letters between them.
        {L"a1b2c", L"b", 2, L"c", L"b2c"},
        {L"a12c", L"", 2, L"c", L"2c"},
        {L"123", L"", 3, L"", L"3"},
        // Only 0 to 9 are digits; anything else is a letter.
        {L"-1 \x0661\xFF13/:", L"-", 1, L" \x0661\xFF13/:", L"-1 \x0661\xFF13/:"},
    };
    for (const auto& c : cases) {
        DisplayPattern pattern{L"old", 7, L"old"};
        pattern.Parse(c.text);
        EXPECT_EQ(pattern, (DisplayPattern{c.before, c.mode, c.after})) << c.printed.c_str();
        EXPECT_EQ(pattern.Format(), c.printed);
    }
}

TEST(FileNameEscape, KeepsEveryName) {
    EXPECT_EQ(EscapeFileName(L"Work/Home"), L"Work%CHome");
    EXPECT_EQ(EscapeFileName(L"%\\/:*?\"<>|"), L"%A%B%C%D%E%F%G%H%I%J");
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"a%Bb", L"a\\b"}, {L"a%K%", L"a%K%"}, {L"%%A", L"%%"},
        {L"%a%@", L"%a%@"}, {L"%AB", L"%B"},    {L"%J", L"|"}};
    for (const auto& [escaped, name] : cases) {
        EXPECT_EQ(UnescapeFileName(escaped), name);
    }
}

TEST(FillIn, ReplacesWhatIsThereAndLeavesWrongTextsAlone) {
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"From %d to %s.", L"From 7 to %d%n."},
        {L"%d%s", L"7%d%n"},
        {L"100 % %%d %d%%%s%", L"100 % %d 7%%d%n%"},
    };
    for (const auto& [text, filled] : cases) {
        EXPECT_EQ(FillIn(text, {7, L"%d%n"}), filled) << std::string(text.begin(), text.end());
    }
    // A translation with other placeholders shows as it is.
    for (const wchar_t* const other :
         {L"%s to %d", L"%s to %s", L"only %d", L"%d to %s and %s", L"%d %n %s", L"%5d to %ls",
          L"%d%a%s", L"%d%z%s", L"%d%A%s", L"%d%Z%s", L""}) {
        EXPECT_EQ(FillIn(other, {7, L"%d%n"}), other);
    }
}

TEST(HiddenNames, SplitAndJoin) {
    using Names = std::vector<std::wstring>;
    EXPECT_EQ(SplitHiddenNames(L""), Names{});
    EXPECT_EQ(SplitHiddenNames(L"a||b"), (Names{L"a", L"", L"b"}));
    EXPECT_EQ(SplitHiddenNames(L"|"), (Names{L"", L""}));
    for (const wchar_t* const stored : {L"", L"a", L"a||b", L"|a|"}) {
        EXPECT_EQ(JoinHiddenNames(SplitHiddenNames(stored)), stored);
    }
}

TEST(TabLayout, OrderOfAnyText) {
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"", L"123456"},
        {L"654321", L"654321"},
        {L"3", L"312456"},
        {L"754321", L"154326"},  // No tab 7: the first place stays, and so does its tab.
        {L"112233", L"123456"},
        {L"2,1", L"213456"},  // What stands for no tab still takes a place.
        {L"x\xFFFF\x0661 6", L"123465"},
        {L"6543210987", L"654321"},
        {std::wstring(5000, L'4'), L"412356"},
    };
    for (const auto& [stored, order] : cases) {
        EXPECT_EQ(TabLayout::Parse(0xFFFFFFFF, stored).Sequence(), order)
            << testing::PrintToString(stored.substr(0, 20));
    }
}

TEST(TabLayout, ShownTabsAndTheirHeight) {
    EXPECT_EQ(TabLayout::Parse(0, L"").shown, 0xFFFFFFE0u)
        << "the calendar, where nothing is shown";
    EXPECT_EQ(TabLayout::Parse(0xFFFFFFC0, L"").shown, 0xFFFFFFE0u);
    EXPECT_EQ(TabLayout::Parse(0x01, L"").shown, 0xFFFFFFC1u);
    EXPECT_EQ(SmallestHeight(0xFFFFFFFF, false), 120);
    EXPECT_EQ(SmallestHeight(0xFFFFFFCF, false), 80);
    EXPECT_EQ(SmallestHeight(0xFFFFFFC3, false), 60);
    EXPECT_EQ(SmallestHeight(0xFFFFFFFF, true), 60);
}

TEST(ContactName, InEveryMode) {
    // Title, first, middle and last name, suffix, nickname, file as, company.
    const std::pair<ContactRecord, std::array<std::wstring, 4>> cases[] = {
        {{L"Dr.", L"Ann", L"B.", L"Cole", L"Jr.", L"Annie", L"Cole, Ann", L"Mill", {}},
         {L"Ann B. Cole Jr.", L"Cole, Ann B.", L"Cole, Ann", L"Dr. Ann \"Annie\" B. Cole Jr."}},
        {{L"", L"", L"B.", L"Cole", L"", L"Annie", L"", L"", {}},
         {L"B. Cole", L"Cole", L"B. Cole", L"Annie B. Cole"}},
        {{L"", L"", L"B.", L"", L"", L"", L"Filed", L"Mill", {}},
         {L"B.", L"Mill", L"Filed", L"B."}},
        {{}, {}}};
    for (const auto& [given, names] : cases) {
        ContactRecord record = given;
        for (int mode = 3; mode >= 0; --mode) {
            EXPECT_EQ(FormatContactName(record, mode), names[static_cast<std::size_t>(mode)])
                << mode;
        }
        EXPECT_EQ(FormatContactName(record, -1), names[0]);
        EXPECT_EQ(FormatContactName(record, 4), names[0]);
    }
}

TEST(ContactName, NamesAreMadeOnce) {
    ContactRecord record = {L"", L"Ann", L"", L"Cole", L"", L"", L"", L"", {}};
    EXPECT_EQ(FormatContactName(record, 0), L"Ann Cole");
    record.firstName = L"Bob";
    EXPECT_EQ(FormatContactName(record, 0), L"Ann Cole");

    PreviewedContact contact({L"", L"Ann", L"", L"Cole", L"", L"Annie", L"Filed", L"", {}});
    EXPECT_EQ(contact.Name(1), L"Cole, Ann");
    EXPECT_EQ(contact.AlternativeName(1), L"Filed");
    EXPECT_EQ(contact.Name(2), L"Cole, Ann");
    EXPECT_EQ(contact.Name(2, true), L"Filed");
    EXPECT_EQ(contact.AlternativeName(2), L"Cole, Ann");
    EXPECT_EQ(contact.AlternativeName(0, true), L"Filed");
    for (const int unknown : {-1, 4}) {
        EXPECT_EQ(contact.AlternativeName(3, true), L"Ann \"Annie\" Cole");
        EXPECT_EQ(contact.AlternativeName(unknown, true), L"Filed");
    }
}

TEST(DatePicture, LeavesOutTheYearAndShortensNames) {
    constexpr DatePictureFlags kUsual{false, true, true, true};
    constexpr DatePictureFlags kOnlyYear{};
    const std::tuple<std::wstring, DatePictureFlags, std::wstring> cases[] = {
        {L"dddd, MMMM d yyyy", kUsual, L"ddd, MMM d"},
        {L"d MMMM yyyy", {true, true, true, false}, L"d MMM yy"},
        {L"dddd, MMMM dd, yyyy", kUsual, L"ddd, MMM dd"},                                // en-US
        {L"dd MMMM yyyy", kUsual, L"dd MMM"},                                            // en-GB
        {L"dddd, d. MMMM yyyy", kUsual, L"ddd, d. MMM"},                                 // de-DE
        {L"dddd d MMMM yyyy", kUsual, L"ddd d MMM"},                                     // fr-FR
        {L"d MMMM yyyy '\x433.'", kUsual, L"d MMM"},                                     // ru-RU
        {L"yyyy'\x5E74'M'\x6708'd'\x65E5'", kUsual, L"M'\x6708'd'\x65E5'"},              // ja-JP
        {L"yyyy. MMMM d., dddd", kUsual, L"MMM d., ddd"},                                // hu-HU
        {L"'den 'd MMMM yyyy", kUsual, L"'den 'd MMM"},                                  // sv-SE
        {L"yyyy'\xB144' M'\xC6D4' d'\xC77C' dddd", kUsual, L"M'\xC6D4' d'\xC77C' ddd"},  // ko-KR
        {L"yyyy-MM-dd", kUsual, L"MM-dd"},                             // zh-CN, sv-SE
        {L"dddd, d' de 'MMMM' de 'yyyy", kUsual, L"ddd, d' de 'MMM"},  // pt-BR
        // Between two parts the separator before the second stays, after a space.
        {L"MMMM yyyy, dddd", kOnlyYear, L"MMMM  dddd"},
        {L"dd/yyyy/MM", kOnlyYear, L"dd /MM"},
        {L"d yyyy' of 'MMMM", kOnlyYear, L"d ' of 'MMMM"},
        {L"yyyy", kOnlyYear, L""},
        {L"", kUsual, L""},
        // Quoted letters are text.
        {L"'day' d, 'year' MMMM", kOnlyYear, L"'day' d, 'year' MMMM"},
        {L"d MMMM 'y", kOnlyYear, L"d MMMM 'y"},
        // Only runs of four are shortened; longer ones until none is left.
        {L"ddd MMM yy", {true, true, true, true}, L"ddd MMM yy"},
        {L"yyyyyyyy ddddd", {true, true, true, true}, L"yy ddd"},
        {L"dddd MMMM yyyy", {true, false, false, false}, L"dddd MMMM yyyy"},
    };
    for (const auto& [picture, flags, built] : cases) {
        EXPECT_EQ(BuildDatePicture(picture, flags), built) << testing::PrintToString(picture);
    }
}

TEST(NoteLabel, FitsItsColumn) {
    constexpr std::tuple<std::uint32_t, const wchar_t*, const wchar_t*> kCases[] = {
        {0, L"0B", L"0.00S"},
        {1023, L"1023B", L"1.02S"},
        {1024, L"1.00K", L"1.02S"},
        {1536, L"1.51K", L"1.53S"},
        {10240, L"10.0K", L"10.2S"},
        {59999, L"58.6K", L"59.9S"},
        {90000, L"87.9K", L"1.30M"},
        {102400, L"100K", L"1.42M"},
        {(1u << 20) - 1, L"1023K", L"17.2M"},
        {1u << 20, L"1.00M", L"17.2M"},
        {(5u << 20) + 7, L"5.00M", L"87.2M"},
        {1u << 29, L"512M", L"8947M"},
        {1u << 30, L"1.00G", L"1789M"},
        {0xFFFFFFFF, L"3.10G", L"7158M"}};
    for (const auto& [number, size, duration] : kCases) {
        EXPECT_EQ(NoteSizeLabel(number, L"."), size) << number;
        EXPECT_EQ(RecordingLabel(number, L"."), duration) << number;
    }
    EXPECT_EQ(NoteSizeLabel(1536, L" ,"), L"1 ,51K");
}

std::wstring Letters(const TitleRows& rows) {
    std::wstring text;
    for (const TitleRows::Row& row : rows.rows()) {
        text += row.letter == TitleRows::kSubject ? L'_' : row.letter;
        if (!row.shown) text += L'-';
    }
    return text;
}

TEST(TitleRows, ListFieldsAndGiveThePatternBack) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"p3nqrsc", L"p_nqrsca-"}, {L"n3rqsca", L"n_rqscap-"},    {L"c1n", L"c_np-r-q-s-a-"},
        {L"2", L"_p-n-r-q-s-c-a-"}, {L"xp1yzn", L"p_nr-q-s-c-a-"},  // x, y and z stand for nothing
                                                                    // here.
    };
    for (const auto& [text, listed] : cases) {
        DisplayPattern pattern;
        pattern.Parse(text);
        const TitleRows rows(pattern);
        EXPECT_EQ(Letters(rows), listed);
        EXPECT_EQ(rows.Pattern(pattern.mode).Format(), text);
    }
}

TEST(TitleRows, UnknownLettersStayBehindTheirRow) {
    DisplayPattern pattern;
    pattern.Parse(L"xpw1yzn");
    TitleRows rows(pattern);
    rows.Move(0, 2);
    EXPECT_EQ(rows.Pattern(2).Format(), L"x2yznpw");
    rows.Show(2, false);
    rows.Show(3, true);
    EXPECT_EQ(rows.Pattern(2).Format(), L"x2yznwr");
}

TEST(TitleRows, FieldsComeAndGo) {
    DisplayPattern pattern;
    pattern.Parse(L"np3npz");
    EXPECT_TRUE(ShowsField(pattern, L'p') && !ShowsField(pattern, L'r'));
    ShowField(pattern, L'p', false);
    ShowField(pattern, L'r', true);
    ShowField(pattern, L'n', true);
    EXPECT_EQ(pattern.Format(), L"n3nzr");
}

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
    for (const wchar_t* const name : {L"", L",", L"a,b"}) {
        EXPECT_FALSE(OfferedLayouts::CanBeListed(name));
    }
    EXPECT_TRUE(OfferedLayouts::CanBeListed(L"a b"));
    EXPECT_TRUE(offered.Contains(&a) && offered.Contains(&b) && !offered.Contains(&c));
    offered.Activate(&b);
    EXPECT_EQ(offered.active, 1);
    for (const KeyboardLayout* const other : {&c, static_cast<const KeyboardLayout*>(nullptr)}) {
        offered.Activate(other);
        EXPECT_EQ(offered.active, -1);
    }
}

}  // namespace
