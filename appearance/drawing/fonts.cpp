#include "appearance/drawing/fonts.h"

#include <aygshell.h>
#include <commctrl.h>

#include <algorithm>
#include <cstdlib>

#include "base/scale.h"
#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

constexpr wchar_t kSystemFace[] = L"Tahoma";
constexpr DWORD kUsualSystemPixels = 11;  // where the shell does not tell
constexpr int kMenuFontHeight = 13;
constexpr std::size_t kStyles = 3;
constexpr std::uint32_t kAlwaysOn = 1;
constexpr std::uint32_t kAlwaysOff = 2;

OwnedFont listFonts[kStyles][2];
OwnedFont barFont;
OwnedFont popupFont;

void SetFace(LOGFONTW& font, const std::wstring& face) {
    font.lfFaceName[face.copy(font.lfFaceName, LF_FACESIZE - 1)] = L'\0';
}

BYTE QualityOf(std::uint32_t clearType) {
    switch (clearType) {
        case kAlwaysOn: return CLEARTYPE_QUALITY;
        case kAlwaysOff: return NONANTIALIASED_QUALITY;
    }
    return DEFAULT_QUALITY;
}

LOGFONTW Describe(const ListFontSettings& settings) {
    LOGFONTW font = {};
    font.lfHeight = FontPixels(settings.height, VerticalDpi());
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = QualityOf(settings.clearType);
    font.lfPitchAndFamily = FF_SWISS;
    SetFace(font, settings.face);
    return font;
}

// All values are read, so that all are there, even where the system's font takes their place.
ListFontSettings Stored() {
    CSettingsKey key = OpenProductKey();
    ListFontSettings result;
    result.face = key.Read(settings::FontName);
    result.height = static_cast<std::int32_t>(key.Read(settings::FontHeight));
    result.clearType = key.Read(settings::ClearTypeWhenDrawing);
    const bool system = key.Read(settings::UseSystem) != 0;
    return system ? ListFontSettings::OfSystem().value_or(result) : result;
}

DWORD SystemPixels() {
    using GetMetrics = HRESULT(WINAPI*)(SHUIMETRIC, void*, DWORD, DWORD*);
    const HMODULE shell = GetModuleHandleW(L"AYGSHELL");
    const auto getMetrics = shell ? reinterpret_cast<GetMetrics>(reinterpret_cast<void*>(
                                        GetProcAddress(shell, L"SHGetUIMetrics")))
                                  : nullptr;
    DWORD pixels = 0;
    const HRESULT result =
        getMetrics ? getMetrics(SHUIM_FONTSIZE_PIXEL, &pixels, sizeof pixels, nullptr) : E_FAIL;
    return SUCCEEDED(result) ? pixels : kUsualSystemPixels;
}

// A menu font as the system's registry describes it; what is missing there is written.
OwnedFont CreateMenuFont(const wchar_t* path) {
    LOGFONTW font = {};
    GetObjectW(GetStockObject(SYSTEM_FONT), sizeof font, &font);
    CSettingsKey key(HKEY_LOCAL_MACHINE, path, true, true);
    SetFace(font, key.ReadString(L"Nm", kSystemFace));
    font.lfWeight = static_cast<LONG>(key.ReadDword(L"Wt", FW_BOLD));
    font.lfItalic = key.ReadDword(L"It", 0) != 0;
    font.lfHeight = ScaleY(kMenuFontHeight);
    font.lfWidth = 0;
    return OwnedFont(CreateFontIndirectW(&font));
}

void SetFont(HWND window, const OwnedFont& font) {
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
}

}  // namespace

std::optional<ListFontSettings> ListFontSettings::OfSystem() {
    LOGFONTW font = {};
    font.lfHeight = -static_cast<LONG>(SystemPixels());
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfPitchAndFamily = FF_SWISS;
    SetFace(font, kSystemFace);
    TEXTMETRICW metrics = {};
    {
        const OwnedFont made(CreateFontIndirectW(&font));
        const WindowDc screen;
        if (!made || !screen.get()) return {};
        const SelectedObject selected(screen.get(), made.get());
        if (!GetTextMetricsW(screen.get(), &metrics)) return {};
    }
    const int dpi = VerticalDpi();
    const int height = (std::abs(metrics.tmHeight) * 96 + dpi / 2) / dpi;
    return ListFontSettings{kSystemFace, metrics.tmHeight < 0 ? -height : height, 0};
}

HFONT ListFont(FontStyle style, bool strikeOut) {
    OwnedFont& cached = listFonts[static_cast<std::size_t>(style)][strikeOut];
    if (!cached) {
        LOGFONTW font = Describe(Stored());
        if (style == FontStyle::kBold) font.lfWeight = FW_BOLD;
        font.lfItalic = style == FontStyle::kItalic && !strikeOut;
        font.lfStrikeOut = strikeOut;
        cached.Reset(CreateFontIndirectW(&font));
    }
    return cached.get();
}

void ResetListFonts() {
    for (auto& variants : listFonts) {
        for (OwnedFont& font : variants) font.Reset();
    }
}

OwnedFont CreatePreviewFont(const ListFontSettings& settings) {
    LOGFONTW font = Describe(settings);
    if (settings.clearType == kAlwaysOff) font.lfPitchAndFamily = 0;
    if (settings.clearType == 0 &&
        CSettingsKey(HKEY_LOCAL_MACHINE, L"System\\GDI\\CLEARTYPE", false, false).IsOpen()) {
        font.lfQuality = CLEARTYPE_QUALITY;
    }
    return OwnedFont(CreateFontIndirectW(&font));
}

void ApplySharedFonts(HWND window) {
    if (!barFont) barFont = CreateMenuFont(L"SYSTEM\\GWE\\Menu\\BarFnt");
    if (!popupFont) popupFont = CreateMenuFont(L"SYSTEM\\GWE\\Menu\\PopFnt");
    if (const HWND menuBar = SHFindMenuBar(window)) SetFont(menuBar, barFont);
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t className[32] = {};
        GetClassNameW(child, className, 32);
        if (_wcsicmp(className, WC_LISTVIEWW) == 0) SetFont(child, popupFont);
    }
}

void ReleaseSharedFonts() {
    barFont.Reset();
    popupFont.Reset();
    ResetListFonts();
}
