// The menu bar at the bottom of the screen: one or two soft keys, each a command or a menu.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "pocketpc/aygshell/navigation_bar.h"
#include "pocketpc/include/aygshell.h"
#include "pocketpc/shell_windows.h"

namespace {

constexpr wchar_t kClassName[] = L"menu_worker";
constexpr UINT_PTR kParentSubclass = 1;
constexpr UINT_PTR kSettleTimer = 1;
constexpr UINT kSettleMilliseconds = 30;
// Menus have no command of their own; their buttons get ids that no program uses.
constexpr int kFirstMenuButton = 0xF000;

class MenuBar {
  public:
    struct Button {
        int id = 0;
        std::wstring text;
        HMENU menu = nullptr;
    };

    MenuBar(HWND parent, std::vector<Button> buttons, HMENU menu)
        : parent_(parent), buttons_(std::move(buttons)), menu_(menu) {}
    ~MenuBar() {
        if (menu_) DestroyMenu(menu_);
    }
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

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
        SetWindowSubclass(parent_, ParentProcedure, kParentSubclass,
                          reinterpret_cast<DWORD_PTR>(this));
        ShowWithParent();
        return true;
    }

    HWND hwnd() const { return hwnd_; }

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
                RemoveWindowSubclass(bar->parent_, ParentProcedure, kParentSubclass);
                RemovePropW(bar->parent_, shell::kMenuBar);
                SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
                delete bar;
                return 0;
            case WM_PAINT: bar->Paint(hwnd); return 0;
            case WM_TIMER:
                KillTimer(hwnd, kSettleTimer);
                bar->Settle();
                return 0;
            case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
            case WM_LBUTTONDOWN:
                bar->Press(bar->ButtonAt(static_cast<short>(LOWORD(lParam))));
                return 0;
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
        }
        return DefWindowProcW(hwnd, message, wParam, lParam);
    }

    static LRESULT CALLBACK ParentProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                            UINT_PTR, DWORD_PTR data) {
        auto* const bar = reinterpret_cast<MenuBar*>(data);
        switch (message) {
            case WM_NCDESTROY: DestroyWindow(bar->hwnd_); break;
            case WM_WINDOWPOSCHANGED: {
                const LRESULT result = DefSubclassProc(hwnd, message, wParam, lParam);
                bar->ShowWithParent();
                return result;
            }
            case WM_ACTIVATE:
                if (LOWORD(wParam) != WA_INACTIVE) bar->ShowWithParent();
                break;
            case WM_SYSCOMMAND:
                // F10 is the left soft key, with Shift the right one.
                if ((wParam & 0xFFF0) == SC_KEYMENU && lParam == 0 && !bar->buttons_.empty()) {
                    const bool right = GetKeyState(VK_SHIFT) < 0;
                    bar->Press(right ? static_cast<int>(bar->buttons_.size()) - 1 : 0);
                    return 0;
                }
                break;
        }
        return DefSubclassProc(hwnd, message, wParam, lParam);
    }

    // A page's bar shows only while its page does, and then stands over all others. That is settled a
    // moment later, when the desktop, too, has done with raising the window below.
    void ShowWithParent() { SetTimer(hwnd_, kSettleTimer, kSettleMilliseconds, nullptr); }

    void Settle() {
        constexpr UINT kFlags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
        if (!IsWindowVisible(parent_)) {
            SetWindowPos(hwnd_, nullptr, 0, 0, 0, 0, kFlags | SWP_NOZORDER | SWP_HIDEWINDOW);
            return;
        }
        // A window that is on top already would not be raised again.
        SetWindowPos(hwnd_, HWND_NOTOPMOST, 0, 0, 0, 0, kFlags);
        SetWindowPos(hwnd_, HWND_TOPMOST, 0, 0, 0, 0, kFlags | SWP_SHOWWINDOW);
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

    RECT ButtonRect(int index) const {
        RECT area;
        GetClientRect(hwnd_, &area);
        const int count = std::max(2, static_cast<int>(buttons_.size()));
        return {area.right * index / count, 0, area.right * (index + 1) / count, area.bottom};
    }

    int ButtonAt(int x) const {
        for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
            const RECT rect = ButtonRect(i);
            if (x >= rect.left && x < rect.right) return i;
        }
        return -1;
    }

    void Press(int index) {
        if (index < 0 || !IsWindowEnabled(parent_)) return;
        const Button button = buttons_[index];
        if (!button.menu) {
            PostMessageW(parent_, WM_COMMAND, button.id, 0);
            return;
        }
        RECT rect = ButtonRect(index);
        MapWindowPoints(hwnd_, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        const bool right = index > 0;
        TrackPopupMenuEx(button.menu, TPM_BOTTOMALIGN | (right ? TPM_RIGHTALIGN : TPM_LEFTALIGN),
                         right ? rect.right : rect.left, rect.top, parent_, nullptr);
    }

    void Paint(HWND hwnd) {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(hwnd, &paint);
        RECT area;
        GetClientRect(hwnd, &area);
        const HBRUSH background = CreateSolidBrush(shell::kBarColor);
        FillRect(dc, &area, background);
        DeleteObject(background);
        const HFONT font = shell::CreateBarFont(FW_BOLD);
        const HGDIOBJ oldFont = SelectObject(dc, font);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, shell::kBarTextColor);
        for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
            RECT rect = ButtonRect(i);
            DrawTextW(dc, buttons_[i].text.c_str(), -1, &rect,
                      DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
        }
        SelectObject(dc, oldFont);
        DeleteObject(font);
        EndPaint(hwnd, &paint);
    }

    HWND parent_;
    std::vector<Button> buttons_;
    HMENU menu_;
    HWND hwnd_ = nullptr;
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
    auto bar = std::make_unique<MenuBar>(info->hwndParent, ButtonsOf(menu), menu);
    if (!bar->Create()) return FALSE;
    info->hwndMB = bar.release()->hwnd();  // From now on the window owns it.
    return TRUE;
}

HWND WINAPI SHFindMenuBar(HWND parent) {
    return static_cast<HWND>(GetPropW(parent, shell::kMenuBar));
}
