#include "controls/full_screen_dialog.h"

#include <aygshell.h>
#include <sipapi.h>

#include <algorithm>
#include <utility>

#include "app/language/dialog_init.h"
#include "app/language/language_table.h"
#include "app/language/module.h"
#include "appearance/drawing/fonts.h"
#include "base/scale.h"
#include "controls/control_text.h"
#include "controls/launch_help.h"
#include "controls/title_band.h"
#include "resources/ids.h"

namespace {

constexpr int kResourceTypeDialogInit = 240;
constexpr int kBandLine = 1;       // under the title band
constexpr int kScrollStep = 16;    // one line of the scroll bar
constexpr int kFocusMargin = 4;    // around a control that is scrolled into view
constexpr int kTitleLength = 256;  // of a sheet's caption

SCROLLINFO VerticalScroll(HWND hwnd, UINT mask) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = mask;
    if (!GetScrollInfo(hwnd, SB_VERT, &info)) info.nPos = 0;
    return info;
}

int ClientHeight(HWND hwnd) {
    RECT client = {};
    GetClientRect(hwnd, &client);
    return client.bottom;
}

}  // namespace

FullScreenDialog::FullScreenDialog(unsigned templateId, std::wstring helpAnchor, Band band)
    : templateId_(templateId), helpAnchor_(std::move(helpAnchor)), band_(band) {}

INT_PTR FullScreenDialog::DoModal(HWND parent) {
    return DialogBoxParamW(ResourceLibrary(), MAKEINTRESOURCEW(templateId_), parent,
                           DialogProcedure, reinterpret_cast<LPARAM>(static_cast<Dialog*>(this)));
}

bool FullScreenDialog::OnInitDialog() {
    if (!IsPage()) modal_ = std::make_unique<ModalWindow>(hwnd());
    InitFullScreenDialog();
    return false;
}

void FullScreenDialog::InitFullScreenDialog() {
    layout_.Attach(hwnd(), templateId_);
    scrollMessage_ = RegisterWindowMessageW(L"PPCD_ScrollMessage");

    SHMENUBARINFO bar = {};
    bar.cbSize = sizeof bar;
    bar.hwndParent = hwnd();
    bar.dwFlags = MenuBarId() ? SHCMBF_HMENU : SHCMBF_EMPTYBAR;
    bar.nToolBarId = MenuBarId();
    bar.hInstRes = ResourceLibrary();
    SHCreateMenuBar(&bar);

    SHINITDLGINFO init = {};
    init.dwMask = SHIDIM_FLAGS;
    init.hDlg = hwnd();
    init.dwFlags = SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN;
    SHInitDialog(&init);

    ApplySharedFonts(hwnd());
    FillListsFromResource();
    const bool focusFirst = OnInit();
    GetLanguageTable().TranslateWindow(hwnd());
    GetLanguageTable().TranslateMenuBar(hwnd());
    OnTranslated();
    if (focusFirst) SetFocus(GetWindow(hwnd(), GW_CHILD));

    layout_.NoteOwnSizes();
    initialised_ = true;
    LayOut();
}

void FullScreenDialog::LayOut() {
    if (!initialised_) return;
    RECT window = {};
    GetWindowRect(hwnd(), &window);
    // Without the scroll bar, which is there only where something needs it.
    const int width = window.right - window.left;
    const int height = window.bottom - window.top;
    if (const HWND filling = FillingControl()) {
        const int top = BandHeight() + ScaleY(kBandLine);
        MoveWindow(filling, 0, top, width, height - top, TRUE);
        return;
    }
    const HWND focus = GetFocus();
    contentHeight_ = layout_.Place(width, height, Fills(), ScrollPosition());
    UpdateScrollRange();
    if (IsChild(hwnd(), focus)) ScrollIntoView(focus);
}

void FullScreenDialog::FitAboveInputPanel() {
    SIPINFO sip = {};
    sip.cbSize = sizeof sip;
    if (!SipGetInfo(&sip)) return;
    RECT window = {};
    GetWindowRect(hwnd(), &window);
    const int visible = static_cast<int>(sip.rcVisibleDesktop.bottom - window.top);
    const int height = std::min(fullHeight_, visible);
    if (height <= 0 || height == window.bottom - window.top) return;
    fitting_ = true;
    SetWindowPos(hwnd(), nullptr, 0, 0, window.right - window.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    fitting_ = false;
}

void FullScreenDialog::FillListsFromResource() {
    const HMODULE library = ResourceLibrary();
    const HRSRC resource = FindResourceW(library, MAKEINTRESOURCEW(templateId_),
                                         MAKEINTRESOURCEW(kResourceTypeDialogInit));
    if (!resource) return;
    const auto* bytes =
        static_cast<const std::uint8_t*>(LockResource(LoadResource(library, resource)));
    if (!bytes) return;
    for (const DialogInitRecord& record :
         ParseDialogInit({bytes, SizeofResource(library, resource)})) {
        if (record.target == DialogInitRecord::Target::kNone) continue;
        const bool combo = record.target == DialogInitRecord::Target::kComboBox;
        SendDlgItemMessageW(hwnd(), record.controlId, combo ? CB_ADDSTRING : LB_ADDSTRING, 0,
                            reinterpret_cast<LPARAM>(record.text.c_str()));
    }
}

bool FullScreenDialog::OnCommand(int id, int) {
    if (id != IDOK && id != IDCANCEL) return false;
    EndDialog(hwnd(), id == IDOK ? 1 : 0);
    return true;
}

bool FullScreenDialog::IsPage() const {
    return (GetWindowLongW(hwnd(), GWL_STYLE) & WS_CHILD) != 0;
}

bool FullScreenDialog::Refuse(int control, const std::wstring& reason) const {
    ComeToFront();
    MessageBoxW(IsPage() ? GetParent(hwnd()) : hwnd(), reason.c_str(),
                GetLanguageTable().LoadString(IDS_APP_TITLE).c_str(), MB_ICONHAND);
    // As by Tab, so that what a field holds is selected and typing replaces it.
    SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(control)), TRUE);
    return false;
}

