#pragma once

#include "app/options_page.h"
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
    void InsertTab(int position, int tab, bool shown);
    int TabAt(int position) const;
    // Moves the selected tab by one place, up (-1) or down (1).
    void Move(int by);
    void OnKey(WORD key);

    CheckList list_;
};
