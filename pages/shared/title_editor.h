#pragma once

#include "controls/check_list.h"
#include "settings/title_fields.h"

// The part of a page that edits a title pattern: its fields in a list with the subject among them,
// two buttons that move them (IDC_TITLE_FIELDS, IDC_TITLE_UP, IDC_TITLE_DOWN). A pattern that the
// user leaves alone is not changed by a letter.
class TitleEditor {
  public:
    void Attach(HWND page);
    // Lists a pattern with the fields that are offered and edits it from now on; it must outlive
    // that.
    void Show(DisplayPattern& pattern, std::wstring_view offered);

    // The page's WM_COMMAND and WM_NOTIFY; true when the pattern has changed.
    bool OnCommand(int id, int code);
    bool OnNotify(const NMHDR& header);

  private:
    TitleRows Rows() const { return TitleRows(*pattern_, offered_); }
    void FillList(int selected);
    bool Move(int by);
    bool OnChecked(int row);
    void UpdateButtons() const;

    HWND page_ = nullptr;
    CheckList list_;
    DisplayPattern* pattern_ = nullptr;
    std::wstring_view offered_;
    bool filling_ = false;
};
