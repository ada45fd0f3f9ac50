#include "appearance/sample_list.h"

#include "appearance/fonts.h"
#include "appearance/scale.h"
#include "appearance/skin_art.h"
#include "controls/owned_handle.h"

namespace {

constexpr int kIconLeft = 3;
constexpr int kTextLeft = 22;
constexpr int kIndent = 10;
constexpr int kRight = 3;
constexpr UINT kText = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX;

}  // namespace

SampleList::SampleList(HDC dc, const RECT& area, int rows)
    : dc_(dc), area_(area), rowHeight_(static_cast<int>(area.bottom - area.top) / rows) {
    SetBkMode(dc, TRANSPARENT);
}

bool SampleList::NextRow(RECT& row) {
    const LONG top = area_.top + next_ * rowHeight_;
    row = {area_.left, top, area_.right, top + rowHeight_};
    if (row.bottom > area_.bottom) return false;
    ++next_;
    return true;
}

void SampleList::AddGroup(const std::wstring& title, int count, const FoldingStripe& stripe) {
    RECT row;
    if (NextRow(row)) stripe.Draw(dc_, row, title, count);
}

void SampleList::AddItem(ItemIcon icon, const std::wstring& text, const std::wstring& details) {
    RECT row;
    if (!NextRow(row)) return;
    if (indented_) row.left += ScaleX(kIndent);
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() != SkinArt::kFailed) {
        const SIZE size = art.Icons()->PieceSize(static_cast<int>(icon));
        art.DrawItemIcon(dc_, icon, row.left + ScaleX(kIconLeft),
                         (row.top + row.bottom - size.cy) / 2);
    }
    row.left += ScaleX(kTextLeft);
    row.right -= ScaleX(kRight);
    const SelectedObject font(dc_, ListFont(FontStyle::kNormal));
    SetTextColor(dc_, GetSysColor(COLOR_WINDOWTEXT));
    if (!details.empty()) {
        RECT measured = {};
        const int length = static_cast<int>(details.size());
        DrawTextW(dc_, details.c_str(), length, &measured, kText | DT_CALCRECT);
        DrawTextW(dc_, details.c_str(), length, &row, kText | DT_RIGHT);
        row.right -= measured.right + ScaleX(kRight);
    }
    DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &row, kText);
}
