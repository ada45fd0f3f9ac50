// The menu bar at the bottom of the screen: soft keys, each a command or a menu.
#include "pocketpc/aygshell/menu_bar.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "pocketpc/aygshell/navigation_bar.h"
#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/include/aygshell.h"

namespace {

constexpr wchar_t kClassName[] = L"menu_worker";
constexpr UINT kPress = WM_APP;  // wParam: index of the button
constexpr UINT kCommandTaken = WM_APP + 1;
// Menus have no command of their own; their buttons get ids that no program uses.
constexpr int kFirstMenuButton = 0xF000;

// The mark of the input panel: a keyboard's outline, three rows of keys, the space bar.
constexpr int kPanelButtonWidth = 36;
constexpr int kMarkWidth = 19, kMarkHeight = 11;

void PaintKeyboardMark(HDC dc, const RECT& button, COLORREF background) {
    const int unit = shell::Scale(1);
    const int x = static_cast<int>(button.left + button.right - kMarkWidth * unit) / 2;
    const int y = static_cast<int>(button.bottom - kMarkHeight * unit) / 2;
    const auto fill = [&](int left, int top, int width, int height, COLORREF color) {
        shell::FillColor(
            dc,
            {x + left * unit, y + top * unit, x + (left + width) * unit, y + (top + height) * unit},
            color);
    };
    fill(1, 0, kMarkWidth - 2, kMarkHeight, shell::kBarTextColor);
    fill(0, 1, kMarkWidth, kMarkHeight - 2, shell::kBarTextColor);
    fill(1, 1, kMarkWidth - 2, kMarkHeight - 2, background);
    for (int row = 2; row < kMarkHeight - 4; row += 2) {
        for (int key = 3; key < kMarkWidth - 3; key += 2) {
            fill(key, row, 1, 1, shell::kBarTextColor);
        }
    }
    fill(5, kMarkHeight - 3, kMarkWidth - 10, 1, shell::kBarTextColor);
}

class MenuBar {
  public:
    struct Button {
        int id = 0;
        std::wstring text;
        HMENU menu = nullptr;
    };

    MenuBar(HWND parent, std::vector<Button> buttons, HMENU menu, DWORD flags)
        : parent_(parent),
          buttons_(std::move(buttons)),
          menu_(menu),
          hidden_((flags & SHCMBF_HIDDEN) != 0),
          hasPanelButton_(!(flags & SHCMBF_HIDESIPBUTTON)) {
        all_.push_back(this);
    }
    ~MenuBar() {
        std::erase(all_, this);
        if (menu_) DestroyMenu(menu_);
    }
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

    static const std::vector<MenuBar*>& All() { return all_; }

    bool Create() {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.hInstance = GetModuleHandleW(L"aygshell.dll");
        windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        windowClass.lpszClassName = kClassName;
        RegisterClassW(&windowClass);
        const RECT area = shell::WorkArea();
        hwnd_ =
            CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kClassName, L"",
                            WS_POPUP, 0, area.bottom, area.right, shell::BarHeight(),
                            GetAncestor(parent_, GA_ROOT), nullptr, windowClass.hInstance, this);
        if (!hwnd_) return false;
        SetPropW(parent_, shell::kMenuBar, hwnd_);
        FollowWindow(parent_);
        return true;
    }

    HWND hwnd() const { return hwnd_; }

    bool BelongsTo(HWND root) const { return root && GetAncestor(parent_, GA_ROOT) == root; }
    bool IsWanted() const { return !hidden_ && IsWindowVisible(parent_); }

    void Place() const {
        const RECT area = shell::WorkArea();
        SetWindowPos(hwnd_, nullptr, 0, area.bottom, area.right, shell::BarHeight(),
                     SWP_NOZORDER | SWP_NOACTIVATE);
        InvalidateRect(hwnd_, nullptr, FALSE);
    }

    void Show(bool show) {
        constexpr UINT kFlags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
        if (!show) {
            if (!IsWindowVisible(hwnd_)) return;
            SetWindowPos(hwnd_, nullptr, 0, 0, 0, 0, kFlags | SWP_NOZORDER | SWP_HIDEWINDOW);
            return;
        }
        LeaveBarsFree(GetAncestor(parent_, GA_ROOT));
        SetWindowPos(hwnd_, HWND_TOPMOST, 0, 0, 0, 0, kFlags | SWP_SHOWWINDOW);
    }

