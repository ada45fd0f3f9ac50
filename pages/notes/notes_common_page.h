#pragma once

#include "app/sheets/options_page.h"
#include "pages/shared/layout_drop_down.h"

// Which notes the notes tab lists, in which order, and what it says of each.
class NotesCommonPage : public OptionsPage {
  public:
    NotesCommonPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    LayoutDropDown layouts_;
};
