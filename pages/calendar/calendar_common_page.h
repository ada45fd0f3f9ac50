#pragma once

#include "app/sheets/options_page.h"

// How many days the calendar lists, how it counts weeks, its groups.
class CalendarCommonPage : public OptionsPage {
  public:
    CalendarCommonPage();

  protected:
    void OnLoad(PageValues& values) override;
};
