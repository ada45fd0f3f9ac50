#include "base/fill_in.h"

namespace {

bool IsLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }

}  // namespace

std::wstring FillIn(const std::wstring& text, std::initializer_list<TextArgument> arguments) {
    std::wstring filled;
    const TextArgument* next = arguments.begin();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t after = text[i] == L'%' && i + 1 < text.size() ? text[i + 1] : L'\0';
        if (IsLetter(after)) {
            if (next == arguments.end() || next->placeholder() != after) return text;
            filled += next++->text();
            ++i;
        } else {
            filled += text[i];
            if (after == L'%') ++i;
        }
    }
    return next == arguments.end() ? filled : text;
}
