#pragma once

#include "app/sheets/options_page.h"

// The view the plug-in returns to when it has been left alone, and what the keys do.
class GeneralAutoReturnPage : public OptionsPage {
  public:
    GeneralAutoReturnPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
};
