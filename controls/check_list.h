#pragma once

#include <windows.h>

#include <string>

// A list view with a check box before each row, and the keys with which it is used without a
// stylus.
class CheckList {
  public:
    enum class Order { kFixed, kMovable };

    // Takes over a dialog's list view: one column.
    void Attach(HWND list, Order order);

    void Insert(int position, const std::wstring& text, LPARAM data, bool checked);
    void Clear();
    int Count() const;
    LPARAM Data(int position) const;
    bool IsChecked(int position) const;
    void SetChecked(int position, bool checked);
    int Selected() const;  // -1: none
    void Select(int position);
    // Moves the selected row up (-1) or down (1); false when it cannot go further.
    bool MoveSelected(int by);

    // Whether LVN_ITEMCHANGED says that a row was selected.
    static bool IsSelected(const NMHDR& header);
    // Makes the column as wide as the list, once its rows are there.
    void FitColumn();

    // LVN_KEYDOWN. Left and right move the row where the order is movable. Up in the first row and
    // down in the last leave the list, so that a device without a Tab key reaches what is around.
    void OnKeyDown(const NMHDR& header);

  private:
    HWND list_ = nullptr;
    Order order_ = Order::kFixed;
};
