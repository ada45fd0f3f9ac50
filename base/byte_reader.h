#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// Takes little-endian values from the front of bytes that may be cut anywhere. A read beyond their
// end gives nothing (0, an empty text) and marks the reader as failed, for good.
class ByteReader {
  public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool failed() const { return failed_; }
    std::size_t position() const { return position_; }
    std::size_t left() const { return bytes_.size() - position_; }
    // For what the user of the bytes finds wrong in them.
    void Fail() { failed_ = true; }

    std::span<const std::uint8_t> Take(std::size_t size) {
        if (size > left()) failed_ = true;
        if (failed_) return {};
        position_ += size;
        return bytes_.subspan(position_ - size, size);
    }
    std::uint32_t TakeNumber(std::size_t size = 4) {
        std::uint32_t number = 0;
        unsigned shift = 0;
        for (const std::uint8_t byte : Take(size)) {
            number |= std::uint32_t{byte} << shift;
            shift += 8;
        }
        return number;
    }
    std::int32_t TakeSigned() { return static_cast<std::int32_t>(TakeNumber()); }
    // UTF-16 of so many bytes; an odd one at the end means nothing.
    std::wstring TakeText(std::size_t size) {
        const std::span<const std::uint8_t> bytes = Take(size);
        std::wstring text(bytes.size() / 2, L'\0');
        for (std::size_t i = 0; i < text.size(); ++i) {
            text[i] = static_cast<wchar_t>(bytes[2 * i] | bytes[2 * i + 1] << 8);
        }
        return text;
    }

  private:
    std::span<const std::uint8_t> bytes_;
    std::size_t position_ = 0;
    bool failed_ = false;
};
