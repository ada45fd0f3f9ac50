#pragma once

#include <windows.h>

#include <optional>

// A dialog window and the object behind it; the object is found through the window's user data.
class Dialog {
  public:
    virtual ~Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    HWND hwnd() const { return hwnd_; }

    // To be given to the system with the object's address as the parameter of WM_INITDIALOG (of a
    // property page: as the lParam of its record).
    static INT_PTR CALLBACK DialogProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

  protected:
    Dialog() = default;

    // WM_INITDIALOG; returns whether the system shall set the focus.
    virtual bool OnInitDialog() = 0;
    // Any other message; no value leaves it to the system.
    virtual std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    HWND Item(int control) const { return GetDlgItem(hwnd_, control); }
    // Answers a message whose result is not the dialog procedure's own return value.
    INT_PTR Answer(LRESULT result) const;

  private:
    HWND hwnd_ = nullptr;
};
