#pragma once

#include <vector>

#include "app/options_page.h"
#include "pages/title_editor.h"
#include "settings/contact_name.h"

// How contacts are named and shown.
class ContactsViewStylePage : public OptionsPage {
  public:
    ContactsViewStylePage();

  protected:
    bool OnSetActive() override;
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    std::vector<PreviewedContact> samples_;
    TitleEditor editor_;
};
