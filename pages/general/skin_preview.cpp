#include "pages/general/skin_preview.h"

#include <commctrl.h>

#include <algorithm>

#include "app/language/language_table.h"
#include "appearance/drawing/folding_stripe.h"
#include "appearance/drawing/today_background.h"
#include "appearance/skins/skin_art.h"
#include "base/scale.h"
#include "resources/ids.h"

namespace {

// Design lengths.
constexpr int kIconGap = 2;
constexpr int kTextGap = 3;
constexpr int kTabGap = 4;     // beside a tab's icon
constexpr int kTabMargin = 1;  // above and below it
constexpr int kTextLeft = 22;  // of a group's title, where item texts begin as well
constexpr int kHeaderHeight = 14;
constexpr int kRowHeight = 17;

struct SampleItem {
    unsigned text;
    ItemIcon icon;
    std::initializer_list<SkinIcon> marks;  // behind the text
};

void Fill(HDC dc, const RECT& rect, int color) { FillRect(dc, &rect, GetSysColorBrush(color)); }

void DrawLabel(HDC dc, const RECT& row, const std::wstring& text) {
    RECT rect = {row.left + ScaleX(kTextLeft), row.top, row.right, row.bottom};
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// Returns where the tabs end.
int PaintTabs(HDC dc, const RECT& rect, int selected) {
    if (GetSkinArt().LoadTabIcons() == SkinArt::kFailed) return rect.top;
    const HIMAGELIST icons = GetSkinArt().TabIcons();
    const int size = ScaleX(16);
    const int bottom = rect.top + size + 2 * ScaleY(kTabMargin);
    const RECT row = {rect.left, rect.top, rect.right, bottom};
    Fill(dc, row, COLOR_BTNFACE);
    const int step = size + ScaleX(2 * kTabGap);
    for (int i = 0; i < std::min(kTabIconCount, ImageList_GetImageCount(icons)); ++i) {
        const int left = rect.left + i * step;
        if (i == selected) Fill(dc, {left, rect.top, left + step, bottom}, COLOR_WINDOW);
        ImageList_Draw(icons, i, dc, left + ScaleX(kTabGap), rect.top + ScaleY(kTabMargin),
                       ILD_TRANSPARENT);
    }
    return bottom;
}

void PaintItem(HDC dc, const RECT& row, const SampleItem& item, bool selected) {
    const COLORREF textColor = GetTextColor(dc);
    if (selected) {
        Fill(dc, row, COLOR_HIGHLIGHT);
        SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
    }
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() == SkinArt::kFailed) return;
    const SIZE icon = art.Icons()->PieceSize(static_cast<int>(item.icon));
    art.DrawItemIcon(dc, item.icon, row.left + ScaleX(kTextGap),
                     (row.top + row.bottom - icon.cy) / 2);
    DrawLabel(dc, row, GetLanguageTable().LoadString(item.text));
    SetTextColor(dc, textColor);
    int x = row.right;
    for (const SkinIcon mark : item.marks) {
        x -= icon.cx + ScaleX(kIconGap);
        DrawIconEx(dc, x, (row.top + row.bottom - icon.cy) / 2, art.Icon(mark), icon.cx, icon.cy, 0,
                   nullptr, DI_NORMAL);
    }
}

}  // namespace

void PaintItemIcons(HDC dc, const RECT& rect) {
    Fill(dc, rect, COLOR_WINDOW);
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() == SkinArt::kFailed) return;
    constexpr int kColumns = 10;
    constexpr int kRows = kItemIconCount / kColumns;
    const int columnWidth = static_cast<int>(rect.right - rect.left) / kColumns;
    const int rowHeight = static_cast<int>(rect.bottom - rect.top) / kRows;
    for (int i = 0; i < kItemIconCount; ++i) {
        const int margin = (rowHeight - static_cast<int>(art.Icons()->PieceSize(i).cy)) / 2;
        art.Icons()->Draw(dc, i, rect.left + i % kColumns * columnWidth,
                          rect.top + i / kColumns * rowHeight + margin);
    }
}

void PaintScrollBar(HDC dc, const RECT& rect) {
    Fill(dc, rect, COLOR_WINDOW);
    SkinArt& art = GetSkinArt();
    if (art.LoadScrollBar() == SkinArt::kFailed) return;
    const SkinStrip& strip = *art.ScrollBar();
    const int up = static_cast<int>(ScrollBarPart::kUp);
    const int down = static_cast<int>(ScrollBarPart::kDown);
    const int top = rect.top + strip.PieceSize(up).cy;
    const int bottom = rect.bottom - strip.PieceSize(down).cy;
    strip.DrawStretched(dc, static_cast<int>(ScrollBarPart::kTrack), rect.left, top, bottom - top);
    strip.DrawStretched(dc, static_cast<int>(ScrollBarPart::kThumb), rect.left, top,
                        (bottom - top) / 2);
    strip.Draw(dc, up, rect.left, rect.top);
    strip.Draw(dc, down, rect.left, bottom);
}

void PaintSampleList(HDC dc, const RECT& rect) {
    const SampleItem items[] = {
        {IDS_SAMPLE_APPOINTMENT,
         ItemIcon::kAppointment,
         {SkinIcon::kReminder, SkinIcon::kRecurrence}},
        {IDS_SAMPLE_TASK, ItemIcon::kTaskOpen, {SkinIcon::kNote}},
        {IDS_SAMPLE_BIRTHDAY, ItemIcon::kBirthday, {SkinIcon::kPrivate}},
        {IDS_SAMPLE_MESSAGE, ItemIcon::kMessageUnread, {}},
    };
    SetBkMode(dc, TRANSPARENT);
    PaintTodayBackground(dc, rect);
    RECT row = rect;
    row.top = PaintTabs(dc, rect, 0);
    SkinArt& art = GetSkinArt();
    if (art.LoadScrollBar() != SkinArt::kFailed) {
        row.right -= art.ScrollBar()->PieceSize(0).cx;
        PaintScrollBar(dc, {row.right, row.top, rect.right, rect.bottom});
    }
    row.bottom = row.top + ScaleY(kHeaderHeight);
    FoldingStripe().Draw(dc, row, GetLanguageTable().LoadString(IDS_SAMPLE_GROUP),
                         static_cast<int>(std::size(items)));
    // Whole rows, which share the height that is left.
    const int space = rect.bottom - row.bottom;
    const int rows = std::max(1, (space + ScaleY(kRowHeight) / 4) / ScaleY(kRowHeight));
    for (int i = 0; i < std::min(rows, static_cast<int>(std::size(items))); ++i) {
        row.top = row.bottom;
        row.bottom += std::min(space / rows, ScaleY(kRowHeight));
        PaintItem(dc, row, items[i], i == 0);
    }
}
