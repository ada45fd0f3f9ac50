#include "appearance/drawing/sample_list.h"

#include <algorithm>
#include <optional>

#include "appearance/drawing/fonts.h"
#include "appearance/drawing/shell_colors.h"
#include "appearance/drawing/theme_colors.h"
#include "appearance/drawing/today_background.h"
#include "base/owned_handle.h"
#include "base/scale.h"

namespace {

constexpr int kIconLeft = 3;
constexpr int kTextLeft = 22;
constexpr int kIndent = 10;
constexpr int kRight = 3;
constexpr int kStatusBarWidth = 3;
constexpr int kGap = 2;  // beside the subject
constexpr int kLowestRow = 15, kHighestRow = 24;
// The modes of a title pattern that show more than one line.
constexpr std::int32_t kWholeSubjectOfSelected = 1;
constexpr std::int32_t kWholeSubject = 2;
constexpr UINT kText = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX;
constexpr UINT kMeasure = DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT;

std::optional<ItemIcon> IconOf(wchar_t field) {
    switch (field) {
        case L'p': return ItemIcon::kImportanceHigh;
        case L'n': return ItemIcon::kNote;
        case L'r': return ItemIcon::kReminder;
        case L'q': return ItemIcon::kRecurrence;
        case L's': return ItemIcon::kPrivate;
        case L'c': return ItemIcon::kCategory;
        case L'a': return ItemIcon::kAttendees;
    }
    return std::nullopt;
}

}  // namespace

SampleList::SampleList(HDC dc, const RECT& area, int rows)
    : dc_(dc),
      area_(area),
      rowHeight_(std::clamp(static_cast<int>(area.bottom - area.top) / rows, ScaleY(kLowestRow),
                            ScaleY(kHighestRow))) {
    SetBkMode(dc, TRANSPARENT);
    PaintTodayBackground(dc, area);
    textColor_ = GetTextColor(dc);
}

// Two parts of the text's colour and one of the window's, which can be read on any picture.
COLORREF SampleList::DetailColor() const {
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const auto mix = [](int text, int paper) { return (2 * text + paper) / 3; };
    return RGB(mix(GetRValue(textColor_), GetRValue(window)),
               mix(GetGValue(textColor_), GetGValue(window)),
               mix(GetBValue(textColor_), GetBValue(window)));
}

bool SampleList::NextRow(RECT& row, int lines) {
    const LONG top = area_.top + next_ * rowHeight_;
    row = {area_.left, top, area_.right, top + lines * rowHeight_};
    if (row.bottom > area_.bottom) return false;
    next_ += lines;
    return true;
}

// Centred in the first line of `row`; returns the icon's width.
int SampleList::DrawIcon(ItemIcon icon, int x, const RECT& row) const {
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() == SkinArt::kFailed) return 0;
    const SIZE size = art.Icons()->PieceSize(static_cast<int>(icon));
    art.DrawItemIcon(dc_, icon, x, row.top + (rowHeight_ - size.cy) / 2);
    return size.cx;
}

void SampleList::AddGroup(const std::wstring& title, int count, const FoldingStripe& stripe) {
    RECT row;
    if (!NextRow(row)) return;
    SetTextColor(dc_, textColor_);
    stripe.Draw(dc_, row, title, count);
}

void SampleList::AddItem(ItemIcon icon, const std::wstring& text, const std::wstring& details) {
    RECT row;
    if (!NextRow(row)) return;
    if (indented_) row.left += ScaleX(kIndent);
    DrawIcon(icon, row.left + ScaleX(kIconLeft), row);
    row.left += ScaleX(kTextLeft);
    row.right -= ScaleX(kRight);
    const SelectedObject font(dc_, ListFont(FontStyle::kNormal));
    SetTextColor(dc_, textColor_);
    if (!details.empty()) {
        RECT measured = {};
        const int length = static_cast<int>(details.size());
        DrawTextW(dc_, details.c_str(), length, &measured, kMeasure);
        DrawTextW(dc_, details.c_str(), length, &row, kText | DT_RIGHT);
        row.right -= measured.right + ScaleX(kRight);
    }
    DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &row, kText);
}

