#include "appearance/drawing/note_label.h"

#include <gtest/gtest.h>

namespace {

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
        {1u << 30, L"1.00G", L"1789M"},
        {0xFFFFFFFF, L"3.10G", L"7158M"}};
    for (const auto& [number, size, duration] : kCases) {
        EXPECT_EQ(NoteSizeLabel(number, L"."), size) << number;
        EXPECT_EQ(RecordingLabel(number, L"."), duration) << number;
    }
    EXPECT_EQ(NoteSizeLabel(1536, L" ,"), L"1 ,51K");
}

}  // namespace