    // Posted, so that a menu opens outside of the message that asked for it.
    bool PostPress(int index) const {
        if (index >= static_cast<int>(buttons_.size())) return false;
        return PostMessageW(hwnd_, kPress, index, 0) != FALSE;
    }

    void LightCommanded() {
        if (commanded_ >= 0) SetPressed(commanded_);
    }
    void Unlight() {
        if (pressed_ >= 0) SetPressed(-1);
    }

  private:
    static MenuBar* Of(HWND hwnd) {
        return reinterpret_cast<MenuBar*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    }

    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const auto& create = *reinterpret_cast<const CREATESTRUCTW*>(lParam);
            SetWindowLongPtrW(hwnd, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(create.lpCreateParams));
        }
        MenuBar* const bar = Of(hwnd);
        if (!bar) return DefWindowProcW(hwnd, message, wParam, lParam);
        switch (message) {
            case WM_NCDESTROY:
                RemovePropW(bar->parent_, shell::kMenuBar);
                SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
                delete bar;
                return 0;
            case WM_PAINT: bar->Paint(hwnd); return 0;
            case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
            case WM_LBUTTONDOWN: bar->OnTap(static_cast<short>(LOWORD(lParam))); return 0;
            case kPress: bar->Press(static_cast<int>(wParam)); return 0;
            case kCommandTaken: bar->commanded_ = -1; return 0;
            case TB_BUTTONCOUNT: return static_cast<LRESULT>(bar->buttons_.size());
            case TB_GETBUTTON: return bar->GetButton(wParam, reinterpret_cast<TBBUTTON*>(lParam));
            case TB_GETBUTTONINFOW:
                return bar->GetInfo(static_cast<int>(wParam),
                                    reinterpret_cast<TBBUTTONINFOW*>(lParam));
            case TB_SETBUTTONINFOW:
                return bar->SetInfo(static_cast<int>(wParam),
                                    reinterpret_cast<const TBBUTTONINFOW*>(lParam));
            case SHCMBM_GETMENU: return reinterpret_cast<LRESULT>(bar->menu_);
            case SHCMBM_GETSUBMENU: {
                const Button* button = bar->Find(static_cast<int>(lParam));
                return reinterpret_cast<LRESULT>(button ? button->menu : nullptr);
            }
            case SHCMBM_SETSUBMENU: {
                Button* button = bar->Find(static_cast<int>(wParam));
                if (!button) return 0;
                return reinterpret_cast<LRESULT>(
                    std::exchange(button->menu, reinterpret_cast<HMENU>(lParam)));
            }
        }
        return DefWindowProcW(hwnd, message, wParam, lParam);
    }

    Button* Find(int id) {
        for (Button& button : buttons_) {
            if (button.id == id) return &button;
        }
        return nullptr;
    }

    // The button that a button message means, by id or by index.
    Button* Find(int idOrIndex, DWORD mask) {
        if (!(mask & TBIF_BYINDEX)) return Find(idOrIndex);
        const bool exists = idOrIndex >= 0 && idOrIndex < static_cast<int>(buttons_.size());
        return exists ? &buttons_[idOrIndex] : nullptr;
    }

    LRESULT GetButton(WPARAM index, TBBUTTON* result) const {
        if (index >= buttons_.size()) return FALSE;
        *result = {};
        result->idCommand = buttons_[index].id;
        result->fsState = TBSTATE_ENABLED;
        result->dwData = reinterpret_cast<DWORD_PTR>(buttons_[index].menu);
        return TRUE;
    }

    LRESULT GetInfo(int idOrIndex, TBBUTTONINFOW* info) {
        const Button* button = Find(idOrIndex, info->dwMask);
        if (!button || info->cbSize != sizeof *info) return -1;
        if (info->dwMask & TBIF_LPARAM) info->lParam = reinterpret_cast<DWORD_PTR>(button->menu);
        if (info->dwMask & TBIF_COMMAND) info->idCommand = button->id;
        if (info->dwMask & TBIF_TEXT && info->pszText && info->cchText > 0) {
            wcsncpy(info->pszText, button->text.c_str(), info->cchText);
            info->pszText[info->cchText - 1] = L'\0';
        }
        return button - buttons_.data();
    }

    LRESULT SetInfo(int idOrIndex, const TBBUTTONINFOW* info) {
        Button* button = Find(idOrIndex, info->dwMask);
        if (!button || info->cbSize != sizeof *info) return FALSE;
        if (info->dwMask & TBIF_TEXT && info->pszText) button->text = info->pszText;
        InvalidateRect(hwnd_, nullptr, FALSE);
        return TRUE;
    }

    bool HasSoftKeys() const { return buttons_.size() <= 2; }

    // The input panel's button: between the soft keys, or at the right of other buttons.
    RECT PanelButtonRect() const {
        RECT area;
        GetClientRect(hwnd_, &area);
        const int width = hasPanelButton_ ? shell::Scale(kPanelButtonWidth) : 0;
        const int left = static_cast<int>(area.right - width) / (HasSoftKeys() ? 2 : 1);
        return {left, 0, left + width, area.bottom};
    }

    // Up to two buttons are soft keys, each with half of the bar; more share it equally.
    RECT ButtonRect(int index) const {
        RECT area;
        GetClientRect(hwnd_, &area);
        const RECT panel = PanelButtonRect();
        if (HasSoftKeys()) {
            return index == 0 ? RECT{0, 0, panel.left, area.bottom}
                              : RECT{panel.right, 0, area.right, area.bottom};
        }
        const int count = static_cast<int>(buttons_.size());
        return {panel.left * index / count, 0, panel.left * (index + 1) / count, area.bottom};
    }

    void OnTap(int x) {
        const RECT panel = PanelButtonRect();
        if (x >= panel.left && x < panel.right) {
            shell::SetInputPanel(!shell::InputPanelIsUp());
        } else {
            Press(ButtonAt(x));
        }
    }

    int ButtonAt(int x) const {
        for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
            const RECT rect = ButtonRect(i);
            if (x >= rect.left && x < rect.right) return i;
        }
        return -1;
    }

    void Press(int index) {
        if (index < 0 || index >= static_cast<int>(buttons_.size())) return;
        if (!IsWindowEnabled(parent_)) return;
        const Button button = buttons_[index];
        if (!button.menu) {
            PostMessageW(parent_, WM_COMMAND, button.id, 0);
            // Whatever loop the command runs, it takes this message once any menu is open.
            commanded_ = index;
            PostMessageW(hwnd_, kCommandTaken, 0, 0);
            return;
        }
        RECT rect = ButtonRect(index);
        MapWindowPoints(hwnd_, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        const bool right = index > 0;
        const HWND self = hwnd_;
        SetPressed(index);
        TrackPopupMenuEx(button.menu, TPM_BOTTOMALIGN | (right ? TPM_RIGHTALIGN : TPM_LEFTALIGN),
                         right ? rect.right : rect.left, rect.top, parent_, nullptr);
        if (Of(self) == this) SetPressed(-1);  // The bar may have gone meanwhile.
    }

    void SetPressed(int index) {
        pressed_ = index;
        InvalidateRect(hwnd_, nullptr, FALSE);
        UpdateWindow(hwnd_);
    }

    void Paint(HWND hwnd) {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(hwnd, &paint);
        RECT area;
        GetClientRect(hwnd, &area);
        shell::FillColor(dc, area, shell::kBarColor);
        const HFONT font = shell::CreateBarFont(FW_BOLD);
        const HGDIOBJ oldFont = SelectObject(dc, font);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, shell::kBarTextColor);
        const int line = shell::Scale(1);
        const auto paintSeparator = [&](LONG x) {
            const int margin = shell::Scale(5);
            const RECT separator = {x, margin, x + line, area.bottom - margin};
            shell::FillColor(dc, separator, shell::kBarLineColor);
        };
        if (hasPanelButton_) {
            const RECT panel = PanelButtonRect();
            const bool up = shell::InputPanelIsUp();
            if (up) shell::FillColor(dc, panel, shell::kBarPressedColor);
            PaintKeyboardMark(dc, panel, up ? shell::kBarPressedColor : shell::kBarColor);
            paintSeparator(panel.left);
            if (HasSoftKeys()) paintSeparator(panel.right - line);
        }
        for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
            RECT rect = ButtonRect(i);
            if (i == pressed_) shell::FillColor(dc, rect, shell::kBarPressedColor);
            if (i > 0 && !(hasPanelButton_ && HasSoftKeys())) paintSeparator(rect.left);
            InflateRect(&rect, -2 * line, 0);
            DrawTextW(dc, buttons_[i].text.c_str(), -1, &rect,
                      DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_HIDEPREFIX);
        }
        SelectObject(dc, oldFont);
        DeleteObject(font);
        EndPaint(hwnd, &paint);
    }

    static inline std::vector<MenuBar*> all_;

    HWND parent_;
    std::vector<Button> buttons_;
    HMENU menu_;
    bool hidden_;
    bool hasPanelButton_;
    HWND hwnd_ = nullptr;
    int pressed_ = -1;
    int commanded_ = -1;  // the button whose command is on its way
};

