#pragma once

#include <initializer_list>
#include <string>
#include <utility>

// What stands in the place of a "%s" or a "%d" of a text.
class TextArgument {
  public:
    TextArgument(std::wstring text) : text_(std::move(text)) {}
    TextArgument(const wchar_t* text) : text_(text) {}
    TextArgument(int number) : placeholder_(L'd'), text_(std::to_wstring(number)) {}

    wchar_t placeholder() const { return placeholder_; }
    const std::wstring& text() const { return text_; }

  private:
    wchar_t placeholder_ = L's';
    std::wstring text_;
};

// The text with its placeholders replaced in their order; "%%" is a percent sign, as is one before
// anything but a letter. A text is translated by its users, so that its placeholders may be any: a
// text that does not have exactly those of the arguments comes back as it is.
std::wstring FillIn(const std::wstring& text, std::initializer_list<TextArgument> arguments);

// The letters of a text's placeholders, in their order.
std::wstring PlaceholdersOf(const std::wstring& text);
