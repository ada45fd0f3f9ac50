#include "tools/diarykit/resource_library.h"

#include <algorithm>

#include "base/byte_reader.h"

namespace {

using Bytes = std::span<const std::uint8_t>;

// More entries than this no sound library has; a broken one could list the same ones again.
constexpr std::size_t kMostEntries = 10000;

ByteReader ReaderAt(Bytes bytes, std::size_t position) {
    ByteReader reader(bytes);
    reader.Take(position);
    return reader;
}

struct Section {
    std::uint32_t address, size, place;
};

class LibraryReader {
  public:
    explicit LibraryReader(Bytes library) : library_(library) {}

    std::optional<std::vector<LibraryResource>> Run() {
        const std::uint32_t header = ReaderAt(library_, 0x3C).TakeNumber();
        ByteReader reader = ReaderAt(library_, header);
        if (reader.TakeNumber() != 0x00004550) return {};  // "PE"
        reader.Take(2);
        const std::uint32_t sections = reader.TakeNumber(2);
        reader.Take(12);
        const std::uint32_t optionalSize = reader.TakeNumber(2);
        reader.Take(2);
        const Bytes optional = reader.Take(optionalSize);
        ReadSections(reader, sections);
        const bool wide = ByteReader(optional).TakeNumber(2) == 0x20B;
        constexpr std::size_t kDirectories = 96, kWideDirectories = 112, kResources = 16;
        ByteReader directory =
            ReaderAt(optional, (wide ? kWideDirectories : kDirectories) + kResources);
        const std::uint32_t address = directory.TakeNumber();
        if (reader.failed() || directory.failed() || !address) return {};
        const Section* const section = SectionOf(address);
        if (!section) return {};
        tree_ = BytesAt(address, section->size - (address - section->address));
        ReadDirectory(0, 0);
        return std::move(resources_);
    }

  private:
    void ReadSections(ByteReader& reader, std::uint32_t count) {
        for (; count > 0 && !reader.failed(); --count) {
            reader.Take(12);
            const std::uint32_t address = reader.TakeNumber();
            const std::uint32_t size = reader.TakeNumber();
            const std::uint32_t place = reader.TakeNumber();
            reader.Take(16);
            if (!reader.failed()) sections_.push_back({address, size, place});
        }
    }
    const Section* SectionOf(std::uint32_t address) const {
        const auto found =
            std::find_if(sections_.begin(), sections_.end(), [address](const Section& section) {
                return address >= section.address && address - section.address < section.size;
            });
        return found == sections_.end() ? nullptr : &*found;
    }
    // Empty where the file does not have them all.
    Bytes BytesAt(std::uint32_t address, std::uint32_t size) const {
        const Section* const section = SectionOf(address);
        if (!section) return {};
        const std::uint32_t offset = address - section->address;
        ByteReader reader = ReaderAt(library_, std::size_t{section->place} + offset);
        return size <= section->size - offset ? reader.Take(size) : Bytes();
    }

    // The levels are types, numbers, languages.
    void ReadDirectory(std::uint32_t place, int level) {
        constexpr std::uint32_t kFlag = 0x80000000;
        ByteReader reader = ReaderAt(tree_, place);
        reader.Take(12);
        std::uint32_t count = reader.TakeNumber(2);
        count += reader.TakeNumber(2);
        for (; count > 0 && !reader.failed() && entries_ < kMostEntries; --count) {
            ++entries_;
            const std::uint32_t name = reader.TakeNumber();
            const std::uint32_t below = reader.TakeNumber();
            if (reader.failed() || (level < 2 && name & kFlag)) continue;
            if (level < 2) number_[level] = name;
            if (level < 2 && below & kFlag) ReadDirectory(below & ~kFlag, level + 1);
            if (level == 2) {
                ReadData(below);
                return;
            }
        }
    }
    void ReadData(std::uint32_t place) {
        ByteReader reader = ReaderAt(tree_, place);
        const std::uint32_t address = reader.TakeNumber();
        const std::uint32_t size = reader.TakeNumber();
        const Bytes bytes = reader.failed() ? Bytes() : BytesAt(address, size);
        if (!bytes.empty()) resources_.push_back({number_[0], number_[1], bytes});
    }

    Bytes library_, tree_;
    std::vector<Section> sections_;
    std::uint32_t number_[2] = {};
    std::size_t entries_ = 0;
    std::vector<LibraryResource> resources_;
};

}  // namespace

std::optional<std::vector<LibraryResource>> ReadResources(std::span<const std::uint8_t> library) {
    return LibraryReader(library).Run();
}

std::vector<LibraryString> StringsOf(const LibraryResource& block) {
    constexpr std::uint32_t kStringsInBlock = 16;
    std::vector<LibraryString> strings;
    ByteReader reader(block.bytes);
    for (std::uint32_t i = 0; i < kStringsInBlock; ++i) {
        std::wstring text = reader.TakeText(2 * reader.TakeNumber(2));
        if (reader.failed()) break;
        if (!text.empty()) {
            strings.push_back({(block.id - 1) * kStringsInBlock + i, std::move(text)});
        }
    }
    return strings;
}

std::vector<std::wstring> MenuTextsOf(std::span<const std::uint8_t> menu) {
    constexpr std::uint32_t kPopup = 0x10;
    std::vector<std::wstring> texts;
    ByteReader reader(menu);
    reader.Take(4);
    while (reader.left() > 0 && !reader.failed()) {
        if (!(reader.TakeNumber(2) & kPopup)) reader.Take(2);
        std::wstring text;
        for (auto unit = reader.TakeNumber(2); unit; unit = reader.TakeNumber(2)) {
            text += static_cast<wchar_t>(unit);
        }
        if (!reader.failed() && !text.empty()) texts.push_back(std::move(text));
    }
    return texts;
}
