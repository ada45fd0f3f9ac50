#pragma once

#include <vector>

#include "app/options_page.h"
#include "settings/contact_name.h"

// How contacts are named and shown.
class ContactsViewStylePage : public OptionsPage {
  public:
    ContactsViewStylePage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    std::vector<PreviewedContact> samples_;
};
