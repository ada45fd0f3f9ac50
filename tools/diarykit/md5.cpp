#include "tools/diarykit/md5.h"

#include <bit>
#include <cmath>
#include <vector>

namespace {

constexpr std::size_t kBlock = 64;
constexpr int kRounds = 64;
constexpr int kRotations[4][4] = {
    {7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

// The whole parts of sines, by which the standard defines them.
std::array<std::uint32_t, kRounds> MakeConstants() {
    std::array<std::uint32_t, kRounds> constants;
    for (int i = 0; i < kRounds; ++i) {
        constants[i] =
            static_cast<std::uint32_t>(std::floor(std::fabs(std::sin(i + 1.0)) * 4294967296.0));
    }
    return constants;
}

using State = std::array<std::uint32_t, 4>;

void AddBlock(State& state, std::span<const std::uint8_t> block) {
    static const auto constants = MakeConstants();
    auto [a, b, c, d] = state;
    for (int i = 0; i < kRounds; ++i) {
        std::uint32_t mixed = 0;
        int word = 0;
        switch (i / 16) {
            case 0:
                mixed = (b & c) | (~b & d);
                word = i;
                break;
            case 1:
                mixed = (d & b) | (~d & c);
                word = 5 * i + 1;
                break;
            case 2:
                mixed = b ^ c ^ d;
                word = 3 * i + 5;
                break;
            default: mixed = c ^ (b | ~d); word = 7 * i;
        }
        const std::uint8_t* const bytes = block.data() + 4 * (word % 16);
        const std::uint32_t number =
            bytes[0] | bytes[1] << 8 | bytes[2] << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
        const std::uint32_t sum = a + mixed + constants[i] + number;
        a = d;
        d = c;
        c = b;
        b += std::rotl(sum, kRotations[i / 16][i % 4]);
    }
    state = {state[0] + a, state[1] + b, state[2] + c, state[3] + d};
}

}  // namespace

IconDigest Md5Of(std::span<const std::uint8_t> bytes) {
    State state = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    const std::uint64_t bits = std::uint64_t{bytes.size()} * 8;
    for (; bytes.size() >= kBlock; bytes = bytes.subspan(kBlock))
        AddBlock(state, bytes.first(kBlock));
    std::vector<std::uint8_t> rest(bytes.begin(), bytes.end());
    rest.push_back(0x80);
    while (rest.size() % kBlock != kBlock - 8) rest.push_back(0);
    for (int shift = 0; shift < 64; shift += 8)
        rest.push_back(static_cast<std::uint8_t>(bits >> shift));
    for (std::size_t i = 0; i < rest.size(); i += kBlock)
        AddBlock(state, std::span(rest).subspan(i, kBlock));
    IconDigest digest;
    for (std::size_t i = 0; i < digest.size(); ++i) {
        digest[i] = static_cast<std::uint8_t>(state[i / 4] >> 8 * (i % 4));
    }
    return digest;
}
