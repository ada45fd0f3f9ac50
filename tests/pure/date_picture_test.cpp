#include "settings/date_picture.h"

#include <gtest/gtest.h>

namespace {

TEST(DatePicture, LeavesOutTheYearAndShortensNames) {
    constexpr DatePictureFlags kUsual{false, true, true, true};
    constexpr DatePictureFlags kOnlyYear{};
    struct Case {
        std::wstring picture;
        DatePictureFlags flags;
        std::wstring built;
    };
    for (const Case& c : {
             Case{L"dddd, MMMM d yyyy", kUsual, L"ddd, MMM d"},
             Case{L"d MMMM yyyy", {true, true, true, false}, L"d MMM yy"},
             Case{L"dddd, MMMM dd, yyyy", kUsual, L"ddd, MMM dd"},                    // en-US
             Case{L"dd MMMM yyyy", kUsual, L"dd MMM"},                                // en-GB
             Case{L"dddd, d. MMMM yyyy", kUsual, L"ddd, d. MMM"},                     // de-DE
             Case{L"dddd d MMMM yyyy", kUsual, L"ddd d MMM"},                         // fr-FR
             Case{L"d MMMM yyyy '\x433.'", kUsual, L"d MMM"},                         // ru-RU
             Case{L"yyyy'\x5E74'M'\x6708'd'\x65E5'", kUsual, L"M'\x6708'd'\x65E5'"},  // ja-JP
             Case{L"yyyy. MMMM d., dddd", kUsual, L"MMM d., ddd"},                    // hu-HU
             Case{L"'den 'd MMMM yyyy", kUsual, L"'den 'd MMM"},                      // sv-SE
             Case{L"yyyy'\xB144' M'\xC6D4' d'\xC77C' dddd", kUsual,
                  L"M'\xC6D4' d'\xC77C' ddd"},                                  // ko-KR
             Case{L"yyyy-MM-dd", kUsual, L"MM-dd"},                             // zh-CN, sv-SE
             Case{L"dddd, d' de 'MMMM' de 'yyyy", kUsual, L"ddd, d' de 'MMM"},  // pt-BR
             // Between two parts the separator before the second stays, after a space.
             Case{L"MMMM yyyy, dddd", kOnlyYear, L"MMMM  dddd"},
             Case{L"dd/yyyy/MM", kOnlyYear, L"dd /MM"},
             Case{L"d yyyy' of 'MMMM", kOnlyYear, L"d ' of 'MMMM"},
             Case{L"yyyy", kOnlyYear, L""},
             Case{L"", kUsual, L""},
             // Quoted letters are text.
             Case{L"'day' d, 'year' MMMM", kOnlyYear, L"'day' d, 'year' MMMM"},
             Case{L"d MMMM 'y", kOnlyYear, L"d MMMM 'y"},
             // Only runs of four are shortened; longer ones until none is left.
             Case{L"ddd MMM yy", {true, true, true, true}, L"ddd MMM yy"},
             Case{L"yyyyyyyy ddddd", {true, true, true, true}, L"yy ddd"},
             Case{L"dddd MMMM yyyy", {true, false, false, false}, L"dddd MMMM yyyy"},
         }) {
        EXPECT_EQ(BuildDatePicture(c.picture, c.flags), c.built)
            << testing::PrintToString(c.picture);
    }
}

}  // namespace
