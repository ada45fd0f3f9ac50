#pragma once

#include "pages/shared/title_page.h"

// What stands in the lines of tasks.
class TasksViewStylePage : public TitlePage {
  public:
    TasksViewStylePage();

  protected:
    DisplayPattern& Edited() const override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
};
