#include "appearance/categories/colors_list_window.h"

#include <windowsx.h>

#include "app/language/module.h"
#include "appearance/drawing/category_color.h"
#include "base/scale.h"

namespace {

constexpr wchar_t kClassName[] = L"LumDiaryColorsListWnd.0";
constexpr COLORREF kPenColor = RGB(0x80, 0x80, 0x80);
constexpr COLORREF kFrameFill = 0xD4D4D4;
constexpr COLORREF kFrameLine = 0x7F0000;

RECT RectOf(const GridArea& area) { return {area.left, area.top, area.right, area.bottom}; }

void DrawLine(HDC dc, POINT from, POINT to) {
    const POINT ends[] = {from, to};
    Polyline(dc, ends, 2);
}

}  // namespace

void DrawColorCell(HDC dc, const GridArea& area, COLORREF color, HPEN line) {
    const bool none = color == kNoColor;
    const OwnedBrush brush(CreateSolidBrush(none ? RGB(0xFF, 0xFF, 0xFF) : color));
    const SelectedObject selectedBrush(dc, brush.get());
    const SelectedObject selectedPen(dc, line);
    Rectangle(dc, area.left, area.top, area.right, area.bottom);
    if (!none) return;
    DrawLine(dc, {area.left, area.top}, {area.right, area.bottom});
    DrawLine(dc, {area.left, area.bottom - 1}, {area.right, area.top - 1});
}

CColorsListWindow::CColorsListWindow()
    : grid_(HorizontalDpi(), VerticalDpi()), pen_(CreatePen(PS_SOLID, 1, kPenColor)) {}

CColorsListWindow::~CColorsListWindow() {
    if (hwnd()) DestroyWindow(hwnd());
}

bool CColorsListWindow::Create(HWND button) {
    button_ = button;
    const GridPoint place = Place();
    const RECT rect = {place.x, place.y, place.x + grid_.width(), place.y + grid_.height()};
    return Window::Create(kClassName, L"", WS_POPUP | WS_BORDER, rect, button, ModuleInstance(),
                          CS_HREDRAW | CS_VREDRAW);
}

GridPoint CColorsListWindow::Place() const {
    RECT button = {};
    GetWindowRect(button_, &button);
    return PlaceColorGrid({button.left, button.top, button.right, button.bottom}, grid_.width(),
                          grid_.height(), GetSystemMetrics(SM_CXSCREEN),
                          GetSystemMetrics(SM_CYSCREEN), ScaleY(1));
}

// Above all else, the menu bar included, as a drop-down list is.
void CColorsListWindow::MoveToPlace() const {
    const GridPoint place = Place();
    SetWindowPos(hwnd(), HWND_TOPMOST, place.x, place.y, 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

bool CColorsListWindow::Run(const GridCell& selected) {
    if (!hwnd() || state_ == State::kOpen) return false;
    selected_ = selected;
    state_ = State::kOpen;
    MoveToPlace();
    SetCapture(hwnd());

    MSG message = {};
    while (state_ == State::kOpen) {
        const BOOL more = GetMessageW(&message, nullptr, 0, 0);
        if (more <= 0) {
            // The end of the program is for the outermost loop to see.
            if (more == 0) PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) {
            message.hwnd = hwnd();
        } else {
            TranslateMessage(&message);
        }
        DispatchMessageW(&message);
    }
    const bool confirmed = state_ == State::kConfirmed;
    state_ = State::kClosed;
    if (hwnd()) {
        if (GetCapture() == hwnd()) ReleaseCapture();
        ShowWindow(hwnd(), SW_HIDE);
    }
    return confirmed;
}

void CColorsListWindow::Dismiss() { Leave(State::kDismissed); }

void CColorsListWindow::Leave(State state) {
    if (state_ != State::kOpen) return;
    state_ = state;
    // What is left may come in a message that is sent, which does not wake the loop.
    PostMessageW(hwnd(), WM_NULL, 0, 0);
}

std::optional<LRESULT> CColorsListWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: return DLGC_WANTALLKEYS;
        case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
        case WM_KEYDOWN: OnKey(wParam); return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: OnStylusDown(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)); return 0;
        // The stylus leaves its cell as a key does, which also brings it back into the grid.
        case WM_LBUTTONUP: PostMessageW(hwnd(), WM_KEYDOWN, VK_RETURN, 0); return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != hwnd()) Dismiss();
            return 0;
        // The screen may have been turned, and the button with it.
        case WM_SETTINGCHANGE:
            if (state_ == State::kOpen) MoveToPlace();
            return 0;
        case WM_CLOSE: Dismiss(); return 0;
        case WM_DESTROY: state_ = State::kDismissed; return 0;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: OnPaint(); return 0;
    }
    return std::nullopt;
}

void CColorsListWindow::OnKey(WPARAM key) {
    if (key == VK_ESCAPE) {
        Dismiss();
        return;
    }
    const GridCell old = selected_;
    switch (key) {
        case VK_LEFT: --selected_.column; break;
        case VK_RIGHT: ++selected_.column; break;
        case VK_UP: --selected_.row; break;
        case VK_DOWN: ++selected_.row; break;
        case VK_RETURN:
            // With nothing selected there is nothing to confirm.
            if (old == kNoCell) {
                Dismiss();
                return;
            }
            break;
        default: return;
    }
    selected_ = ClampToGrid(selected_);
    if (selected_ != old) {
        Invalidate(old);
        Invalidate(selected_);
    }
    if (key == VK_RETURN) Leave(State::kConfirmed);
}

void CColorsListWindow::Invalidate(const GridCell& cell) const {
    const RECT rect = RectOf(grid_.SelectionArea(cell));
    InvalidateRect(hwnd(), &rect, FALSE);
}

void CColorsListWindow::OnStylusDown(int x, int y) {
    RECT client = {};
    GetClientRect(hwnd(), &client);
    if (!PtInRect(&client, {x, y})) {
        Dismiss();
        return;
    }
    selected_ = grid_.CellAt(x, y);
    InvalidateRect(hwnd(), nullptr, FALSE);
}

void CColorsListWindow::OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd(), &paint);
    if (!dc) return;
    const OwnedDc memory(CreateCompatibleDC(dc));
    const OwnedBitmap bitmap(CreateCompatibleBitmap(dc, grid_.width(), grid_.height()));
    if (memory && bitmap) {
        const SelectedObject selectedBitmap(memory.get(), bitmap.get());
        Paint(memory.get());
        BitBlt(dc, 0, 0, grid_.width(), grid_.height(), memory.get(), 0, 0, SRCCOPY);
    }
    EndPaint(hwnd(), &paint);
}

void CColorsListWindow::Paint(HDC dc) const {
    const RECT all = {0, 0, grid_.width(), grid_.height()};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    for (int row = 0; row < kColorRows; ++row) {
        for (int column = 0; column < kColorColumns; ++column) {
            const GridCell cell = {column, row};
            if (cell == selected_) {
                const OwnedPen line(CreatePen(PS_SOLID, 1, kFrameLine));
                DrawColorCell(dc, grid_.FrameArea(cell), kFrameFill, line.get());
            }
            const COLORREF color =
                ColorPalette[static_cast<std::size_t>(row * kColorColumns + column)];
            DrawColorCell(dc, grid_.CellArea(cell), color, pen_.get());
        }
    }
}
