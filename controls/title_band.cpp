#include "controls/title_band.h"

#include <algorithm>

#include "base/owned_handle.h"
#include "base/scale.h"

namespace {

constexpr int kBandHeight = 23;
constexpr int kLineHeight = 1;
constexpr int kTitleHeight = 13;

OwnedFont CreateTitleFont() {
    LOGFONTW font = {};
    font.lfHeight = ScaleY(kTitleHeight);
    font.lfWeight = FW_BOLD;
    font.lfCharSet = DEFAULT_CHARSET;
    wcscpy(font.lfFaceName, L"Tahoma");
    return OwnedFont(CreateFontIndirectW(&font));
}

}  // namespace

int TitleBandHeight() { return ScaleY(kBandHeight); }

void PaintTitleBand(HDC dc, const std::wstring& title, int bandHeight, int top) {
    if (bandHeight + top < 1) return;
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = bandHeight + ScaleY(kLineHeight);

    const OwnedDc memory(CreateCompatibleDC(dc));
    const OwnedBitmap bitmap(CreateCompatibleBitmap(WindowDc().get(), width, height));
    if (!memory || !bitmap) return;
    const SelectedObject selectedBitmap(memory.get(), bitmap.get());

    RECT band = {0, 0, width, height};
    FillRect(memory.get(), &band, GetSysColorBrush(COLOR_WINDOW));

    const OwnedFont font = CreateTitleFont();
    const SelectedObject selectedFont(memory.get(), font.get());
    SetTextColor(memory.get(), GetSysColor(COLOR_HIGHLIGHT));
    SetBkMode(memory.get(), TRANSPARENT);
    // Eight points in from the left, the extra six dots rounding up, where the shell's own titles
    // begin.
    RECT text = {(HorizontalDpi() + 6) * 8 / 96, 0, width, bandHeight};
    DrawTextW(memory.get(), title.c_str(), static_cast<int>(title.size()), &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);

    RECT line = {0, bandHeight, width, height};
    FillRect(memory.get(), &line, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    BitBlt(dc, 0, top, width, height, memory.get(), 0, 0, SRCCOPY);
}

void InvalidateTitleBand(HWND hwnd, int bandHeight, int oldPosition, int newPosition) {
    if (newPosition == oldPosition) return;
    const int visible = bandHeight - std::min(newPosition, oldPosition);
    if (visible < 0) return;  // Out of view before and after.
    const RECT changed = {0, 0, GetSystemMetrics(SM_CXSCREEN), ScaleY(kLineHeight) + visible};
    InvalidateRect(hwnd, &changed, TRUE);
}
