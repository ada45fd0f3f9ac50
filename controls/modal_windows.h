#pragma once

#include <windows.h>

// The modal windows that are open now, each inside the one before. When the main window is told to
// close, what is open is cancelled first, from the inside out.
class ModalWindow {
  public:
    explicit ModalWindow(HWND hwnd) : hwnd_(hwnd), outer_(innermost_) { innermost_ = this; }
    ~ModalWindow() {
        innermost_ = outer_;
        if (cancelling_) CancelAll();
    }
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;

    // Null when none is open.
    static HWND Innermost() { return innermost_ ? innermost_->hwnd_ : nullptr; }
    static void CancelAll() {
        cancelling_ = innermost_ != nullptr;
        if (cancelling_) PostMessageW(innermost_->hwnd_, WM_CLOSE, 0, 0);
    }

  private:
    HWND hwnd_;
    ModalWindow* outer_;
    static inline ModalWindow* innermost_ = nullptr;
    static inline bool cancelling_ = false;
};
