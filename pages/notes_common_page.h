#pragma once

#include "app/options_page.h"

// Which notes the notes tab lists, in which order, and what it says of each.
class NotesCommonPage : public OptionsPage {
  public:
    NotesCommonPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
};
