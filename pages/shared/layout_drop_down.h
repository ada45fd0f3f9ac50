#pragma once

#include <windows.h>

#include <string>

#include "pages/shared/layouts_dialog.h"

// The drop-down list of a content page from which the tab's keyboard layout is chosen; its entry
// "Select layouts..." opens the dialog that decides which layouts it has. The page calls these from
// its own functions of the same purpose and edits the shared settings.
class LayoutDropDown {
  public:
    // `tab` is the tab's name in the registry.
    LayoutDropDown(int control, const wchar_t* tab) : control_(control), tab_(tab) {}

    // Shows what is stored, in a page that has just loaded the shared settings and whose texts are
    // translated.
    void Load(HWND page);
    // Stores the choice; the page has yet to save the shared settings.
    void Save();
    void OnCommand(int id, int code);

  private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Add(const std::wstring& text, LPARAM value);
    void Fill();
    void ShowActive();
    LPARAM SelectedValue() const;
    void OnChosen();
    void TakeSelection();
    void OpenDialog();

    int control_;
    std::wstring tab_;
    HWND page_ = nullptr;
    LayoutSelection selection_;
    // In use before the keys set out over the entries of the closed list.
    const KeyboardLayout* before_ = nullptr;
};
