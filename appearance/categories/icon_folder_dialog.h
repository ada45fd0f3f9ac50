#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "controls/full_screen_dialog.h"

// Lets the user choose one of the device's folders from a tree, which is read as far as it is
// opened.
class IconFolderDialog : public FullScreenDialog {
  public:
    IconFolderDialog();

    // The chosen folder once the dialog was confirmed; empty when none was selected.
    const std::wstring& path() const { return path_; }

  protected:
    bool OnInitDialog() override;
    bool OnInit() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    HWND FillingControl() const override { return Tree(); }

  private:
    HWND Tree() const;
    std::wstring PathOf(HTREEITEM item) const;
    void ListFolders(HTREEITEM parent);

    std::wstring path_;
};