void SampleList::AddTitle(std::optional<ItemIcon> icon, const DisplayPattern& pattern,
                          const std::wstring& subject, const TitleLook& look) {
    const bool whole =
        pattern.mode == kWholeSubject || (pattern.mode == kWholeSubjectOfSelected && look.selected);
    RECT row;
    if (!NextRow(row, whole ? 2 : 1)) return;
    ThemeColors& theme = GetThemeColors();
    if (look.selected) {
        FillRect(dc_, &row, theme.GetBrush(ThemeColor::kHighlight));
    } else if (look.color) {
        theme.SetOwnerColor(BlendCategoryColor(*look.color, GetSysColor(COLOR_WINDOW)));
        FillRect(dc_, &row, theme.GetBrush(ThemeColor::kOwner));
    }
    if (indented_) row.left += ScaleX(kIndent);
    if (look.status) {
        const OwnedBrush brush(CreateSolidBrush(GetApptStatusColor(*look.status)));
        const RECT bar = {row.left, row.top, row.left + ScaleX(kStatusBarWidth), row.bottom};
        FillRect(dc_, &bar, brush.get());
        if (look.conflicting) {
            const RECT half = {bar.left, (bar.top + bar.bottom) / 2, bar.right, bar.bottom};
            FillRect(dc_, &half, theme.GetBrush(ThemeColor::kConflicting));
        }
    }
    if (icon) DrawIcon(*icon, row.left + ScaleX(kIconLeft), row);
    row.left += ScaleX(icon ? kTextLeft : kIconLeft);
    row.right -= ScaleX(kRight);
    for (const wchar_t letter : pattern.before) {
        if (const auto field = IconOf(letter)) row.left += DrawIcon(*field, row.left, row);
    }
    // Behind the subject where it ends, or at the right edge behind a long one.
    const auto icons = static_cast<int>(std::ranges::count_if(
        pattern.after, [](wchar_t letter) { return IconOf(letter).has_value(); }));
    SkinArt& art = GetSkinArt();
    const int iconWidth = art.Icons() ? static_cast<int>(art.Icons()->PieceSize(0).cx) : 0;
    for (const SkinIcon mark : look.marks) {
        row.right -= iconWidth + ScaleX(kGap);
        DrawIconEx(dc_, row.right, row.top + (rowHeight_ - iconWidth) / 2, art.Icon(mark),
                   iconWidth, iconWidth, 0, nullptr, DI_NORMAL);
    }
    RECT text = row;
    text.left += ScaleX(kGap);
    text.right -= icons * iconWidth + ScaleX(kGap);
    const SelectedObject font(dc_, ListFont(FontStyle::kNormal, look.done));
    if (!look.details.empty()) {
        SetTextColor(dc_, DetailColor());
        const int size = static_cast<int>(look.details.size());
        RECT measured = {};
        DrawTextW(dc_, look.details.c_str(), size, &measured, kMeasure);
        DrawTextW(dc_, look.details.c_str(), size, &row, kText | DT_RIGHT);
        text.right -= measured.right + ScaleX(kGap);
    }
    SetTextColor(dc_, look.selected ? theme.GetColor(ThemeColor::kHighlightedText) : textColor_);
    const int length = static_cast<int>(subject.size());
    RECT measured = text;
    DrawTextW(dc_, subject.c_str(), length, &measured, kText | DT_CALCRECT);
    DrawTextW(dc_, subject.c_str(), length, &text, whole ? DT_WORDBREAK | DT_NOPREFIX : kText);
    int x = static_cast<int>(std::min(measured.right, text.right)) + ScaleX(kGap);
    for (const wchar_t letter : pattern.after) {
        if (const auto field = IconOf(letter)) x += DrawIcon(*field, x, row);
    }
}

void SampleList::AddDetail(const std::wstring& text) {
    RECT row;
    if (!NextRow(row)) return;
    row.left += ScaleX(kTextLeft + (indented_ ? kIndent : 0));
    const SelectedObject font(dc_, ListFont(FontStyle::kNormal));
    SetTextColor(dc_, DetailColor());
    DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &row, kText);
}
