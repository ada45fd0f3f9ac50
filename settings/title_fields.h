#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "resources/ids.h"
#include "settings/display_pattern.h"

// What an item's title can show besides its subject. The letters are those of the title patterns
// and mean the same in all lists; the low priority of a task shares the letter of importance.
struct TitleField {
    wchar_t letter;
    unsigned label;  // string id
};
inline constexpr std::array kTitleFields = {
    TitleField{L'p', IDS_FIELD_IMPORTANCE}, TitleField{L'n', IDS_FIELD_NOTE},
    TitleField{L'r', IDS_FIELD_REMINDER},   TitleField{L'q', IDS_FIELD_RECURRENCE},
    TitleField{L's', IDS_FIELD_PRIVATE},    TitleField{L'c', IDS_FIELD_CATEGORY},
    TitleField{L'a', IDS_FIELD_ATTENDEES},
};

// The letters of the fields that items of a list can have: all of them, and those of contacts,
// which are neither due nor urgent.
inline constexpr std::wstring_view kItemFields = L"pnrqsca";
inline constexpr std::wstring_view kContactFields = L"nsc";

// A title pattern as rows for the user to order: the fields that are offered, and the subject among
// them.
class TitleRows {
  public:
    struct Row {
        wchar_t letter;     // of a field; kSubject
        bool shown;         // the subject always is
        std::wstring kept;  // letters behind it that stand for no field, or for none offered
        bool operator==(const Row&) const = default;
    };
    static constexpr wchar_t kSubject = 0;

    explicit TitleRows(const DisplayPattern& pattern, std::wstring_view offered = kItemFields);

    const std::vector<Row>& rows() const { return rows_; }
    void Show(std::size_t row, bool shown) { rows_[row].shown = shown; }
    void Move(std::size_t from, std::size_t to);
    // The pattern of these rows. Letters that stand for no field stay behind the row they stood
    // behind, or at the very front.
    DisplayPattern Pattern(std::int32_t mode) const;

  private:
    std::wstring front_;
    std::vector<Row> rows_;
};

bool ShowsField(const DisplayPattern& pattern, wchar_t letter);
// A field that comes in stands last; nothing else moves.
void ShowField(DisplayPattern& pattern, wchar_t letter, bool shown);
