#pragma once

#include <windows.h>

// Disabling the control with the focus would leave the keys with nobody. Whoever enables and
// disables a dialog's controls holds one of these meanwhile: it then gives the focus to another
// control, which is always enabled.
class FocusKeeper {
  public:
    FocusKeeper(HWND dialog, int control)
        : dialog_(dialog), control_(control), focus_(GetFocus()) {}
    ~FocusKeeper() {
        if (!focus_ || GetParent(focus_) != dialog_ || IsWindowEnabled(focus_)) return;
        SendMessageW(dialog_, WM_NEXTDLGCTL,
                     reinterpret_cast<WPARAM>(GetDlgItem(dialog_, control_)), TRUE);
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

  private:
    HWND dialog_;
    int control_;
    HWND focus_;
};
