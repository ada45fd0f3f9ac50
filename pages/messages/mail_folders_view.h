#pragma once

#include <windows.h>

#include <commctrl.h>

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <vector>

#include "base/owned_handle.h"
#include "pages/stores/mail_filter.h"
#include "pages/stores/mail_folder_tree.h"

// A tree control that shows mail folders, each with a check box and a picture.
class MailFoldersView {
  public:
    using Toggle = std::function<void(const MailFolderNode&)>;

    // `toggled` is called when the user has ticked or cleared a folder, by a tap on its box or with
    // space.
    MailFoldersView(HWND tree, std::vector<MailFolderNode> folders, Toggle toggled);

    // A folder that is shown.
    struct Place {
        const MailFolderNode* account = nullptr;
        const MailFolderNode* folder = nullptr;
        HTREEITEM item = nullptr;
        std::size_t row = 0;  // from the top, were all open
    };

    // Null when there is no such folder.
    const Place* Find(const MailFolderRef& folder) const;

    // Ticks the folders of a filter and no other, and opens what hides one. The effort is that for
    // what changes, however many folders there are.
    void ShowTicks(const std::vector<MailFilter::Entry>& filter);
    // The selected folder; null when none is.
    const MailFolderNode* Selected() const;

    // To be given the control's notifications; what is to be answered, if anything.
    std::optional<LRESULT> OnNotification(const NMHDR& header, HWND page);

  private:
    void Insert(HTREEITEM parent, const MailFolderNode* account,
                const std::vector<MailFolderNode>& folders);
    // From an item and its neighbours below it on; the next number.
    std::size_t Number(HTREEITEM first, std::size_t row);
    void ToggleItem(HTREEITEM item);
    void SetTick(const Place& place, bool ticked);
    HTREEITEM Next(HTREEITEM item, UINT relation) const;
    Place& PlaceOf(HTREEITEM item) const;

    HWND tree_;
    std::vector<MailFolderNode> folders_;
    std::deque<Place> places_;  // the items point to these
    std::multimap<MailFolderRef, const Place*> byFolder_;
    std::set<const Place*> ticked_;
    Toggle toggled_;
    OwnedImageList pictures_;
    OwnedImageList boxes_;
};
