#pragma once

#include <windows.h>

#include <string>

#include "appearance/folding_stripe.h"
#include "appearance/item_icons.h"

// Paints a few sample lines as the diary would show them: headings of groups, and items with the
// skin's icons in the list's font. What does not fit is left out.
class SampleList {
  public:
    // `rows` lines share the height of `area`.
    SampleList(HDC dc, const RECT& area, int rows);

    void AddGroup(const std::wstring& title, int count, const FoldingStripe& stripe = {});
    // `details` stand at the right.
    void AddItem(ItemIcon icon, const std::wstring& text, const std::wstring& details = {});
    // Whether the items that follow stand indented below their group.
    void SetIndented(bool indented) { indented_ = indented; }

  private:
    // The next line; false when there is no room for it.
    bool NextRow(RECT& row);

    HDC dc_;
    RECT area_;
    int rowHeight_;
    int next_ = 0;
    bool indented_ = false;
};
