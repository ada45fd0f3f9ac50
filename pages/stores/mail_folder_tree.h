#pragma once

#include <string>
#include <vector>

#include "pages/stores/mail2.h"
#include "pages/stores/mail_filter.h"
#include "pages/stores/mapi_session.h"

// What a folder is for, as far as it is shown.
enum class MailFolderKind { kAccount, kFolder, kDeleted, kDrafts, kInbox, kOutbox, kSent };
inline constexpr int kMailFolderKindCount = 7;

// An account or a folder with the folders within it, in the order of their store.
struct MailFolderNode {
    MailFolderRef folder;
    MailFolderKind kind = MailFolderKind::kFolder;
    std::wstring name;
    // The names on the way from the account, which begins it: "Account - Folder - Folder within".
    std::wstring path;
    std::vector<MailFolderNode> children;
};

// Every account of the messaging system with its folders, and then those of the second mail
// program. Stores and folders that cannot be opened, or whose identifiers cannot be stored, are
// left out; a folder that a store shows more than once, even within itself, is there once. An
// account without a name is called `unnamed`.
std::vector<MailFolderNode> ReadMailFolderTree(const MapiSession& session, const Mail2& mail2,
                                               const std::wstring& unnamed);
