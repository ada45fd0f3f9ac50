#include "appearance/drawing/today_background.h"

#include <algorithm>
#include <string>

#include "appearance/drawing/theme_colors.h"
#include "base/owned_handle.h"
#include "settings/settings_key.h"

namespace {

std::wstring PicturePath() {
    CSettingsKey key(HKEY_CURRENT_USER, L"Software\\Microsoft\\Today", false, false);
    return key.IsOpen() ? key.ReadString(L"Wallpaper") : L"";
}

// Loaded once, and anew when another picture is chosen meanwhile; null without one.
HBITMAP Picture() {
    static std::wstring loadedPath;
    static OwnedBitmap picture;
    const std::wstring path = PicturePath();
    if (path != loadedPath) {
        picture.Reset(path.empty() ? nullptr : SHLoadDIBitmap(path.c_str()));
        loadedPath = path;
    }
    return picture.get();
}

}  // namespace

void PaintTodayBackground(HDC dc, const RECT& area) {
    FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    const HBITMAP picture = Picture();
    BITMAP size = {};
    if (!picture || !GetObjectW(picture, sizeof size, &size)) return;
    const OwnedDc memory(CreateCompatibleDC(dc));
    if (!memory) return;
    const SelectedObject selected(memory.get(), picture);
    // Over the screen's width, as the Today screen shows it; the preview is a piece of that.
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int across = area.right - area.left;
    const int down = std::min<int>(area.bottom - area.top, size.bmHeight * width / size.bmWidth);
    StretchBlt(dc, area.left, area.top, across, down, memory.get(), 0, 0,
               size.bmWidth * across / width, size.bmWidth * down / width, SRCCOPY);
    SetTextColor(dc, GetThemeColors().GetColor(ThemeColor::kText));
}
