#pragma once

#include "app/sheets/options_page.h"

// What the special events tab lists, and for how long ahead.
class SpecialEventsCommonPage : public OptionsPage {
  public:
    SpecialEventsCommonPage();

  protected:
    void OnLoad(PageValues& values) override;

  private:
    explicit SpecialEventsCommonPage(bool financeProgramPresent);

    bool financeProgramPresent_;
};
