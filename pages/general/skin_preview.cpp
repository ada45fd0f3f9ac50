#include "pages/general/skin_preview.h"

#include <commctrl.h>

#include <algorithm>
#include <vector>

#include "app/language/language_table.h"
#include "appearance/drawing/sample_list.h"
#include "base/scale.h"
#include "resources/ids.h"

namespace {

// Design lengths.
constexpr int kTabGap = 4;     // beside a tab's icon
constexpr int kTabMargin = 1;  // above and below it
constexpr int kRowHeight = 17;
constexpr int kIconRowHeight = 14;  // at least

struct SampleItem {
    unsigned text;
    ItemIcon icon;
    std::vector<SkinIcon> marks;  // at the right
};

void Fill(HDC dc, const RECT& rect, int color) { FillRect(dc, &rect, GetSysColorBrush(color)); }

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

}  // namespace

void PaintItemIcons(HDC dc, const RECT& rect) {
    Fill(dc, rect, COLOR_WINDOW);
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() == SkinArt::kFailed) return;
    const int height = static_cast<int>(rect.bottom - rect.top);
    const int rows = std::max(1, height / ScaleY(kIconRowHeight));
    const int columns = (kItemIconCount + rows - 1) / rows;
    const int columnWidth = static_cast<int>(rect.right - rect.left) / columns;
    const int rowHeight = height / rows;
    for (int i = 0; i < kItemIconCount; ++i) {
        const int margin = (rowHeight - static_cast<int>(art.Icons()->PieceSize(i).cy)) / 2;
        art.Icons()->Draw(dc, i, rect.left + i % columns * columnWidth,
                          rect.top + i / columns * rowHeight + margin);
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
    RECT area = rect;
    area.top = PaintTabs(dc, rect, 0);
    SkinArt& art = GetSkinArt();
    if (art.LoadScrollBar() != SkinArt::kFailed) {
        area.right -= art.ScrollBar()->PieceSize(0).cx;
        PaintScrollBar(dc, {area.right, area.top, rect.right, rect.bottom});
    }
    // Whole rows, which share the height that is there.
    const int height = area.bottom - area.top;
    const int row = ScaleY(kRowHeight);
    SampleList list(dc, area, std::max(2, (height + row / 4) / row));
    list.AddGroup(GetLanguageTable().LoadString(IDS_SAMPLE_GROUP),
                  static_cast<int>(std::size(items)));
    TitleLook look;
    look.selected = true;
    for (const SampleItem& item : items) {
        look.marks = item.marks;
        list.AddTitle(item.icon, {}, GetLanguageTable().LoadString(item.text), look);
        look.selected = false;
    }
}
