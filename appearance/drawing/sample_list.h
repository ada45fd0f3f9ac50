#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "appearance/drawing/category_color.h"
#include "appearance/drawing/folding_stripe.h"
#include "appearance/skins/skin_art.h"
#include "settings/title_fields.h"

// How a sample item differs from the usual.
struct TitleLook {
    bool selected = false;
    bool done = false;                   // struck out
    std::optional<int> status;           // an appointment's, drawn as a bar in its colour
    bool conflicting = false;            // half of that bar is in the colour of conflicts
    std::optional<CategoryColor> color;  // of its category: the line's background
    std::vector<SkinIcon> marks;         // at the right
    std::wstring details;                // left of them, paler
};

// Paints a few sample lines as the diary would show them on the Today screen: headings of groups,
// and items with the skin's icons in the list's font. What does not fit is left out.
class SampleList {
  public:
    // `rows` lines share the height of `area`.
    SampleList(HDC dc, const RECT& area, int rows);

    void AddGroup(const std::wstring& title, int count, const FoldingStripe& stripe = {});
    // `details` stand at the right.
    void AddItem(ItemIcon icon, const std::wstring& text, const std::wstring& details = {});
    // An item with the fields of its title: those before the subject, the subject, those behind.
    // The subject takes one line, or two where its mode says so of this item.
    void AddTitle(std::optional<ItemIcon> icon, const DisplayPattern& pattern,
                  const std::wstring& subject, const TitleLook& look = {});
    // A line of its own with more of an item, paler than its text.
    void AddDetail(const std::wstring& text);
    // Whether the items that follow stand indented below their group.
    void SetIndented(bool indented) { indented_ = indented; }

  private:
    // The next lines; false when there is no room for them.
    bool NextRow(RECT& row, int lines = 1);
    COLORREF DetailColor() const;
    int DrawIcon(ItemIcon icon, int x, const RECT& row) const;

    HDC dc_;
    RECT area_;
    int rowHeight_;
    COLORREF textColor_;
    int next_ = 0;
    bool indented_ = false;
};
