#pragma once

#include "pages/shared/title_page.h"

// What the titles of items show, of all three lists, and what the calendar adds to them.
class CalendarTitlesPage : public TitlePage {
  public:
    CalendarTitlesPage();

  protected:
    DisplayPattern& Edited() const override;
    bool OnSetActive() override;
    void OnLoad(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
};
