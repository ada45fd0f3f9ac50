#pragma once

#include <string>

#include "controls/check_list.h"
#include "controls/full_screen_dialog.h"
#include "settings/keyboard_layout.h"

// What the dialog edits: the layouts a tab offers, and PhoneKeyb_DisableLangSwitch.
struct LayoutSelection {
    OfferedLayouts offered;
    std::int32_t noLanguageSwitch = 0;
};

// A layout's name as it is shown: translated where it is the program's own.
std::wstring LayoutLabel(const std::wstring& name);

// Chooses among all keyboard layouts those that a tab offers.
class LayoutsDialog : public FullScreenDialog {
  public:
    // `selection` is changed by ok; the active position in it is not.
    LayoutsDialog(std::wstring title, LayoutSelection& selection);

  protected:
    std::span<const Fill> Fills() const override;
    bool OnInit() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ShowRows();
    void UpdateSwitch();
    void OnRowChanged(int row);
    bool TakeRows();

    std::wstring title_;
    LayoutSelection& selection_;
    CheckList list_;
};
