#pragma once

#include "app/sheets/options_page.h"

// The diary's size on the Today screen, and the program whose data it shows.
class GeneralCommonPage : public OptionsPage {
  public:
    GeneralCommonPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnApply() override;

  private:
    void FillPims(std::int32_t current);

    int smallest_ = 0;  // pixels
    bool landscape_ = false;
};
