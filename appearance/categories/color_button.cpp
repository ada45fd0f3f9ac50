#include "appearance/categories/color_button.h"

#include "app/language/module.h"
#include "base/scale.h"
#include "resources/ids.h"

namespace {

enum Face { kNormal, kFocused, kPressed, kDisabled };

// The faces of each density follow each other.
constexpr int kFirstFace = IDB_COLOR_BUTTON_NORMAL;
constexpr int kFirstFineFace = IDB_COLOR_BUTTON_NORMAL_192;
constexpr int kFineDpi = 144;

// Where the colour shows on the face, in its pixels at 96 dots per inch, and how wide the face is.
constexpr GridArea kSwatch = {5, 5, 25, 15};
constexpr int kFaceWidth = 44;

Face FaceOf(UINT itemState, bool pressed) {
    if (itemState & ODS_DISABLED) return kDisabled;
    if (pressed || itemState & ODS_SELECTED) return kPressed;
    return itemState & ODS_FOCUS ? kFocused : kNormal;
}

SIZE SizeOf(HBITMAP bitmap) {
    BITMAP info = {};
    GetObjectW(bitmap, sizeof info, &info);
    return {info.bmWidth, info.bmHeight};
}

}  // namespace

bool ColorButton::Create(HWND dialog, int id) {
    id_ = id;
    hwnd_ = GetDlgItem(dialog, id);
    if (!hwnd_) return false;
    constexpr LONG kTypeBits = 0xF;
    const LONG style = GetWindowLongW(hwnd_, GWL_STYLE) & ~kTypeBits;
    SetWindowLongW(hwnd_, GWL_STYLE, style | BS_OWNERDRAW | BS_NOTIFY);

    const int first = VerticalDpi() >= kFineDpi ? kFirstFineFace : kFirstFace;
    for (std::size_t i = 0; i < faces_.size(); ++i) {
        faces_[i].Reset(static_cast<HBITMAP>(
            LoadImageW(ResourceLibrary(), MAKEINTRESOURCEW(first + static_cast<int>(i)),
                       IMAGE_BITMAP, 0, 0, 0)));
    }
    const SIZE size = SizeOf(faces_[kNormal].get());
    if (size.cx) {
        SetWindowPos(hwnd_, nullptr, 0, 0, size.cx, size.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return list_.Create(hwnd_);
}

void ColorButton::SetColor(COLORREF color) {
    color_ = color;
    Repaint();
}

void ColorButton::Enable(bool enabled) const {
    EnableWindow(hwnd_, enabled);
    Repaint();
}

bool ColorButton::OnCommand(int id, int code) {
    if (id != id_ || !hwnd_) return false;
    switch (code) {
        case BN_CLICKED: Choose(); return true;
        case BN_KILLFOCUS:
            list_.Dismiss();
            SendMessageW(GetParent(hwnd_), DM_SETDEFID, static_cast<WPARAM>(defaultId_), 0);
            Repaint();
            return true;
        case BN_SETFOCUS: {
            // Enter presses the button that has the focus, which a dialog does not see to for
            // one that draws itself.
            const LRESULT usual = SendMessageW(GetParent(hwnd_), DM_GETDEFID, 0, 0);
            defaultId_ = HIWORD(usual) == DC_HASDEFID ? LOWORD(usual) : 0;
            SendMessageW(GetParent(hwnd_), DM_SETDEFID, static_cast<WPARAM>(id_), 0);
            Repaint();
            return true;
        }
    }
    return false;
}

void ColorButton::Choose() {
    if (pressed_) return;
    SetFocus(hwnd_);
    pressed_ = true;
    Repaint();
    UpdateWindow(hwnd_);
    if (list_.Run(FindPaletteColor(color_))) {
        const GridCell cell = list_.selected();
        color_ = ColorPalette[static_cast<std::size_t>(cell.row * kColorColumns + cell.column)];
        PostMessageW(GetParent(hwnd_), WM_COMMAND, MAKEWPARAM(id_, kColorButtonChosen),
                     reinterpret_cast<LPARAM>(hwnd_));
    }
    pressed_ = false;
    Repaint();
}

void ColorButton::Repaint() const {
    if (hwnd_) InvalidateRect(hwnd_, nullptr, FALSE);
}

bool ColorButton::OnDrawItem(const DRAWITEMSTRUCT& item) const {
    if (item.hwndItem != hwnd_ || !hwnd_) return false;
    const Face face = FaceOf(item.itemState, pressed_);
    const HBITMAP bitmap = faces_[face].get();
    const OwnedDc memory(CreateCompatibleDC(item.hDC));
    if (!bitmap || !memory) return true;
    const SIZE size = SizeOf(bitmap);
    {
        const SelectedObject selectedBitmap(memory.get(), bitmap);
        BitBlt(item.hDC, 0, 0, size.cx, size.cy, memory.get(), 0, 0, SRCCOPY);
    }
    if (face == kDisabled) return true;

    const auto scaled = [&](int length) { return length * static_cast<int>(size.cx) / kFaceWidth; };
    const GridArea swatch = {scaled(kSwatch.left), scaled(kSwatch.top), scaled(kSwatch.right),
                             scaled(kSwatch.bottom)};
    const OwnedPen pen(CreatePen(PS_SOLID, 1, RGB(0x80, 0x80, 0x80)));
    DrawColorCell(item.hDC, swatch, color_, pen.get());
    return true;
}
