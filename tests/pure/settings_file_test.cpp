#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include <cstring>

#include "settings/catalogue.h"
#include "settings/settings_file_facts.h"
#include "settings/settings_file_search.h"

namespace {

// Notes what it is given as text.
struct Notes : SettingsSink {
    std::string text;
    std::size_t refuseAfter = 1000000;

    bool Note(const std::string& line) {
        text += line + ";";
        return text.size() < refuseAfter;
    }
    // Other than ASCII by its number.
    static std::string Narrow(const std::wstring& wide) {
        std::string text;
        for (const wchar_t c : wide) {
            text += c < 0x80 ? std::string(1, static_cast<char>(c)) : "\\" + std::to_string(c);
        }
        return text;
    }

    bool OpenRoot(std::uint32_t root, const std::wstring& path) override {
        return Note("root " + std::to_string(root) + " " + Narrow(path));
    }
    bool EnterKey(const std::wstring& name) override { return Note("{" + Narrow(name)); }
    void LeaveKey() override { Note("}"); }
    bool PutText(const std::wstring& name, const std::wstring& value) override {
        return Note(Narrow(name) + "=" + Narrow(value));
    }
    bool PutNumber(const std::wstring& name, std::uint32_t number) override {
        return Note(Narrow(name) + "=#" + std::to_string(number));
    }
    bool PutBinary(const std::wstring& name, std::span<const std::uint8_t> bytes) override {
        return Note(Narrow(name) + "=" + std::to_string(bytes.size()) + " bytes");
    }
};

using Bytes = std::vector<std::uint8_t>;
using std::string_literals::operator""s;

// A file of numbers, each of four bytes, and of short pieces of text that come as they are.
Bytes File(std::initializer_list<std::uint32_t> numbers) {
    Bytes bytes;
    for (const std::uint32_t number : numbers) {
        for (int shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<std::uint8_t>(number >> shift));
        }
    }
    return bytes;
}
// Two UTF-16 units in a number.
constexpr std::uint32_t Two(char16_t first, char16_t second) {
    return first | std::uint32_t{second} << 16;
}

// The key "\S" of a root: "On" is 258, the value without a name a text, "Bn" in "Sb" four bytes.
constexpr std::uint32_t kS = Two('\\', 'S'), kOn = Two('O', 'n'), kH = Two('h', 0x2026),
                        kSb = Two('S', 'b'), kBn = Two('B', 'n');
const Bytes kGolden =
    File({0, kLocalMachine, 4, kS, 2,   0, 4, 4,          kOn, 4, 258, 4, 0, 1, 4, kH, 2,
          4, kSb,           4, 4,  kBn, 3, 4, 0xFFFFFFFF, 3,   3, 1});

TEST(SettingsFile, WritesAndReadsTheSameBytes) {
    SettingsFileWriter writer;
    writer.Begin(kLocalMachine, L"\\S");
    writer.BeginKey(L"");
    writer.Number(L"On", 258);
    writer.Text(L"", L"h\x2026");
    writer.BeginKey(L"Sb");
    writer.Binary(L"Bn", Bytes(4, 0xFF));
    writer.EndKey();
    writer.EndKey();
    writer.End();
    EXPECT_EQ(writer.bytes, kGolden);

    Notes notes;
    EXPECT_TRUE(ReadSettingsFile(kGolden, notes));
    EXPECT_EQ(notes.text, "root 2147483650 \\S;{;On=#258;=h\\8230;{Sb;Bn=4 bytes;};};");
}

struct Case {
    const char* what;
    Bytes file;
    bool read;
    std::string seen;
};

void ExpectSeen(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        Notes notes;
        EXPECT_EQ(ReadSettingsFile(c.file, notes), c.read) << c.what;
        EXPECT_EQ(notes.text, c.seen) << c.what;
    }
}

