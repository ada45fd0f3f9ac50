// Message boxes that fit the device's screen; the desktop's may be wider than a small screen is.
#include "pocketpc/coredll/message_box.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"

namespace {

HWND box = nullptr;  // the one that shows

struct Parts {
    HWND icon = nullptr;
    HWND text = nullptr;
    std::vector<HWND> buttons;
};

BOOL CALLBACK AddPart(HWND control, LPARAM parameter) {
    auto& parts = *reinterpret_cast<Parts*>(parameter);
    wchar_t className[16] = {};
    GetClassNameW(control, className, 16);
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    if (_wcsicmp(className, L"Static") == 0) {
        if ((style & SS_TYPEMASK) != SS_ICON) {
            parts.text = control;
        } else if (SendMessageW(control, STM_GETICON, 0, 0)) {
            parts.icon = control;
        } else {
            ShowWindow(control, SW_HIDE);
        }
    } else if (_wcsicmp(className, L"Button") == 0 && style & WS_VISIBLE) {
        parts.buttons.push_back(control);
    }
    return TRUE;
}

RECT RectIn(HWND box, HWND control) {
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// The text of a box, measured in its font.
class BoxText {
  public:
    explicit BoxText(HWND control)
        : control_(control),
          dc_(GetDC(control)),
          old_(
              SelectObject(dc_, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)))) {
        text_.resize(GetWindowTextLengthW(control) + 1);
        text_.resize(GetWindowTextW(control, text_.data(), static_cast<int>(text_.size())));
    }
    ~BoxText() {
        SelectObject(dc_, old_);
        ReleaseDC(control_, dc_);
    }
    BoxText(const BoxText&) = delete;
    BoxText& operator=(const BoxText&) = delete;

    // Breaks the words, such as paths, that are wider than a line.
    void BreakLongWords(int width) {
        std::size_t start = 0;
        for (std::size_t i = 0; i < text_.size(); ++i) {
            if (text_[i] == L' ' || text_[i] == L'\n') {
                start = i + 1;
            } else if (i > start && WidthOf(start, i + 1 - start) > width) {
                text_.insert(i, 1, L'\n');
                start = i + 1;
            }
        }
        SetWindowTextW(control_, text_.c_str());
    }

    int Height(int width) const {
        RECT rect = {0, 0, width, 0};
        DrawTextW(dc_, text_.c_str(), static_cast<int>(text_.size()), &rect,
                  DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
        return rect.bottom;
    }

    int LineHeight() const {
        TEXTMETRICW metrics = {};
        GetTextMetricsW(dc_, &metrics);
        return metrics.tmHeight;
    }

  private:
    int WidthOf(std::size_t start, std::size_t count) const {
        SIZE size = {};
        GetTextExtentPoint32W(dc_, &text_[start], static_cast<int>(count), &size);
        return size.cx;
    }

    HWND control_;
    HDC dc_;
    HGDIOBJ old_;
    std::wstring text_;
};

// A centred group at the same distances, unless the buttons must be narrower.
void PlaceButtons(HWND box, const std::vector<HWND>& buttons, int width, int down) {
    const int margin = shell::Scale(6);
    const int count = static_cast<int>(buttons.size());
    if (count == 0) return;
    const RECT first = RectIn(box, buttons.front());
    int size = first.right - first.left;
    int step = count > 1 ? RectIn(box, buttons[1]).left - first.left : size;
    if ((count - 1) * step + size > width - 2 * margin) {
        step = (width - margin) / count;
        size = step - margin;
    }
    int x = (width - (count - 1) * step - size) / 2;
    for (const HWND button : buttons) {
        MoveWindow(button, x, first.top + down, size, first.bottom - first.top, FALSE);
        x += step;
    }
}

// The box becomes as narrow as the screen and its text wraps; a text that is still too high loses
// its last lines. That the input panel makes room for it is a guess.
void FitToScreen(HWND box) {
    RECT area = shell::VisibleWorkArea();
    const int margin = shell::Scale(4);
    RECT window, client;
    GetWindowRect(box, &window);
    GetClientRect(box, &client);
    Parts parts;
    EnumChildWindows(box, AddPart, reinterpret_cast<LPARAM>(&parts));
    if (!parts.text) return;

    const int boxWidth = std::min<int>(window.right - window.left, area.right - 2 * margin);
    const int clientWidth = client.right - (window.right - window.left - boxWidth);
    RECT text = RectIn(box, parts.text);
    const RECT icon = parts.icon ? RectIn(box, parts.icon) : text;
    text.right = std::min<int>(text.right, clientWidth - icon.left);
    BoxText content(parts.text);
    content.BreakLongWords(text.right - text.left);

    const int before = text.bottom - text.top;
    const int rest = window.bottom - window.top - before;
    const int line = content.LineHeight();
    const int wanted = std::max(content.Height(text.right - text.left), before);
    if (wanted > area.bottom - area.top - 2 * margin - rest) {
        shell::SetInputPanel(false);
        area = shell::WorkArea();
    }
    const int room = (area.bottom - area.top - 2 * margin - rest) / line * line;
    const int height = std::min(wanted, room);
    MoveWindow(parts.text, text.left, text.top, text.right - text.left, height, FALSE);
    if (parts.icon) {
        const int size = icon.bottom - icon.top;
        MoveWindow(parts.icon, icon.left, text.top + (height - size) / 2, size, size, FALSE);
    }
    PlaceButtons(box, parts.buttons, clientWidth, height - before);
    const int boxHeight = rest + height;
    MoveWindow(box, (area.right - boxWidth) / 2, (area.top + area.bottom - boxHeight) / 2, boxWidth,
               boxHeight, FALSE);
}

// The desktop lays the box out while it initialises its dialog; it has activated it before.
LRESULT CALLBACK AfterMessage(int code, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallNextHookEx(nullptr, code, wParam, lParam);
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code != HC_ACTION) return result;
    if (message.message == WM_INITDIALOG && !box) {
        box = message.hwnd;
        FitToScreen(box);
    } else if (message.message == WM_SETTINGCHANGE && message.hwnd == box &&
               (message.wParam == shell::kScreenReset || message.wParam == shell::kSetSipInfo)) {
        FitToScreen(box);
        InvalidateRect(box, nullptr, TRUE);
    }
    return result;
}

}  // namespace

int WINAPI Pocket_MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
    const HWND outer = std::exchange(box, nullptr);
    const HHOOK hook =
        SetWindowsHookExW(WH_CALLWNDPROCRET, AfterMessage, nullptr, GetCurrentThreadId());
    const int answer = MessageBoxW(owner, text, caption, type);
    UnhookWindowsHookEx(hook);
    box = outer;
    return answer;
}
