// Any bytes are a language file; it reads as a loader does that holds one line's room of it at a
// time. Any text comes back from the field it is written to.
#include "app/language_file.h"

#include "tests/fuzz/fuzz.h"

namespace {

using Bytes = std::span<const std::uint8_t>;

// The plain way to read a file: a window of characters that ends in a NUL, moved up line by line.
class WindowLoader {
  public:
    explicit WindowLoader(Bytes file) : file_(file) {
        if (file.size() >= 2 && file[0] == 0xFF && file[1] == 0xFE) {
            utf16_ = true;
            position_ = 2;
        }
    }

    std::vector<LanguageEntry> Load() {
        std::vector<LanguageEntry> entries;
        for (;;) {
            Fill();
            const wchar_t* next = window_;
            LanguageEntry entry;
            const bool hasTranslation = ReadField(next, entry.source) == L'|';
            if (hasTranslation && !entry.source.empty()) ReadField(next, entry.translation);
            if (*next == L'\r' || *next == L'\n') ++next;
            if (next == window_) return entries;
            if (!utf16_ || !entry.source.empty()) entries.push_back(entry);
            consumed_ = next;
        }
    }

  private:
    void Fill() {
        wchar_t* end = window_;
        while (consumed_ != end_) *end++ = *consumed_++;
        const std::size_t width = utf16_ ? 2 : 1;
        while (end != window_ + kLongestLanguageLine && file_.size() - position_ >= width) {
            *end++ = static_cast<wchar_t>(utf16_ ? file_[position_] | file_[position_ + 1] << 8
                                                 : file_[position_]);
            position_ += width;
        }
        *end = L'\0';
        consumed_ = window_;
        end_ = end;
    }

    static wchar_t ReadField(const wchar_t*& next, std::wstring& field) {
        while (*next) {
            const wchar_t c = *next++;
            if (c == L'|' || c == L'\r' || c == L'\n') return c;
            if (c != L'\\') {
                field += c;
            } else if (*next) {
                field += *next == L'n' ? L'\n' : *next == L'r' ? L'\r' : *next;
                ++next;
            }
        }
        return L'\0';
    }

    Bytes file_;
    std::size_t position_ = 0;
    bool utf16_ = false;
    wchar_t window_[kLongestLanguageLine + 1] = {};
    const wchar_t* consumed_ = window_;
    const wchar_t* end_ = window_;
};

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
    REQUIRE(entries == WindowLoader(bytes).Load());
    CheckRoundTrip(bytes);
    return 0;
}
