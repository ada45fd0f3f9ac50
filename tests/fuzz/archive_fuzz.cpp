// Any bytes are a zip archive or none. What its directory names is read as it is claimed to be or
// not at all, as often as it is asked for, and never beyond the limit for members.
#include "appearance/skins/archive.h"

#include <algorithm>
#include <string_view>

#include "tests/fuzz/fuzz.h"

namespace {

// Whatever stands where the entries of a directory have a name; an archive is only asked for names.
std::vector<std::string> NamesIn(std::string_view bytes) {
    constexpr std::string_view kEntry = "PK\1\2";
    constexpr std::size_t kLengthPlace = 28, kNamePlace = 46, kMost = 8;
    std::vector<std::string> names = {"icons.bmp"};
    for (std::size_t at = bytes.find(kEntry); at < bytes.size() && names.size() < kMost;
         at = bytes.find(kEntry, at + 1)) {
        if (bytes.size() - at <= kNamePlace) break;
        const auto length = static_cast<std::uint8_t>(bytes[at + kLengthPlace]);
        names.emplace_back(bytes.substr(at + kNamePlace, length));
    }
    return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::unique_ptr<Archive> archive = Archive::OfBytes({data, size});
    if (!archive) return 0;
    for (const std::string& name : NamesIn({reinterpret_cast<const char*>(data), size})) {
        const std::optional<std::uint32_t> claimed = archive->MemberSize(name.c_str());
        const auto member = archive->ReadMember(name.c_str());
        if (!member) continue;
        REQUIRE(claimed == member->size() && member->size() <= kLargestMember);
        REQUIRE(archive->ReadMember(name.c_str()) == member);
    }
    return 0;
}
