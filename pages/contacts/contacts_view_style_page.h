#pragma once

#include <vector>

#include "pages/shared/title_page.h"
#include "settings/contact_name.h"

// How contacts are named and shown.
class ContactsViewStylePage : public TitlePage {
  public:
    ContactsViewStylePage();

  protected:
    DisplayPattern& Edited() const override;
    void OnLoad(PageValues& values) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    std::vector<PreviewedContact> samples_;
};
