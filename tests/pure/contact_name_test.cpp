#include "settings/contact_name.h"

#include <gtest/gtest.h>

namespace {

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

}  // namespace
