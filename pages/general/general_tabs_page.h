#pragma once

#include "app/sheets/options_page.h"
#include "controls/check_list.h"

// Which tabs the diary has, and in which order. Its ok also registers the plug-in.
class GeneralTabsPage : public OptionsPage {
  public:
    GeneralTabsPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

  private:
    CheckList list_;
};
