#include "pocketpc/aygshell/keyboard.h"

#include <algorithm>
#include <iterator>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"

namespace {

struct Key {
    int width;  // a row is as wide as kRowWidth
    wchar_t plain = 0, shifted = 0;
    WORD virtualKey = 0;  // of a key without a character
};
constexpr int kRowWidth = 24, kRows = 5;
constexpr Key kKeys[] = {
    // clang-format off
    {2, L'1', L'!'}, {2, L'2', L'\"'}, {2, L'3', L'#'}, {2, L'4', L'$'}, {2, L'5', L'%'},
    {2, L'6', L'&'}, {2, L'7', L'/'}, {2, L'8', L'('}, {2, L'9', L')'}, {2, L'0', L'='},
    {4, 0, 0, VK_BACK},
    {2, L'q', L'Q'}, {2, L'w', L'W'}, {2, L'e', L'E'}, {2, L'r', L'R'}, {2, L't', L'T'},
    {2, L'y', L'Y'}, {2, L'u', L'U'}, {2, L'i', L'I'}, {2, L'o', L'O'}, {2, L'p', L'P'},
    {2, L'\'', L'*'}, {2, L'+', L'~'},
    {3, 0, 0, VK_TAB},
    {2, L'a', L'A'}, {2, L's', L'S'}, {2, L'd', L'D'}, {2, L'f', L'F'}, {2, L'g', L'G'},
    {2, L'h', L'H'}, {2, L'j', L'J'}, {2, L'k', L'K'}, {2, L'l', L'L'},
    {3, 0, 0, VK_RETURN},
    {4, 0, 0, VK_SHIFT},
    {2, L'z', L'Z'}, {2, L'x', L'X'}, {2, L'c', L'C'}, {2, L'v', L'V'}, {2, L'b', L'B'},
    {2, L'n', L'N'}, {2, L'm', L'M'},
    {2, L',', L';'}, {2, L'.', L':'}, {2, L'-', L'_'},
    {2, L'@', L'|'}, {2, L'\\', L'?'},
    {12, 0, 0, VK_SPACE},
    {2, 0, 0, VK_LEFT}, {2, 0, 0, VK_UP}, {2, 0, 0, VK_DOWN}, {2, 0, 0, VK_RIGHT},
    // clang-format on
};
constexpr int kNoKey = -1;

constexpr COLORREF kPanelColor = RGB(0xA9, 0xB6, 0xCE);
constexpr COLORREF kEdgeColor = RGB(0x5A, 0x6C, 0x90);
constexpr COLORREF kKeyColor = RGB(0xFD, 0xFD, 0xFE);
constexpr COLORREF kOtherKeyColor = RGB(0xD6, 0xDE, 0xEC);
constexpr COLORREF kLabelColor = RGB(0x14, 0x24, 0x48);

HWND keyboard = nullptr;
int pressed = kNoKey;
bool shift = false;  // for one character

RECT KeyRect(int index) {
    RECT area;
    GetClientRect(keyboard, &area);
    int before = 0;
    for (int i = 0; i < index; ++i) before += kKeys[i].width;
    const int row = before / kRowWidth, column = before % kRowWidth;
    const int edge = shell::Scale(1);
    const int width = area.right - edge, height = area.bottom - 2 * edge;
    return {edge + width * column / kRowWidth, 2 * edge + height * row / kRows,
            edge + width * (column + kKeys[index].width) / kRowWidth,
            2 * edge + height * (row + 1) / kRows};
}

int KeyAt(POINT point) {
    for (int i = 0; i < static_cast<int>(std::size(kKeys)); ++i) {
        const RECT rect = KeyRect(i);
        if (PtInRect(&rect, point)) return i;
    }
    return kNoKey;
}

// Marks are painted around a key's middle, in odd widths, so that they are symmetrical.
class Mark {
  public:
    Mark(HDC dc, const RECT& key, COLORREF color)
        : dc_(dc),
          color_(color),
          x_((key.left + key.right - 1) / 2),
          y_((key.top + key.bottom - 1) / 2) {}

    // Reaches so far to each side, from a point beside the middle; at 96 dots per inch.
    void Bar(int x, int y, int toSides, int upAndDown) const {
        const int sides = std::max(shell::Scale(toSides), line_ / 2);
        const int height = std::max(shell::Scale(upAndDown), line_ / 2);
        const LONG left = x_ + shell::Scale(x), top = y_ + shell::Scale(y);
        shell::FillColor(dc_, {left - sides, top - height, left + sides + 1, top + height + 1},
                         color_);
    }

    // With its point beside the middle, looking one way.
    void Triangle(int x, int y, int lookX, int lookY, int size) const {
        const LONG left = x_ + shell::Scale(x), top = y_ + shell::Scale(y);
        for (int i = 0; i < shell::Scale(size); ++i) {
            const LONG px = left - lookX * i, py = top - lookY * i;
            const int acrossX = lookX ? 0 : i, acrossY = lookY ? 0 : i;
            shell::FillColor(dc_, {px - acrossX, py - acrossY, px + acrossX + 1, py + acrossY + 1},
                             color_);
        }
    }

