#pragma once

#include "app/sheets/options_page.h"

// What the calendar lists besides appointments.
class CalendarShowPage : public OptionsPage {
  public:
    CalendarShowPage();

  protected:
    void OnLoad(PageValues& values) override;

  private:
    explicit CalendarShowPage(bool financeProgramPresent);

    bool financeProgramPresent_;
};
