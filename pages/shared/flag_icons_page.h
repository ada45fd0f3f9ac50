#pragma once

#include "app/sheets/options_page.h"
#include "appearance/skins/item_icons.h"
#include "pages/shared/title_draft.h"

// Which of its flags an item shows as icons. They are fields of the list's title pattern.
class FlagIconsPage : public OptionsPage {
  protected:
    FlagIconsPage(unsigned templateId, const wchar_t* anchor, DisplayPattern TitleDraft::*pattern,
                  ItemIcon icon, unsigned sample);

    bool OnSetActive() override;
    void OnSave(PageValues& values) override;
    bool EditsShared() const override { return true; }
    bool OnCommand(int id, int code) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    DisplayPattern& Edited() const { return GetTitleDraft().*pattern_; }

    DisplayPattern TitleDraft::*pattern_;
    ItemIcon icon_;
    unsigned sample_;  // string id
};

class TasksIconsPage : public FlagIconsPage {
  public:
    TasksIconsPage();
};

class ContactsIconsPage : public FlagIconsPage {
  public:
    ContactsIconsPage();
};
