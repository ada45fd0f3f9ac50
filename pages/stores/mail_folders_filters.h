#pragma once

#include <array>
#include <string>
#include <vector>

#include "pages/stores/mail2.h"
#include "pages/stores/mail_filter.h"
#include "pages/stores/mapi_session.h"

// The filters of the messages tab: those that every device has, one for each kind of special
// folder, and the user's own.
class CMailFoldersFilters {
  public:
    // In the order of kSpecialFolderTags: deleted items, drafts, inbox, outbox, sent items.
    using BuiltInNames = std::array<std::wstring, kSpecialFolderCount>;
    using BuiltIns = std::array<int, kSpecialFolderCount>;  // places in the list of filters

    std::vector<MailFilter>& filters() { return filters_; }
    const std::vector<MailFilter>& filters() const { return filters_; }

    // Reads the stored filters, once unless forced. What cannot be read is left out; false when
    // none have ever been stored.
    bool Load(bool force);
    // Stores all that can be stored, in place of what was.
    void Save() const;

    // The name of the active filter; empty when none is.
    static std::wstring ActiveName();
    // -1: none.
    void SetActive(int index) const;

    // The filters that have folders, by their names.
    std::vector<int> SortedIndices() const;
    // -1 when there is none. In the registry names differ by more than the case of their letters.
    int FindByName(const std::wstring& name) const;

    // Finds the filters that every device has, adding those that are missing.
    BuiltIns FindBuiltIns(const BuiltInNames& names);
    // Adds the special folders of every account of the messaging system. What was added before a
    // failure stays.
    bool AddMAPIFolders(const MapiSession& session, const BuiltIns& builtIns);
    // And those of the second mail program's accounts.
    void AddMail2Folders(const Mail2& mail2, const BuiltIns& builtIns);

  private:
    void AddTo(int index, const MailFolderRef& folder, const std::wstring& account);

    std::vector<MailFilter> filters_;
    bool loaded_ = false;
    bool hasUnread_ = false;  // some that are stored may not be in the list
};

// The process's one.
CMailFoldersFilters& GetMailFoldersFilters();
