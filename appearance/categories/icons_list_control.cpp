#include "appearance/categories/icons_list_control.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "app/language/module.h"
#include "appearance/categories/icon_header.h"
#include "appearance/drawing/theme_colors.h"
#include "base/scale.h"

namespace {

// Pixels at 96 dots per inch.
constexpr int kHeaderHeight = 15;
constexpr int kLineHeight = 1;
constexpr int kMarkSize = 9;
constexpr int kMarkLeft = 6;
constexpr int kTitleLeft = 22;
constexpr int kIndent = 20;
constexpr int kSmallestIcon = 15;
constexpr int kIconMargin = 4;  // within a cell, on each side

void FillWith(HDC dc, const RECT& area, int systemColor) {
    FillRect(dc, &area, GetSysColorBrush(systemColor));
}

// A triangle that points down to what is shown, or to what is not.
void PaintPlainMark(HDC dc, const RECT& area, bool expanded) {
    const int middleX = (area.left + area.right) / 2;
    const int middleY = (area.top + area.bottom) / 2;
    const int step = (area.right - area.left) / 4;
    const POINT down[] = {{middleX - 2 * step, middleY - step},
                          {middleX + 2 * step, middleY - step},
                          {middleX, middleY + step}};
    const POINT right[] = {{middleX - step, middleY - 2 * step},
                           {middleX + step, middleY},
                           {middleX - step, middleY + 2 * step}};
    const OwnedBrush brush(CreateSolidBrush(GetTextColor(dc)));
    const SelectedObject selectedBrush(dc, brush.get());
    const OwnedPen pen(CreatePen(PS_SOLID, 1, GetTextColor(dc)));
    const SelectedObject selectedPen(dc, pen.get());
    Polygon(dc, expanded ? down : right, 3);
}

int TextWidth(HDC dc, const std::wstring& text) {
    RECT area = {};
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    return area.right;
}

// However long the title, the count behind it shows.
void PaintTitle(HDC dc, RECT area, const std::wstring& title, const std::wstring& count) {
    const auto draw = [&](const std::wstring& text, const RECT& where) {
        RECT rect = where;
        DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    };
    const std::wstring whole = title + count;
    if (TextWidth(dc, whole) <= area.right - area.left) {
        draw(whole, area);
        return;
    }
    RECT end = area;
    end.left = std::max(area.left, area.right - TextWidth(dc, count));
    area.right = end.left;
    draw(title, area);
    draw(count, end);
}

// Icons stand in cells that fit the largest of them.
IconGridMetrics MetricsFor(const IconLibrary* library) {
    int width = ScaleX(kSmallestIcon);
    int height = ScaleY(kSmallestIcon);
    if (library) {
        for (const IconLibrary::Group& group : library->groups()) {
            for (const IconLibrary::Icon& icon : group.icons) {
                width = std::max<int>(width, icon.picture.width);
                height = std::max<int>(height, icon.picture.height);
            }
        }
    }
    return {ScaleY(kHeaderHeight), ScaleX(kIndent), width + 2 * ScaleX(kIconMargin),
            height + 2 * ScaleY(kIconMargin)};
}

std::optional<IconMove> MoveOf(WPARAM key) {
    switch (key) {
        case VK_LEFT: return IconMove::kLeft;
        case VK_RIGHT: return IconMove::kRight;
        case VK_UP: return IconMove::kUp;
        case VK_DOWN: return IconMove::kDown;
        case VK_PRIOR: return IconMove::kPageUp;
        case VK_NEXT: return IconMove::kPageDown;
        case VK_HOME: return IconMove::kFirst;
        case VK_END: return IconMove::kLast;
    }
    return std::nullopt;
}

}  // namespace

bool IconsListControl::Create(HWND parent, int id, const RECT& rect, MarkPainter paintMark) {
    paintMark_ = paintMark ? std::move(paintMark) : PaintPlainMark;
    if (!Window::Create(kIconsListClass, L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP, rect,
                        parent, ModuleInstance(), CS_DBLCLKS)) {
        return false;
    }
    SetWindowLongPtrW(hwnd(), GWLP_ID, id);
    font_ = reinterpret_cast<HFONT>(SendMessageW(parent, WM_GETFONT, 0, 0));
    return true;
}

void IconsListControl::Show(const IconLibrary* library) {
    library_ = library;
    metrics_ = MetricsFor(library);
    expanded_.assign(library ? library->groups().size() : 0, true);
    selected_.reset();
    grid_ = IconGrid();  // of the library before
    ScrollTo(0);
    Arrange();
}

int IconsListControl::GroupCount() const { return static_cast<int>(expanded_.size()); }

const IconLibrary::Icon* IconsListControl::SelectedIcon() const {
    if (!selected_ || selected_->isHeader()) return nullptr;
    return &library_->groups()[static_cast<std::size_t>(selected_->group)]
                .icons[static_cast<std::size_t>(selected_->icon)];
}

std::optional<std::wstring> IconsListControl::SelectedPath() const {
    const IconLibrary::Icon* const icon = SelectedIcon();
    return icon ? std::optional(icon->Path()) : std::nullopt;
}