TEST(SettingsFile, KeepsWhatStandsBeforeAFault) {
    ExpectSeen({
        {"empty", {}, false, ""},
        {"wrong first tag", File({1, kLocalMachine, 0, 2, 0, 3, 1}), false, ""},
        {"no key after the path", File({0, 1, 0, 4, 0, 3, 1}), false, "root 1 ;"},
        {"nothing but a key", File({0, 1, 0, 2, 0, 3, 1}), true, "root 1 ;{;};"},
        {"no end", File({0, 1, 0, 2, 0, 3}), false, "root 1 ;{;};"},
        {"bytes behind the end", File({0, 1, 0, 2, 0, 3, 1, 77}), true, "root 1 ;{;};"},
        {"other tags", File({0, 1, 0, 2, 0, 9, 0, 5, 3, 1}), true, "root 1 ;{;};"},
        {"end tag inside", File({0, 1, 0, 2, 0, 2, 0, 1, 3, 1}), true, "root 1 ;{;{;};};"},
        {"unknown type", File({0, 1, 0, 2, 0, 4, 0, 4, 7, 4, 0, 7, 0, 3, 1}), false,
         "root 1 ;{;=#7;"},
        {"gigantic text", File({0, 1, 0, 2, 0, 4, 0, 1, 0xFFFFFFFF, 3, 1}), false, "root 1 ;{;"},
        {"gigantic name", File({0, 1, 0, 2, 0x7FFFFFFF, 3, 1}), false, "root 1 ;"},
        {"gigantic bytes", File({0, 1, 0, 2, 0, 4, 0, 3, 0x80000000}), false, "root 1 ;{;"},
        // Where a value of no bytes cannot be meant, what follows it is its count.
        {"bytes without a count", File({0, 1, 0, 2, 0, 4, 0, 3, 3, 7}), false,
         "root 1 ;{;=3 bytes;"},
    });
    for (std::size_t size = 0; size < kGolden.size(); ++size) {
        Notes notes;
        EXPECT_FALSE(ReadSettingsFile(std::span(kGolden).first(size), notes)) << size;
    }
    Notes full;
    full.refuseAfter = 30;
    EXPECT_FALSE(ReadSettingsFile(kGolden, full));
    EXPECT_EQ(full.text, "root 2147483650 \\S;{;On=#258;=h\\8230;");
    Notes noKey;
    noKey.refuseAfter = 11;
    EXPECT_FALSE(ReadSettingsFile(File({0, 1, 0, 2, 0, 2, 0, 1, 3, 1}), noKey));
}

TEST(SettingsFile, ValuesWithoutBytes) {
    constexpr std::uint32_t kAb = Two('a', 'b'), kCd = Two('c', 'd');
    ExpectSeen({
        {"before the key's end", File({0, 1, 0, 2, 0, 4, 0, 3, 3, 1}), true,
         "root 1 ;{;=0 bytes;};"},
        {"before a value", File({0, 1, 0, 2, 0, 4, 0, 3, 4, 4, kAb, 4, 7, 3, 1}), true,
         "root 1 ;{;=0 bytes;ab=#7;};"},
        {"before a key", File({0, 1, 0, 2, 0, 4, 0, 3, 2, 4, kAb, 3, 3, 1}), true,
         "root 1 ;{;=0 bytes;{ab;};};"},
        {"several", File({0, 1, 0, 2, 0, 4, 4, kAb, 3, 4, 4, kCd, 3, 3, 1}), true,
         "root 1 ;{;ab=0 bytes;cd=0 bytes;};"},
        {"before a value with bytes", File({0, 1, 0, 2, 0, 4, 4, kAb, 3, 4, 4, kCd, 3, 4, 7, 3, 1}),
         true, "root 1 ;{;ab=0 bytes;cd=4 bytes;};"},
        {"in a key that seems to end earlier",
         File({0, 1, 0, 2, 0, 2, 0, 4, 0, 3, 4, 0, 3, 4, 4, kAb, 4, 7, 3, 3, 1}), true,
         "root 1 ;{;{;=0 bytes;=0 bytes;ab=#7;};};"},
        {"before an end tag inside", File({0, 1, 0, 2, 0, 2, 0, 4, 0, 3, 4, 4, kAb, 4, 7, 1, 3, 1}),
         true, "root 1 ;{;{;=0 bytes;ab=#7;};};"},
        {"where an end tag inside seems to follow",
         File({0, 1, 0, 2, 0, 2, 0, 4, 0, 3, 4, 4, 1, 3, 1, 0x377, 0x300, 0x100, 0}), true,
         "root 1 ;{;{;=0 bytes;\1\0=1 bytes;};};"s},
        {"behind an unknown tag", File({0, 1, 0, 2, 0, 9, 4, 0, 3, 3, 1}), true,
         "root 1 ;{;=0 bytes;};"},
        {"before what seems to be the file's end",
         File({0, 1, 0, 2, 0, 4, 4, kAb, 3, 4, 4, kCd, 3, 1, 0x377, 0x100, 0}), true,
         "root 1 ;{;ab=0 bytes;cd=1 bytes;};"},
        {"none, as what no writer wrote reads well as it stands",
         File({0, 1, 0, 2, 0, 9, 4, 0, 3, 4, 0, 3, 1, 0x300, 0x100, 0}), true,
         "root 1 ;{;=4 bytes;};"},
    });
}

