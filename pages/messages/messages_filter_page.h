#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/sheets/options_page.h"
#include "pages/messages/mail_folders_view.h"
#include "pages/stores/mail_filter.h"
#include "pages/stores/mail_filter_names.h"

// The filters of mail folders: which one the messages tab shows, and the folders of each. What is
// ticked holds until the sheet is cancelled, also while another filter is shown.
class MessagesFilterPage : public OptionsPage {
  public:
    MessagesFilterPage();

  protected:
    bool OnInitDialog() override;
    bool OnApply() override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnControlNotification(const NMHDR& header) override;

  private:
    void LoadFilters();
    // The drop-down list anew, with the chosen filter selected.
    void ListFilters();
    // -1 is the new filter.
    void Choose(int filter);
    MailFilter& Edited();
    void OnToggled(const MailFolderNode& folder);
    bool IsBuiltIn(int filter) const;

    // Makes the new filter, if it has folders, one of the list and chooses it.
    void AddNewFilter();
    void DeleteFilter();

    void ShowAutomaticName();
    std::wstring AutomaticName() const;
    std::wstring TypedName() const;
    void ListSuggestedNames();
    // Of a folder that may no longer be there.
    MailFolderNames NamesOf(const MailFolderRef& folder) const;

    std::unique_ptr<MailFoldersView> view_;
    std::vector<std::wstring> builtInNames_;
    int chosen_ = -1;
    MailFilter new_;
    bool nameTyped_ = false;  // by the user, so that it no longer follows the folders
    std::wstring active_;     // the active filter's name when the page opened
    bool activeDeleted_ = false;
};
