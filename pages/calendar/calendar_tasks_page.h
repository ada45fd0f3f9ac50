#pragma once

#include "app/sheets/options_page.h"

// What the calendar shows of the tasks.
class CalendarTasksPage : public OptionsPage {
  public:
    CalendarTasksPage();
};
