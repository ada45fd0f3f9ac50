// Lookups of translations in a large language file, beside a list searched from its front.
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "app/language/language_file.h"
#include "app/language/language_index.h"
#include "bench/bench.h"

namespace {

constexpr std::size_t kEntries = 20000;
constexpr std::size_t kLookups = 5000;

// The list stands for the alternative; entries without a translation hide later ones here, too.
class FrontSearchedList {
  public:
    explicit FrontSearchedList(std::vector<LanguageEntry> entries) : entries_(std::move(entries)) {}

    const std::wstring* Find(const std::wstring& source) const {
        for (const LanguageEntry& entry : entries_) {
            if (entry.source == source) {
                return entry.translation.empty() ? nullptr : &entry.translation;
            }
        }
        return nullptr;
    }

  private:
    std::vector<LanguageEntry> entries_;
};

std::wstring Source(std::size_t i) { return L"Text of the program number " + std::to_wstring(i); }

std::vector<std::uint8_t> LargeFile() {
    std::vector<std::uint8_t> file;
    for (std::size_t i = 0; i < kEntries; ++i) {
        // Every fourth text is not translated yet.
        const std::wstring translation = i % 4 ? L"Text in another language" : L"";
        for (const wchar_t c : Source(i) + L"|" + translation + L"\r\n") {
            file.push_back(static_cast<std::uint8_t>(c));
        }
    }
    return file;
}

// Texts from all over the file, and every eighth from outside it.
std::vector<std::wstring> Wanted() {
    std::vector<std::wstring> wanted;
    std::uint32_t random = 1;
    for (std::size_t i = 0; i < kLookups; ++i) {
        random = random * 1664525 + 1013904223;
        wanted.push_back(Source((random >> 8) % kEntries + (i % 8 ? 0 : kEntries)));
    }
    return wanted;
}

}  // namespace

int main() {
    const std::vector<LanguageEntry> entries = ParseLanguageFile(LargeFile());
    const std::vector<std::wstring> wanted = Wanted();
    const FrontSearchedList list(entries);
    const LanguageIndex index(entries);
    std::size_t found[2] = {};
    const auto search = [&](const auto& table, std::size_t& count) {
        return Time([&] {
            count = 0;
            for (const std::wstring& source : wanted) count += table.Find(source) != nullptr;
        });
    };
    const Pair times = TakeTurns([&] { return search(index, found[0]); },
                                 [&] { return search(list, found[1]); }, 3);
    Require(found[0] == found[1] && found[0] > 0, "finding the same texts");
    Report("5,000 lookups among 20,000 texts", "ms", "a list searched from its front", times, 0.05);
}
