#include "tools/diarykit/text_width.h"

#include <algorithm>
#include <climits>
#include <vector>

// The widths of the letters from `first` on.
struct DialogFont::Letters {
    wchar_t first;
    std::vector<unsigned char> widths;
};

namespace {

struct Line {
    int dpi, lineHeight;
    DialogFont::Letters letters;
};

const std::vector<Line>& Table() {
    static const std::vector<Line> lines = {
#define DENSITY(dpi, height) {dpi, height, {}},
#define LETTERS(first, ...) {0, 0, {first, {__VA_ARGS__}}},
#include "tools/diarykit/font_widths.inc"
#undef DENSITY
#undef LETTERS
    };
    return lines;
}

}  // namespace

std::span<const DialogFont> DialogFont::All() {
    static std::vector<std::vector<Letters>> letters;
    static const std::vector<DialogFont> fonts = [] {
        for (const Line& line : Table()) {
            if (line.dpi) letters.emplace_back();
            if (!line.dpi) letters.back().push_back(line.letters);
        }
        std::vector<DialogFont> made;
        for (const Line& line : Table()) {
            if (line.dpi) made.emplace_back(line.dpi, line.lineHeight, letters[made.size()]);
        }
        return made;
    }();
    return fonts;
}

DialogFont::DialogFont(int dpi, int lineHeight, std::span<const Letters> letters)
    : dpi_(dpi), lineHeight_(lineHeight), letters_(letters) {
    // As the system measures them: by the mean of the alphabet.
    constexpr std::wstring_view kAlphabet = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    unitWidth_ = (WidthOf(kAlphabet) / 26 + 1) / 2;
}

int DialogFont::WidthOf(wchar_t c) const {
    constexpr wchar_t kFirstSquare = 0x2E80, kLastSquare = 0xD7FF;
    if (c >= kFirstSquare && c <= kLastSquare) return lineHeight_;
    for (const Letters& range : letters_) {
        const bool within =
            c >= range.first && c < range.first + static_cast<int>(range.widths.size());
        if (within && range.widths[c - range.first]) return range.widths[c - range.first];
    }
    return c < L' ' || c == L'n' ? 0 : WidthOf(L'n');
}

int DialogFont::WidthOf(std::wstring_view text) const {
    int width = 0;
    for (const wchar_t c : text) width += WidthOf(c);
    return width;
}

int DialogFont::HeightOf(std::wstring_view text, int width) const {
    int lines = 1, used = 0;
    while (!text.empty()) {
        if (text.front() == L'\n') {
            ++lines;
            used = 0;
            text.remove_prefix(1);
            continue;
        }
        const std::size_t end = std::min(text.find_first_of(L" \n", 1), text.size());
        const std::wstring_view word = text.substr(0, end);
        text.remove_prefix(end);
        if (used > 0 && used + WidthOf(word) > width) {
            ++lines;
            used = WidthOf(word.substr(word.front() == L' ' ? 1 : 0));
        } else {
            used += WidthOf(word);
        }
        if (used > width) return INT_MAX;
    }
    return lines * lineHeight_;
}
