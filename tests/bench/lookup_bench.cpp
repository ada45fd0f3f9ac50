// Lookups of translations in a large language file, against a list searched from its front.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "app/language/language_file.h"
#include "app/language/language_index.h"

namespace {

constexpr std::size_t kEntries = 20000;
constexpr std::size_t kLookups = 100000;

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

struct Result {
    std::size_t found = 0;
    double seconds = 0;
};

template <typename Table>
Result Measure(const Table& table, const std::vector<std::wstring>& wanted) {
    Result result;
    const auto start = std::chrono::steady_clock::now();
    for (const std::wstring& source : wanted) result.found += table.Find(source) != nullptr;
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    result.seconds = time.count();
    return result;
}

}  // namespace

int main() {
    const std::vector<LanguageEntry> entries = ParseLanguageFile(LargeFile());
    const std::vector<std::wstring> wanted = Wanted();
    const Result list = Measure(FrontSearchedList(entries), wanted);
    const Result index = Measure(LanguageIndex(entries), wanted);
    if (list.found != index.found) {
        std::printf("The index finds %u texts, the list %u.\n", static_cast<unsigned>(index.found),
                    static_cast<unsigned>(list.found));
        return 1;
    }
    std::printf("%u lookups in a language file of %u lines, %u of them found:\n",
                static_cast<unsigned>(kLookups), static_cast<unsigned>(kEntries),
                static_cast<unsigned>(index.found));
    std::printf("  list searched from its front  %10.3f ms\n", list.seconds * 1000);
    std::printf("  LanguageIndex                 %10.3f ms, %.0f times faster\n",
                index.seconds * 1000, list.seconds / index.seconds);
}
