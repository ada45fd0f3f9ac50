#pragma once

#include "app/sheets/options_page.h"

// How dates inside lines look.
class GeneralShortDatePage : public OptionsPage {
  public:
    GeneralShortDatePage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnUpdate() override;
};
