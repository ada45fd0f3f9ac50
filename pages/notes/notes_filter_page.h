#pragma once

#include "app/sheets/options_page.h"
#include "controls/check_list.h"

// The note folders that the notes tab shows.
class NotesFilterPage : public OptionsPage {
  public:
    NotesFilterPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

  private:
    CheckList list_;
    std::vector<std::wstring> folders_;  // of the rows, in lower case
};