std::optional<LRESULT> IconsListControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: {
            // Enter opens, closes and activates; without a selection it is the dialog's.
            LRESULT code = DLGC_WANTARROWS;
            const auto* const key = reinterpret_cast<const MSG*>(lParam);
            if (key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN && selected_)
                code |= DLGC_WANTMESSAGE;
            return code;
        }
        case WM_SIZE: Arrange(); return 0;
        case WM_VSCROLL: OnScroll(LOWORD(wParam)); return 0;
        case WM_KEYDOWN:
            if (OnKey(wParam)) return 0;
            return std::nullopt;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            SetFocus(hwnd());
            OnStylusDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) + Position()},
                         message == WM_LBUTTONDBLCLK);
            return 0;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: OnPaint(); return 0;
    }
    return std::nullopt;
}

void IconsListControl::Arrange() {
    RECT client = {};
    GetClientRect(hwnd(), &client);
    std::vector<IconGroupShape> shapes;
    for (int group = 0; group < GroupCount(); ++group) {
        const auto& icons = library_->groups()[static_cast<std::size_t>(group)].icons;
        shapes.push_back({static_cast<int>(icons.size()), IsExpanded(group)});
    }
    grid_ = IconGrid(metrics_, client.right, std::move(shapes));
    ScrollTo(Position());
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL;
    info.nMax = std::max(0, grid_.height() - 1);
    info.nPage = static_cast<UINT>(client.bottom);
    SetScrollInfo(hwnd(), SB_VERT, &info, TRUE);
    InvalidateRect(hwnd(), nullptr, FALSE);
}

void IconsListControl::Toggle(int group) {
    const bool expanded = !IsExpanded(group);
    expanded_[static_cast<std::size_t>(group)] = expanded;
    if (!expanded && selected_ && selected_->group == group) Select(IconPlace{group});
    Arrange();
}

void IconsListControl::Select(std::optional<IconPlace> place) {
    if (place == selected_) return;
    if (selected_) Invalidate(*selected_);
    selected_ = place;
    if (selected_) Invalidate(*selected_);
    Notify(kIconsListSelected);
}

void IconsListControl::Activate(const IconPlace& place) {
    if (place.isHeader()) {
        Toggle(place.group);
    } else {
        Notify(kIconsListActivated);
    }
}

void IconsListControl::Notify(int code) const {
    SendMessageW(GetParent(hwnd()), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd()), code),
                 reinterpret_cast<LPARAM>(hwnd()));
}

void IconsListControl::OnStylusDown(const GridPoint& point, bool twice) {
    const std::optional<IconPlace> place = grid_.At(point);
    if (!place) return;
    if (place->isHeader()) {
        Toggle(place->group);
        return;
    }
    Select(place);
    ScrollIntoView(*place);
    if (twice) Notify(kIconsListActivated);
}

bool IconsListControl::OnKey(WPARAM key) {
    if (key == VK_RETURN || key == VK_SPACE) {
        if (selected_) Activate(*selected_);
        return selected_.has_value();
    }
    const std::optional<IconMove> move = MoveOf(key);
    if (!move) return false;
    // Sideways, a header opens and closes its group first.
    if (selected_ && selected_->isHeader() && IsExpanded(selected_->group) == (key == VK_LEFT) &&
        (key == VK_LEFT || key == VK_RIGHT)) {
        Toggle(selected_->group);
        return true;
    }
    RECT client = {};
    GetClientRect(hwnd(), &client);
    const std::optional<IconPlace> place = grid_.Move(selected_, *move, client.bottom);
    if (!place) return true;
    Select(place);
    ScrollIntoView(*place);
    return true;
}

int IconsListControl::Position() const {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    return GetScrollInfo(hwnd(), SB_VERT, &info) ? info.nPos : 0;
}

void IconsListControl::OnScroll(int request) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    if (!GetScrollInfo(hwnd(), SB_VERT, &info)) return;
    const int line = ScaleY(kSmallestIcon);
    const int page = static_cast<int>(info.nPage);
    switch (request) {
        case SB_LINEUP: ScrollTo(info.nPos - line); break;
        case SB_LINEDOWN: ScrollTo(info.nPos + line); break;
        case SB_PAGEUP: ScrollTo(info.nPos - page); break;
        case SB_PAGEDOWN: ScrollTo(info.nPos + page); break;
        case SB_TOP: ScrollTo(0); break;
        case SB_BOTTOM: ScrollTo(grid_.height()); break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: ScrollTo(info.nTrackPos); break;
    }
}

void IconsListControl::ScrollTo(int position) {
    RECT client = {};
    GetClientRect(hwnd(), &client);
    const int last = std::max(0, grid_.height() - static_cast<int>(client.bottom));
    const int wanted = std::clamp(position, 0, last);
    const int current = Position();
    if (wanted == current) return;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = wanted;
    SetScrollInfo(hwnd(), SB_VERT, &info, TRUE);
    ScrollWindowEx(hwnd(), 0, current - wanted, nullptr, nullptr, nullptr, nullptr, SW_INVALIDATE);
    UpdateWindow(hwnd());
}