  private:
    HDC dc_;
    COLORREF color_;
    LONG x_, y_;
    int line_ = shell::Scale(1) | 1;
};

void PaintMark(const Mark& mark, WORD virtualKey) {
    switch (virtualKey) {
        case VK_BACK:
            mark.Triangle(-7, 0, -1, 0, 5);
            mark.Bar(2, 0, 5, 0);
            break;
        case VK_RETURN:
            mark.Triangle(-6, 1, -1, 0, 4);
            mark.Bar(1, 1, 5, 0);
            mark.Bar(6, -1, 0, 2);
            break;
        case VK_TAB:
            mark.Triangle(4, 0, 1, 0, 4);
            mark.Bar(-2, 0, 4, 0);
            mark.Bar(6, 0, 0, 3);
            break;
        case VK_SHIFT:
            mark.Triangle(0, -5, 0, -1, 5);
            mark.Bar(0, 2, 1, 2);
            break;
        case VK_SPACE: mark.Bar(0, 1, 18, 0); break;
        case VK_LEFT: mark.Triangle(-2, 0, -1, 0, 4); break;
        case VK_RIGHT: mark.Triangle(2, 0, 1, 0, 4); break;
        case VK_UP: mark.Triangle(0, -2, 0, -1, 4); break;
        case VK_DOWN: mark.Triangle(0, 2, 0, 1, 4); break;
    }
}

void PaintKey(HDC dc, int index) {
    const Key& key = kKeys[index];
    RECT rect = KeyRect(index);
    const int gap = shell::Scale(1);
    rect.right -= gap;
    rect.bottom -= gap;
    const bool lit = index == pressed || (shift && key.virtualKey == VK_SHIFT);
    const COLORREF face = lit                                            ? shell::kBarPressedColor
                          : key.virtualKey && key.virtualKey != VK_SPACE ? kOtherKeyColor
                                                                         : kKeyColor;
    const COLORREF label = lit ? shell::kBarTextColor : kLabelColor;
    // Without its corners.
    shell::FillColor(dc, {rect.left + gap, rect.top, rect.right - gap, rect.bottom}, face);
    shell::FillColor(dc, {rect.left, rect.top + gap, rect.right, rect.bottom - gap}, face);
    if (key.virtualKey) {
        PaintMark(Mark(dc, rect, label), key.virtualKey);
        return;
    }
    const wchar_t text = shift ? key.shifted : key.plain;
    SetTextColor(dc, label);
    DrawTextW(dc, &text, 1, &rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
}

void Paint(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    RECT area;
    GetClientRect(hwnd, &area);
    shell::FillColor(dc, area, kPanelColor);
    area.bottom = shell::Scale(1);
    shell::FillColor(dc, area, kEdgeColor);
    const HFONT font = shell::CreateBarFont(FW_NORMAL);
    const HGDIOBJ oldFont = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    for (int i = 0; i < static_cast<int>(std::size(kKeys)); ++i) PaintKey(dc, i);
    SelectObject(dc, oldFont);
    DeleteObject(font);
    EndPaint(hwnd, &paint);
}

void Type(const Key& key) {
    if (key.virtualKey == VK_SHIFT) {
        shift = !shift;
        return;
    }
    const HWND focus = GetFocus();
    if (key.virtualKey) {
        constexpr auto kReleased = static_cast<LPARAM>(0xC0000000);
        const LPARAM once = 1 | static_cast<LPARAM>(MapVirtualKeyW(key.virtualKey, 0) << 16);
        PostMessageW(focus, WM_KEYDOWN, key.virtualKey, once);
        PostMessageW(focus, WM_KEYUP, key.virtualKey, once | kReleased);
    } else {
        PostMessageW(focus, WM_CHAR, shift ? key.shifted : key.plain, 1);
        shift = false;
    }
}

LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: Paint(hwnd); return 0;
        case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
        case WM_LBUTTONDOWN:
            pressed =
                KeyAt({static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
            if (pressed == kNoKey) return 0;
            Type(kKeys[pressed]);
            SetCapture(hwnd);
            InvalidateRect(hwnd, nullptr, FALSE);
            return 0;
        case WM_LBUTTONUP:
            if (GetCapture() == hwnd) ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            pressed = kNoKey;
            InvalidateRect(hwnd, nullptr, FALSE);
            return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

void Create() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(L"aygshell.dll");
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpszClassName = kKeyboardClass;
    RegisterClassW(&windowClass);
    keyboard =
        CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kKeyboardClass, L"",
                        WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, windowClass.hInstance, nullptr);
}

}  // namespace

void PlaceKeyboard() {
    const bool up = shell::InputPanelIsUp();
    if (up && !keyboard) Create();
    if (!keyboard) return;
    const RECT area = shell::InputPanelArea(shell::Screen());
    SetWindowPos(keyboard, HWND_TOPMOST, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOACTIVATE | (up ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    InvalidateRect(keyboard, nullptr, FALSE);
}
