#include "settings/title_fields.h"

#include <algorithm>

TitleRows::TitleRows(const DisplayPattern& pattern, std::wstring_view offered) {
    const auto add = [this, offered](const std::wstring& letters) {
        for (const wchar_t letter : letters) {
            const bool again = std::ranges::any_of(
                rows_, [letter](const Row& row) { return row.letter == letter; });
            if (offered.find(letter) != offered.npos) {
                if (!again) rows_.push_back({letter, true, {}});
            } else {
                (rows_.empty() ? front_ : rows_.back().kept) += letter;
            }
        }
    };
    add(pattern.before);
    rows_.push_back({kSubject, true, {}});
    add(pattern.after);
    for (const TitleField& field : kTitleFields) {
        if (offered.find(field.letter) == offered.npos) continue;
        if (!ShowsField(pattern, field.letter)) rows_.push_back({field.letter, false, {}});
    }
}

void TitleRows::Move(std::size_t from, std::size_t to) {
    const Row row = rows_[from];
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(from));
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(to), row);
}

DisplayPattern TitleRows::Pattern(std::int32_t mode) const {
    DisplayPattern pattern{front_, mode, L""};
    std::wstring* letters = &pattern.before;
    for (const Row& row : rows_) {
        if (row.letter == kSubject) {
            letters = &pattern.after;
        } else if (row.shown) {
            *letters += row.letter;
        }
        *letters += row.kept;
    }
    return pattern;
}

bool ShowsField(const DisplayPattern& pattern, wchar_t letter) {
    return (pattern.before + pattern.after).find(letter) != std::wstring::npos;
}

void ShowField(DisplayPattern& pattern, wchar_t letter, bool shown) {
    if (shown) {
        if (!ShowsField(pattern, letter)) pattern.after += letter;
    } else {
        std::erase(pattern.before, letter);
        std::erase(pattern.after, letter);
    }
}
