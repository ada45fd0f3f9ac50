#include "base/fill_in.h"

namespace {

bool IsLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }

// A piece of a text: a placeholder, or one character, which may stand as "%%".
struct Piece {
    wchar_t placeholder = L'\0';
    wchar_t character = L'\0';
};

Piece TakePiece(const std::wstring& text, std::size_t& i) {
    const wchar_t c = text[i++];
    const wchar_t after = c == L'%' && i < text.size() ? text[i] : L'\0';
    if (!IsLetter(after) && after != L'%') return {L'\0', c};
    ++i;
    return after == L'%' ? Piece{L'\0', c} : Piece{after, L'\0'};
}

}  // namespace

std::wstring FillIn(const std::wstring& text, std::initializer_list<TextArgument> arguments) {
    std::wstring filled;
    const TextArgument* next = arguments.begin();
    for (std::size_t i = 0; i < text.size();) {
        const Piece piece = TakePiece(text, i);
        if (!piece.placeholder) {
            filled += piece.character;
        } else if (next != arguments.end() && next->placeholder() == piece.placeholder) {
            filled += next++->text();
        } else {
            return text;
        }
    }
    return next == arguments.end() ? filled : text;
}

std::wstring PlaceholdersOf(const std::wstring& text) {
    std::wstring placeholders;
    for (std::size_t i = 0; i < text.size();) {
        const Piece piece = TakePiece(text, i);
        if (piece.placeholder) placeholders += piece.placeholder;
    }
    return placeholders;
}
