#pragma once

#include "app/sheets/options_page.h"

// Which tasks the tasks tab lists, and how their subjects are shown.
class TasksCommonPage : public OptionsPage {
  public:
    TasksCommonPage();

  protected:
    void OnLoad(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnSave(PageValues& values) override;
};
