// Any bytes are a language file. Any text comes back from the field it is written to.
#include "app/language/language_file.h"

#include "tests/fuzz/fuzz.h"

namespace {

using Bytes = std::span<const std::uint8_t>;

std::vector<std::uint8_t> Utf16File(const std::wstring& text) {
    std::vector<std::uint8_t> file = {0xFF, 0xFE};
    for (const wchar_t c : text) {
        file.push_back(static_cast<std::uint8_t>(c & 0xFF));
        file.push_back(static_cast<std::uint8_t>(c >> 8 & 0xFF));
    }
    return file;
}

void CheckRoundTrip(Bytes bytes) {
    const std::wstring text = TextOf(bytes);
    if (text.empty() || text.find(L'\0') != std::wstring::npos) return;
    const std::wstring escaped = EscapeLanguageText(text);
    const std::wstring line = escaped + L"|" + escaped;
    if (line.size() > kLongestLanguageLine) return;
    const std::vector<LanguageEntry> expected = {{text, text}, {L"next", L""}};
    REQUIRE(ParseLanguageFile(Utf16File(line + L"\r\nnext|\r\n")) == expected);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes(data, size);
    const std::vector<LanguageEntry> entries = ParseLanguageFile(bytes);
    std::size_t length = 0;
    for (const LanguageEntry& entry : entries) {
        REQUIRE(entry.source.size() + entry.translation.size() <= kLongestLanguageLine);
        length += entry.source.size() + entry.translation.size();
    }
    REQUIRE(length <= size && entries.size() <= size);
    CheckRoundTrip(bytes);
    return 0;
}
