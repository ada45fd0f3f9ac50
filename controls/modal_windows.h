#pragma once

#include <windows.h>

// The modal windows that are open now, each inside the one before. The main window asks for the
// innermost when it is told to close, so that what is open is cancelled first.
class ModalWindow {
  public:
    explicit ModalWindow(HWND hwnd) : hwnd_(hwnd), outer_(innermost_) { innermost_ = this; }
    ~ModalWindow() {
        innermost_ = outer_;
        if (!innermost_) closingAll_ = false;
        if (closingAll_) PostMessageW(innermost_->hwnd_, WM_CLOSE, 0, 0);
    }
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;

    // Null when none is open.
    static HWND Innermost() { return innermost_ ? innermost_->hwnd_ : nullptr; }
    // Cancels them all, each once the one inside it is gone.
    static void CloseAll() {
        if (!innermost_) return;
        closingAll_ = true;
        PostMessageW(innermost_->hwnd_, WM_CLOSE, 0, 0);
    }

  private:
    HWND hwnd_;
    ModalWindow* outer_;
    static inline ModalWindow* innermost_ = nullptr;
    static inline bool closingAll_ = false;
};