void IconsListControl::ScrollIntoView(const IconPlace& place) {
    RECT client = {};
    GetClientRect(hwnd(), &client);
    const RECT rect = OnWindow(grid_.AreaOf(place));
    if (rect.top < 0) {
        ScrollTo(Position() + rect.top);
    } else if (rect.bottom > client.bottom) {
        ScrollTo(Position() + rect.bottom - client.bottom);
    }
}

RECT IconsListControl::OnWindow(const GridArea& area) const {
    const int position = Position();
    return {area.left, area.top - position, area.right, area.bottom - position};
}

void IconsListControl::Invalidate(const IconPlace& place) const {
    const RECT rect = OnWindow(grid_.AreaOf(place));
    InvalidateRect(hwnd(), &rect, FALSE);
}

void IconsListControl::OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd(), &paint);
    if (!dc) return;
    // Off screen, and no more than what must be painted.
    const RECT& dirty = paint.rcPaint;
    const int width = dirty.right - dirty.left;
    const int height = dirty.bottom - dirty.top;
    const OwnedDc memory(CreateCompatibleDC(dc));
    const OwnedBitmap bitmap(CreateCompatibleBitmap(dc, width, height));
    if (memory && bitmap) {
        const SelectedObject selectedBitmap(memory.get(), bitmap.get());
        SetViewportOrgEx(memory.get(), -dirty.left, -dirty.top, nullptr);
        Paint(memory.get(), dirty);
        BitBlt(dc, dirty.left, dirty.top, width, height, memory.get(), dirty.left, dirty.top,
               SRCCOPY);
    }
    EndPaint(hwnd(), &paint);
}

void IconsListControl::Paint(HDC dc, const RECT& dirty) const {
    FillWith(dc, dirty, COLOR_WINDOW);
    SetBkMode(dc, TRANSPARENT);
    const HGDIOBJ font = font_ ? font_ : GetStockObject(SYSTEM_FONT);
    const SelectedObject selectedFont(dc, font);
    // Where an icon's picture is unfolded before it is painted without its background.
    const OwnedDc canvas(CreateCompatibleDC(dc));
    const OwnedBitmap bitmap(
        CreateCompatibleBitmap(dc, ScaleX(kLargestIcon), ScaleY(kLargestIcon)));
    if (!canvas || !bitmap) return;
    const SelectedObject selectedBitmap(canvas.get(), bitmap.get());
    const int top = dirty.top + Position();
    const int bottom = dirty.bottom + Position();
    const IconGrid::Range groups = grid_.GroupsWithin(top, bottom);
    for (int group = groups.begin; group < groups.end; ++group) {
        PaintHeader(dc, group);
        const IconGrid::Range icons = grid_.IconsWithin(group, top, bottom);
        for (int icon = icons.begin; icon < icons.end; ++icon)
            PaintIcon(dc, canvas.get(), {group, icon});
    }
}

void IconsListControl::PaintHeader(HDC dc, int group) const {
    const RECT header = OnWindow(grid_.AreaOf(IconPlace{group}));
    const bool selected = selected_ == IconPlace{group};
    if (selected) FillWith(dc, header, COLOR_HIGHLIGHT);
    SetTextColor(dc, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));

    const RECT line = {header.left, header.top, header.right, header.top + ScaleY(kLineHeight)};
    FillRect(dc, &line, GetThemeColors().GetBrush(ThemeColor::kSeparator));

    const int markTop = (header.top + header.bottom + ScaleY(kLineHeight) - ScaleY(kMarkSize)) / 2;
    const int markLeft = header.left + ScaleX(kMarkLeft);
    const RECT mark = {markLeft, markTop, markLeft + ScaleX(kMarkSize),
                       markTop + ScaleY(kMarkSize)};
    paintMark_(dc, mark, IsExpanded(group));

    const IconLibrary::Group& shown = library_->groups()[static_cast<std::size_t>(group)];
    RECT text = header;
    text.left += ScaleX(kTitleLeft);
    text.top = line.bottom;
    PaintTitle(dc, text, shown.title, L" (" + std::to_wstring(shown.icons.size()) + L")");
}

void IconsListControl::PaintIcon(HDC dc, HDC canvas, const IconPlace& place) const {
    const RECT cell = OnWindow(grid_.AreaOf(place));
    if (selected_ == place) FillWith(dc, cell, COLOR_HIGHLIGHT);
    const IconLibrary::Icon& icon = library_->groups()[static_cast<std::size_t>(place.group)]
                                        .icons[static_cast<std::size_t>(place.icon)];
    const IconPicture& picture = icon.picture;
    const int width = picture.width, height = picture.height;
    const void* const bytes = picture.bytes.data();
    const auto* const info = static_cast<const BITMAPINFO*>(bytes);
    StretchDIBits(canvas, 0, 0, width, height, 0, 0, width, height,
                  picture.bytes.data() + picture.pixels, info, DIB_RGB_COLORS, SRCCOPY);
    TransparentImage(dc, (cell.left + cell.right - width) / 2,
                     (cell.top + cell.bottom - height) / 2, width, height, canvas, 0, 0, width,
                     height, kIconTransparentColor);
}
