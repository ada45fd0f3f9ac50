#pragma once

#include <string>

#include "app/sheets/options_page.h"

// The skin of the diary. A choice is stored at once, and taken back when the skin lacks something.
class GeneralSkinsPage : public OptionsPage {
  public:
    GeneralSkinsPage();

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void ListSkins();
    void SelectSkin(const std::wstring& name);
    void OnSkinChosen();

    std::wstring startingSkin_;
};
