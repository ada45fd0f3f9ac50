#pragma once

#include <windows.h>

#include <string>

// A list view whose rows have check boxes and a number each. The window stays its dialog's.
class CheckList {
  public:
    // Gives the list view its check boxes and its column.
    void Attach(HWND list);
    HWND hwnd() const { return hwnd_; }

    int Count() const;
    void Insert(int position, std::wstring text, LPARAM value, bool checked);
    void Remove(int position);
    LPARAM ValueAt(int position) const;
    bool IsChecked(int position) const;
    int Selected() const;  // -1: none
    void Select(int position);
    // For LVN_KEYDOWN: up from the first row and down from the last leave the list, so that a
    // device without a Tab key reaches the other controls.
    void OnKey(WORD key) const;
    // Makes the column as wide as the list, once its rows are there.
    void FitColumn();

  private:
    HWND hwnd_ = nullptr;
};
