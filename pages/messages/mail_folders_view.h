#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <vector>

#include "base/owned_handle.h"
#include "pages/stores/mail_folder_tree.h"

// A tree control that shows mail folders, each with a check box and a picture.
class MailFoldersView {
  public:
    using Ticked = std::function<bool(const MailFolderNode&)>;
    using Toggle = std::function<void(const MailFolderNode&)>;

    // `toggled` is called when the user has ticked or cleared a folder, by a tap on its box or with
    // space.
    MailFoldersView(HWND tree, std::vector<MailFolderNode> folders, Toggle toggled);

    const std::vector<MailFolderNode>& folders() const { return folders_; }

    // Ticks what `ticked` says, and opens what hides a ticked folder.
    void ShowTicks(const Ticked& ticked);
    // The selected folder; null when none is.
    const MailFolderNode* Selected() const;

    // To be given the control's notifications; what is to be answered, if anything.
    std::optional<LRESULT> OnNotification(const NMHDR& header, HWND page);

  private:
    void Insert(HTREEITEM parent, const std::vector<MailFolderNode>& folders);
    // True when something below is ticked.
    bool ShowTicks(HTREEITEM first, const Ticked& ticked, HTREEITEM& firstTicked);
    void ToggleItem(HTREEITEM item);
    void SetTick(HTREEITEM item, bool ticked);
    bool HasTick(HTREEITEM item) const;
    HTREEITEM Next(HTREEITEM item, UINT relation) const;
    const MailFolderNode* NodeOf(HTREEITEM item) const;

    HWND tree_;
    std::vector<MailFolderNode> folders_;  // the items point to these
    Toggle toggled_;
    OwnedImageList pictures_;
    OwnedImageList boxes_;
};
