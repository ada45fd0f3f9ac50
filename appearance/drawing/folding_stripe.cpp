#include "appearance/drawing/folding_stripe.h"

#include <algorithm>

#include "appearance/drawing/fonts.h"
#include "appearance/skins/skin_art.h"
#include "base/owned_handle.h"
#include "base/scale.h"

namespace {

constexpr int kMargin = 3;
constexpr int kMarkSize = 9;
constexpr int kMarkPlace = 14;  // width kept for the mark

COLORREF Mix(COLORREF a, COLORREF b, int share, int whole) {
    const auto channel = [=](int x, int y) { return (x * (whole - share) + y * share) / whole; };
    return RGB(channel(GetRValue(a), GetRValue(b)), channel(GetGValue(a), GetGValue(b)),
               channel(GetBValue(a), GetBValue(b)));
}

void Fill(HDC dc, const RECT& area, COLORREF color) {
    const OwnedBrush brush(CreateSolidBrush(color));
    FillRect(dc, &area, brush.get());
}

// From the highlight colour at the left to the window colour at the right.
void Shade(HDC dc, const RECT& area) {
    const COLORREF from = Mix(GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_WINDOW), 1, 2);
    const int width = area.right - area.left;
    const int step = ScaleX(4);
    for (int x = 0; x < width; x += step) {
        const RECT part = {area.left + x, area.top,
                           std::min<LONG>(area.left + x + step, area.right), area.bottom};
        Fill(dc, part, Mix(from, GetSysColor(COLOR_WINDOW), x, width));
    }
}

}  // namespace

void FoldingStripe::Draw(HDC dc, const RECT& area, const std::wstring& title, int count) const {
    COLORREF text = GetTextColor(dc);
    switch (style) {
        case StripeStyle::kPlain: break;
        case StripeStyle::kLine:
            Fill(dc, {area.left, area.bottom - ScaleY(1), area.right, area.bottom},
                 GetSysColor(COLOR_HIGHLIGHT));
            break;
        case StripeStyle::kShaded: Shade(dc, area); break;
        case StripeStyle::kFilled:
            Fill(dc, area, GetSysColor(COLOR_HIGHLIGHT));
            text = GetSysColor(COLOR_HIGHLIGHTTEXT);
            break;
    }
    RECT place = area;
    if (showCollapseIcon) {
        const int size = ScaleX(kMarkSize);
        DrawIconEx(dc, area.left + ScaleX(kMargin), (area.top + area.bottom - size) / 2,
                   GetSkinArt().Icon(SkinIcon::kExpanded), size, size, 0, nullptr, DI_NORMAL);
        place.left += ScaleX(kMarkPlace);
    }
    place.left += ScaleX(kMargin);
    place.right -= ScaleX(kMargin);
    std::wstring shown = title;
    if (drawCounter) shown += L" (" + std::to_wstring(count) + L")";
    const SelectedObject font(dc, ListFont(FontStyle::kBold));
    SetTextColor(dc, text);
    DrawTextW(dc, shown.c_str(), static_cast<int>(shown.size()), &place,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}
