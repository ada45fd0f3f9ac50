#include "appearance/drawing/note_label.h"

#include <gtest/gtest.h>

namespace {

TEST(NoteLabel, FitsItsColumn) {
    struct Case {
        std::uint32_t number;
        const wchar_t* size;
        const wchar_t* duration;
    };
    for (const Case& c : {
             Case{0, L"0B", L"0.00S"},
             Case{1023, L"1023B", L"1.02S"},
             Case{1024, L"1.00K", L"1.02S"},
             Case{1536, L"1.51K", L"1.53S"},
             Case{10240, L"10.0K", L"10.2S"},
             Case{59999, L"58.6K", L"59.9S"},
             Case{90000, L"87.9K", L"1.30M"},
             Case{102400, L"100K", L"1.42M"},
             Case{(1u << 20) - 1, L"1023K", L"17.2M"},
             Case{1u << 20, L"1.00M", L"17.2M"},
             Case{(5u << 20) + 7, L"5.00M", L"87.2M"},
             Case{1u << 30, L"1.00G", L"1789M"},
             Case{0xFFFFFFFF, L"3.10G", L"7158M"},
         }) {
        EXPECT_EQ(NoteSizeLabel(c.number, L"."), c.size) << c.number;
        EXPECT_EQ(RecordingLabel(c.number, L"."), c.duration) << c.number;
    }
    EXPECT_EQ(NoteSizeLabel(1536, L" ,"), L"1 ,51K");
}

}  // namespace
