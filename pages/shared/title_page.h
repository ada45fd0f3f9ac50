#pragma once

#include "app/sheets/options_page.h"
#include "pages/shared/title_draft.h"
#include "pages/shared/title_editor.h"

// A page that edits a title pattern of the sheet's draft, with a preview (IDC_TITLE_PREVIEW) that
// follows every change.
class TitlePage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    // The pattern that the editor shows.
    virtual DisplayPattern& Edited() const = 0;
    virtual std::wstring_view OfferedFields() const { return kItemFields; }

    bool OnSetActive() override;
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

    TitleDraft& Draft() const { return titles_.Draft(); }

  private:
    SheetTitles& titles_ = SheetTitles::Innermost();
    TitleEditor editor_;
};
