#pragma once

#include "app/options_page.h"
#include "pages/title_editor.h"

// What stands in the lines of tasks.
class TasksViewStylePage : public OptionsPage {
  public:
    TasksViewStylePage();

  protected:
    bool OnSetActive() override;
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    TitleEditor editor_;
};
