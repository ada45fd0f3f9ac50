#pragma once

#include <windows.h>

#include <prsht.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/modal_windows.h"

class OptionsPage;

// A maximised sheet of options pages, shown modally.
class OptionsSheet {
  public:
    explicit OptionsSheet(std::wstring caption);
    ~OptionsSheet();
    OptionsSheet(const OptionsSheet&) = delete;
    OptionsSheet& operator=(const OptionsSheet&) = delete;

    // The page must outlive the sheet. One that cannot be created is left out.
    void AddPage(OptionsPage& page);
    // The page shown first, or, while the sheet is open, now. A page the sheet lacks counts as the
    // first.
    void SetActivePage(int index);
    // Positive when confirmed, 0 when cancelled or without pages, -1 when the sheet could not be
    // opened.
    INT_PTR DoModal(HWND parent);

  private:
    static int CALLBACK SheetCallback(HWND hwnd, UINT code, LPARAM lParam);
    static LRESULT CALLBACK SheetProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static void PassToPages(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam);
    static OptionsSheet* Find(HWND hwnd);

    void Attach(HWND hwnd);
    void OnInitSheet();

    HWND hwnd_ = nullptr;
    WNDPROC systemProcedure_ = nullptr;
    std::wstring caption_;
    PROPSHEETHEADERW header_ = {};
    std::vector<HPROPSHEETPAGE> pages_;
    OptionsSheet* outer_ = nullptr;
    std::optional<ModalWindow> modal_;

    // The open sheets, each inside the one before; the innermost may still be without its window.
    static OptionsSheet* innermost_;
};
