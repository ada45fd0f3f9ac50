// How filters of mail folders are stored and named.
#include "pages/stores/mail_filter.h"

#include <gtest/gtest.h>

#include <set>

#include "pages/stores/mail_filter_names.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using Entries = std::vector<MailFilter::Entry>;

// Three records, byte by byte: identifiers of two, no and one byte.
const Bytes kBytes = {'F',  2, 0xAB, 0xCD, 1,   'I', 0,    'M', 0,   2,
                      0xFC, 0, 0x3A, 0x04, 'M', 1,   0x07, 1,   'x', 0};
const Entries kEntries = {
    {{{0xAB, 0xCD}, true}, L"I"}, {{{}, false}, L"\xFC\x43A"}, {{{7}, false}, L"x"}};

TEST(MailFilter, StoresItsFoldersAsRecords) {
    EXPECT_EQ(MailFilterBytes(kEntries), kBytes);
    EXPECT_EQ(ParseMailFilter(kBytes), kEntries);
    EXPECT_EQ(ParseMailFilter({}), Entries());
    for (std::size_t i = 0; i < kBytes.size(); ++i) {
        const bool whole = i == 0 || i == 7 || i == 14;
        EXPECT_EQ(ParseMailFilter(std::span(kBytes).first(i)).has_value(), whole) << i;
        Bytes odd = kBytes;
        odd[i] = 'X';  // of another kind, beyond the end, or another letter
        EXPECT_TRUE(ParseMailFilter(odd) != kEntries && (!whole || !ParseMailFilter(odd))) << i;
    }
    Bytes twice = kBytes;
    twice.insert(twice.end(), {'F', 2, 0xAB, 0xCD, 1, 'J', 0});
    EXPECT_EQ(ParseMailFilter(twice), kEntries) << "of two names the first counts";
    for (const std::size_t size : {0, 255, 256}) {
        for (const std::size_t length : {1, 255, 256, 300}) {
            const Entries entries = {{{Bytes(size, 9), false}, std::wstring(length, L'n')}};
            const auto bytes = MailFilterBytes(entries);
            ASSERT_EQ(bytes.has_value(), size <= 255);
            if (!bytes) continue;
            EXPECT_EQ(bytes->size(), 3 + size + (length <= 255 ? 2 * length : 0));
            EXPECT_EQ(ParseMailFilter(*bytes),
                      length <= 255 ? std::optional(entries) : std::nullopt);
        }
    }
}

TEST(MailFilter, NamesNewOnes) {
    const NewMailFilterNames texts = {L"None", L"Set"};
    const std::pair<std::vector<std::wstring>, const wchar_t*> cases[] = {
        {{}, L"Set 1"},
        {{L"Set"}, L"Set 1"},
        {{L"Set 3", L"Set 1"}, L"Set 4"},
        {{L"Sets", L"A Set 9", L"set 8", L"Set x", L"Set -3"}, L"Set 1"},
        {{L"Set7", L"Set 99999999999"}, L"Set 8"},
        {{L"A", L"Set 10", L"Set 9"}, L"Set 11"},
        {{L"Set 129"}, L"Set 130"},
    };
    for (const auto& [filters, name] : cases) {
        EXPECT_EQ(AutomaticFilterName(texts, 2, {}, filters), name);
    }
    EXPECT_EQ(AutomaticFilterName(texts, 0, {}, {}), L"None");
    EXPECT_EQ(AutomaticFilterName(texts, 1, L"Inbox", {L"Set"}), L"Inbox");
}

bool Before(std::wstring_view left, std::wstring_view right) {
    return towlower(left.front()) < towlower(right.front());
}

TEST(MailFilter, SuggestsNames) {
    EXPECT_EQ(
        SuggestedFilterNames({L"home", L"Inbox"}, {L"Inbox", L"All"}, Before),
        (std::vector<std::wstring>{L"All", L"home", L"home - Inbox", L"Inbox", L"Inbox - home"}));
    EXPECT_EQ(SuggestedFilterNames({L"", L"b"}, {L""}, [](auto, auto) { return false; }),
              (std::vector<std::wstring>{L" - b", L"b", L"b - "}))
        << "no empty one";
}

TEST(MailFilter, TakesTheFirstFreeName) {
    const MailFolderNames inbox = {L"home", L"Inbox"};
    const MailFolderNames longOne = {std::wstring(250, L'a'), L"Inbox"};
    const std::tuple<std::set<std::wstring>, const MailFolderNames*, const wchar_t*> cases[] = {
        {{}, &inbox, L"Inbox"},
        {{L"Inbox"}, &inbox, L"home - Inbox"},
        {{L"Inbox", L"home - Inbox"}, &inbox, L"home"},
        {{L"Inbox", L"home - Inbox", L"home"}, &inbox, L"Inbox - home"},
        {{L"Inbox", L"home - Inbox", L"home", L"Inbox - home", L"Set 1"}, &inbox, L"Set 2"},
        {{L"Inbox", longOne.account}, &longOne, L"Set 1"},
        {{L"Inbox", L"Set 1", L"Set 2"}, nullptr, L"Set 3"}};
    for (const auto& [taken, one, name] : cases) {
        const auto isTaken = [&names = taken](const std::wstring& text) {
            return names.contains(text);
        };
        EXPECT_EQ(FreeFilterName(L"Inbox", one, L"Set", Before, isTaken), name);
    }
}

TEST(MailFilter, AddsAndRemovesFolders) {
    MailFilter filter = {L"", kEntries}, other;
    filter.Remove({{0xAB, 0xCD}, false});  // in the other store
    EXPECT_EQ(filter.entries, kEntries);
    for (const auto& [folder, name] : kEntries) {
        EXPECT_FALSE(filter.HasSameFolders(other) || other.HasSameFolders(filter));
        filter.Remove(folder);
        EXPECT_FALSE(filter.Contains(folder));
        filter.Add(folder, L"behind");
        other.Add(folder, name);
    }
    EXPECT_TRUE(filter.HasSameFolders(other) && other.HasSameFolders(filter));
    other.Add({{8}, false}, L"one more");
    filter.Add({{8}, true}, L"and another");
    EXPECT_FALSE(filter.HasSameFolders(other));
}

}  // namespace
