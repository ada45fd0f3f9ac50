#include "pages/shared/title_editor.h"

#include <commctrl.h>

#include "app/language/language_table.h"
#include "controls/focus_keeper.h"
#include "resources/ids.h"

namespace {

std::wstring LabelOf(wchar_t letter) {
    for (const TitleField& field : kTitleFields) {
        if (field.letter == letter) return GetLanguageTable().LoadString(field.label);
    }
    return GetLanguageTable().LoadString(IDS_FIELD_SUBJECT);
}

}  // namespace

void TitleEditor::Attach(HWND page) {
    page_ = page;
    list_.Attach(GetDlgItem(page, IDC_TITLE_FIELDS), CheckList::Order::kFixed);
}

void TitleEditor::Show(DisplayPattern& pattern, std::wstring_view offered) {
    pattern_ = &pattern;
    offered_ = offered;
    FillList(0);
}

void TitleEditor::FillList(int selected) {
    filling_ = true;
    const HWND list = GetDlgItem(page_, IDC_TITLE_FIELDS);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    list_.Clear();
    int position = 0;
    const TitleRows rows = Rows();
    for (const TitleRows::Row& row : rows.rows()) {
        list_.Insert(position++, LabelOf(row.letter), row.letter, row.shown);
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    list_.FitColumn();
    list_.Select(selected);
    filling_ = false;
    UpdateButtons();
}

bool TitleEditor::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id == IDC_TITLE_UP) return Move(-1);
    if (id == IDC_TITLE_DOWN) return Move(1);
    return false;
}

bool TitleEditor::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_TITLE_FIELDS || filling_) return false;
    switch (header.code) {
        case LVN_ITEMCHANGED: {
            const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
            if (CheckList::IsSelected(header)) UpdateButtons();
            if (!((change.uNewState ^ change.uOldState) & LVIS_STATEIMAGEMASK)) return false;
            return OnChecked(change.iItem);
        }
        case LVN_KEYDOWN:
            switch (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey) {
                case VK_LEFT: return Move(-1);
                case VK_RIGHT: return Move(1);
            }
            list_.OnKeyDown(header);
    }
    return false;
}

// Fields that are not shown have no place of their own: they stand last, in their usual order.
bool TitleEditor::Move(int by) {
    const int from = list_.Selected(), to = from + by;
    TitleRows rows = Rows();
    if (from < 0 || to < 0 || to >= list_.Count()) return false;
    if (!rows.rows()[static_cast<std::size_t>(from)].shown ||
        !rows.rows()[static_cast<std::size_t>(to)].shown) {
        return false;
    }
    rows.Move(static_cast<std::size_t>(from), static_cast<std::size_t>(to));
    *pattern_ = rows.Pattern(pattern_->mode);
    FillList(to);
    return true;
}

bool TitleEditor::OnChecked(int row) {
    TitleRows rows = Rows();
    const TitleRows::Row& changed = rows.rows()[static_cast<std::size_t>(row)];
    const wchar_t letter = changed.letter;
    if (letter != TitleRows::kSubject) {
        rows.Show(static_cast<std::size_t>(row), list_.IsChecked(row));
        *pattern_ = rows.Pattern(pattern_->mode);
    }
    // The field may have another place now; the subject cannot be left out.
    const std::vector<TitleRows::Row> now = Rows().rows();
    int place = 0;
    while (now[static_cast<std::size_t>(place)].letter != letter) ++place;
    FillList(place);
    return true;
}

void TitleEditor::UpdateButtons() const {
    const int selected = list_.Selected();
    const std::vector<TitleRows::Row> rows = Rows().rows();
    const auto shown = [&](int row) {
        return row >= 0 && row < static_cast<int>(rows.size()) &&
               rows[static_cast<std::size_t>(row)].shown;
    };
    const bool movable = shown(selected);
    const FocusKeeper keeper(page_, IDC_TITLE_FIELDS);
    EnableWindow(GetDlgItem(page_, IDC_TITLE_UP), movable && shown(selected - 1));
    EnableWindow(GetDlgItem(page_, IDC_TITLE_DOWN), movable && shown(selected + 1));
}
