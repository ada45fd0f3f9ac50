#pragma once

#include "app/options_page.h"
#include "pages/title_editor.h"

// What the titles of items show, of all three lists, and what the calendar adds to them.
class CalendarTitlesPage : public OptionsPage {
  public:
    CalendarTitlesPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    DisplayPattern& Edited() const;
    void ShowEdited();

    TitleEditor editor_;
};
