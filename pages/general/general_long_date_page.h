#pragma once

#include "app/sheets/options_page.h"

// How the headings of days look.
class GeneralLongDatePage : public OptionsPage {
  public:
    GeneralLongDatePage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;

  private:
    int customFormat_ = 0;      // remembered while the list shows the device's own format
    bool listsCustom_ = false;  // whether the list shows the custom formats
};