TEST(SettingsFile, TellsWhatItWouldDo) {
    const std::wstring product = kProductKey;
    const std::wstring above = product.substr(0, product.rfind(L'\\'));
    // A key, whether it has a value, and whether that or itself is not the diary's.
    const std::tuple<std::uint32_t, std::wstring, bool, bool> cases[] = {
        {kLocalMachine, product, true, false},
        {kLocalMachine, L"\\" + product + L"\\Filters", true, false},
        {kLocalMachine, above, false, false},
        {kLocalMachine, above, true, true},
        {kLocalMachine, above + L"\\Other", false, true},
        {0x80000001, product, false, true}};
    for (const auto& [root, path, hasValue, outside] : cases) {
        SettingsFileWriter file;
        file.Begin(root, path);
        file.BeginKey(L"");
        file.BeginKey(L"LUM Diary");
        file.EndKey();
        if (hasValue) file.Text(L"a", L"b");
        file.EndKey();
        file.End();
        const SettingsFileFacts facts = LookThroughSettingsFile(file.bytes);
        EXPECT_TRUE(facts.whole && facts.writesOutside == outside) << testing::PrintToString(path);
    }
    EXPECT_TRUE(IsSameAsciiName(L"LUM diAryZ", L"lum DiaRyz") && !IsSameAsciiName(L"[", L"{"));
}

// Each round is two values of which either may be empty, at any of the depths before it.
TEST(SettingsFile, SearchHasAnEnd) {
    Bytes file = File({0, 1, 0, 2, 0});
    const Bytes round = File({4, 0, 3, 4, 0, 3, 2, 0, 2, 0});
    for (int i = 0; i < 200; ++i) file.insert(file.end(), round.begin(), round.end());
    const SettingsFileReading reading = FindSettingsFileReading(file);
    EXPECT_FALSE(reading.whole);
    EXPECT_TRUE(reading.empty.empty());
    EXPECT_GE(reading.states, file.size()) << "no such file";
    EXPECT_LE(reading.states, file.size() * kStatesPerByte);
}

TEST(SettingsFile, DeepNestingTakesNoStack) {
    constexpr std::size_t kLevels = 200000;
    Bytes file = File({0, 1, 0});
    for (std::size_t i = 0; i < kLevels; ++i) file.insert(file.end(), {2, 0, 0, 0, 0, 0, 0, 0});
    struct Counter : Notes {
        std::size_t depth = 0;
        bool EnterKey(const std::wstring&) override { return ++depth != 0; }
    } counter;
    EXPECT_FALSE(ReadSettingsFile(file, counter));
    EXPECT_EQ(counter.depth, kLevels);
}

}  // namespace