std::vector<MenuBar::Button> ButtonsOf(HMENU menu) {
    std::vector<MenuBar::Button> buttons;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t text[256] = {};
        GetMenuStringW(menu, i, text, 256, MF_BYPOSITION);
        MenuBar::Button button;
        button.text = text;
        button.menu = GetSubMenu(menu, i);
        button.id = button.menu ? kFirstMenuButton + i : static_cast<int>(GetMenuItemID(menu, i));
        buttons.push_back(std::move(button));
    }
    return buttons;
}

}  // namespace

void ShowMenuBarsOf(HWND root) {
    for (MenuBar* menuBar : MenuBar::All()) {
        menuBar->Show(menuBar->BelongsTo(root) && menuBar->IsWanted());
    }
}

void PlaceMenuBars() {
    for (const MenuBar* menuBar : MenuBar::All()) menuBar->Place();
}

void LeaveBarsFree(HWND root) {
    const bool hasMenuBar = std::ranges::any_of(
        MenuBar::All(), [root](const MenuBar* menuBar) { return menuBar->BelongsTo(root); });
    RECT window, cut;
    GetWindowRect(root, &window);
    LONG bottom = window.bottom;
    if (hasMenuBar) bottom = std::min(bottom, shell::WorkArea().bottom);
    if (shell::InputPanelIsUp()) {
        bottom = std::min(bottom, shell::InputPanelArea(shell::Screen()).top);
    }
    const bool isCut = GetWindowRgnBox(root, &cut) != ERROR;
    const RECT rest = {0, 0, window.right - window.left, bottom - window.top};
    if (bottom == window.bottom || rest.bottom <= 0) {
        if (isCut) SetWindowRgn(root, nullptr, TRUE);
    } else if (!isCut || !EqualRect(&cut, &rest)) {
        SetWindowRgn(root, CreateRectRgnIndirect(&rest), TRUE);
    }
}