void FullScreenDialog::ShowHelp() const { LaunchHelp(helpAnchor_.c_str()); }

int FullScreenDialog::BandHeight() const { return band_ == Band::kNone ? 0 : TitleBandHeight(); }

std::wstring FullScreenDialog::BandTitle() const {
    wchar_t title[kTitleLength] = {};
    GetWindowTextW(band_ == Band::kOwnTitle ? hwnd() : GetParent(hwnd()), title, kTitleLength);
    return title;
}

std::optional<INT_PTR> FullScreenDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == scrollMessage_ && message) {
        InvalidateTitleBand(hwnd(), BandHeight(), ScrollPosition(), static_cast<int>(wParam));
        return TRUE;
    }
    switch (message) {
        case WM_PAINT: OnPaint(); return TRUE;
        case WM_WINDOWPOSCHANGED: {
            const auto& position = *reinterpret_cast<const WINDOWPOS*>(lParam);
            if (position.flags & SWP_NOSIZE || fitting_) return std::nullopt;
            fullHeight_ = position.cy;
            FitAboveInputPanel();
            return std::nullopt;
        }
        case WM_SETTINGCHANGE:
            if (wParam == SPI_SETSIPINFO) FitAboveInputPanel();
            return std::nullopt;
        case WM_SIZE: LayOut(); return FALSE;
        case WM_VSCROLL: OnVerticalScroll(LOWORD(wParam)); return TRUE;
        case WM_HELP: ShowHelp(); return TRUE;
        case WM_COMMAND: {
            const HWND control = reinterpret_cast<HWND>(lParam);
            // A list that can be typed into has the focus in a field of its own.
            if (control && (control == GetFocus() || IsChild(control, GetFocus()))) {
                ScrollIntoView(control);
            }
            if (OnCommand(LOWORD(wParam), HIWORD(wParam))) return TRUE;
            return std::nullopt;
        }
        // On the device dialogs stand on the window colour, as the title band does.
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOW));
            return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
        case WM_DRAWITEM: OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_DESTROY: modal_.reset(); return std::nullopt;
    }
    return std::nullopt;
}

void FullScreenDialog::OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd(), &paint);
    if (!dc) return;
    const int top = -ScrollPosition();
    const int band = BandHeight();
    if (band >= 1) {
        PaintTitleBand(dc, BandTitle(), band, top);
    } else if (top > 0) {
        PaintTitleBand(dc, {}, 0, top);
    }
    EndPaint(hwnd(), &paint);
}

int FullScreenDialog::ScrollPosition() const { return VerticalScroll(hwnd(), SIF_POS).nPos; }

void FullScreenDialog::UpdateScrollRange() {
    ScrollTo(ScrollPosition());
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = contentHeight_ - 1;
    info.nPage = ClientHeight(hwnd());
    SetScrollInfo(hwnd(), SB_VERT, &info, TRUE);
}

void FullScreenDialog::OnVerticalScroll(int request) {
    const SCROLLINFO info = VerticalScroll(hwnd(), SIF_ALL);
    const int step = ScaleY(kScrollStep);
    switch (request) {
        case SB_LINEUP: ScrollTo(info.nPos - step); break;
        case SB_LINEDOWN: ScrollTo(info.nPos + step); break;
        case SB_PAGEUP: ScrollTo(info.nPos - static_cast<int>(info.nPage)); break;
        case SB_PAGEDOWN: ScrollTo(info.nPos + static_cast<int>(info.nPage)); break;
        case SB_TOP: ScrollTo(0); break;
        case SB_BOTTOM: ScrollTo(contentHeight_); break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: ScrollTo(info.nTrackPos); break;
    }
}

void FullScreenDialog::ScrollTo(int position) {
    const int last = std::max(0, contentHeight_ - ClientHeight(hwnd()));
    const int wanted = std::clamp(position, 0, last);
    const int current = ScrollPosition();
    if (wanted == current) return;
    // Whoever paints on the page learns the new position before it holds.
    SendMessageW(hwnd(), scrollMessage_, wanted, 0);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = wanted;
    SetScrollInfo(hwnd(), SB_VERT, &info, TRUE);
    ScrollWindowEx(hwnd(), 0, current - wanted, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    // The controls, too, that have come to where the band was.
    RECT band = {};
    GetClientRect(hwnd(), &band);
    band.bottom = BandHeight() + ScaleY(kBandLine);
    InvalidateRect(hwnd(), &band, TRUE);
    UpdateWindow(hwnd());
}

void FullScreenDialog::ScrollIntoView(HWND control) {
    const RECT rect = RectInDialog(hwnd(), control);
    const int margin = ScaleY(kFocusMargin);
    const int height = ClientHeight(hwnd());
    const int position = ScrollPosition();
    if (rect.top < margin) {
        // The topmost controls bring the title band back with them.
        const int top = position + rect.top - margin;
        ScrollTo(top <= BandHeight() + 3 * margin ? 0 : top);
    } else if (rect.bottom + margin > height) {
        ScrollTo(position + rect.bottom + margin - height);
    }
}
