#include "appearance/skins/archive.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes ReadFile(const std::string& name) {
    std::ifstream file(ARCHIVES + name + ".zip", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Archive, YieldsIntactMembersOnly) {
    constexpr std::uint32_t kNone = ~0u;
    // What marks such sizes is known to minizip by a long's width, which is that of every Windows.
    constexpr bool kZip64 = sizeof(long) == 4;
    const std::tuple<const char*, bool, std::uint32_t, bool> cases[] = {
        {"stored", true, 30000, true},
        {"deflated", true, 30000, true},
        {"data_descriptor", true, 30000, true},
        {"zip64", true, kZip64 ? 30000 : kNone, kZip64},
        {"comment", true, 30000, true},
        {"folders", true, 30000, true},
        {"encrypted", true, kNone, false},
        {"other_names", true, kNone, false},
        {"bzip2", true, 30000, false},
        {"largest", true, 16777216, true},
        {"too_large", true, kNone, false},
        {"claims_more", true, 1000000, false},
        {"claims_less", true, 100, false},
        {"wrong_extra", true, kNone, false},
        {"cut", false, kNone, false}};
    for (const auto& [name, opens, size, isRead] : cases) {
        const Bytes file = ReadFile(name);
        const auto archive = Archive::OfBytes(file);
        EXPECT_TRUE(!file.empty() && (archive != nullptr) == opens) << name;
        if (!archive) continue;
        EXPECT_EQ(archive->MemberSize("icons.bmp").value_or(kNone), size) << name;
        const std::optional<Bytes> bytes = archive->ReadMember("icons.bmp");
        ASSERT_EQ(bytes.has_value(), isRead) << name;
        if (!bytes || size != 30000) continue;
        for (std::size_t i = 0; i < bytes->size(); ++i) ASSERT_EQ((*bytes)[i], i * 7 % 251) << name;
    }
}

TEST(Archive, DamagedOnesYieldTheMemberOrNothing) {
    const Bytes file = ReadFile("data_descriptor"), stored = ReadFile("stored");
    const auto content = Archive::OfBytes(stored)->ReadMember("icons.bmp");
    int refused = 0;
    for (std::size_t i = 0; i < file.size(); ++i) {
        Bytes damaged = file;
        damaged[i] ^= i % 2 ? 0xFF : 1;
        const auto archive = Archive::OfBytes(damaged);
        const auto bytes = archive ? archive->ReadMember("icons.bmp") : std::nullopt;
        ASSERT_TRUE(!bytes || bytes == content) << i;
        refused += !bytes;
    }
    EXPECT_GT(refused, 100);
}

}  // namespace