void MenuOpened(HWND owner) {
    for (MenuBar* menuBar : MenuBar::All()) {
        if (menuBar->BelongsTo(GetAncestor(owner, GA_ROOT))) menuBar->LightCommanded();
    }
}

void MenuClosed(HWND owner) {
    for (MenuBar* menuBar : MenuBar::All()) {
        if (menuBar->BelongsTo(GetAncestor(owner, GA_ROOT))) menuBar->Unlight();
    }
}

bool PressSoftKey(HWND root, int index) {
    for (const MenuBar* menuBar : MenuBar::All()) {
        if (menuBar->BelongsTo(root) && menuBar->IsWanted()) return menuBar->PostPress(index);
    }
    return false;
}

BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info) {
    if (!info || info->cbSize != sizeof *info || !IsWindow(info->hwndParent)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    HMENU menu = nullptr;
    if (!(info->dwFlags & SHCMBF_EMPTYBAR)) {
        // Bars described by a tool bar's resource are not among what this library does.
        if (!(info->dwFlags & SHCMBF_HMENU)) return FALSE;
        menu = LoadMenuW(info->hInstRes, MAKEINTRESOURCEW(info->nToolBarId));
        if (!menu) return FALSE;
    }
    ShowNavigationBar();
    auto bar = std::make_unique<MenuBar>(info->hwndParent, ButtonsOf(menu), menu, info->dwFlags);
    if (!bar->Create()) return FALSE;
    info->hwndMB = bar.release()->hwnd();  // From now on the window owns it.
    ShowMenuBarsOf(WindowOnScreen());
    return TRUE;
}

HWND WINAPI SHFindMenuBar(HWND parent) {
    return static_cast<HWND>(GetPropW(parent, shell::kMenuBar));
}
