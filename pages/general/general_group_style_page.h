#pragma once

#include "app/sheets/options_page.h"

// How the headings of groups look, and what taps do.
class GeneralGroupStylePage : public OptionsPage {
  public:
    GeneralGroupStylePage();

  protected:
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
};
