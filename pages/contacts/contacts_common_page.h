#pragma once

#include "app/sheets/options_page.h"
#include "pages/shared/layout_drop_down.h"

// How the contacts tab groups its contacts, which it shows, and how they are reached.
class ContactsCommonPage : public OptionsPage {
  public:
    ContactsCommonPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    bool OnCommand(int id, int code) override;

  private:
    LayoutDropDown layouts_;
};
