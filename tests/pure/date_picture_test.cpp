#include "settings/date_picture.h"

#include <gtest/gtest.h>

namespace {

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

}  // namespace
