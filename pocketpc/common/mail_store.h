#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

// What a mail account or a folder is for.
enum class MailKind { kAccount, kFolder, kInbox, kOutbox, kSent, kDeleted, kDrafts, kMessage };

// The words that stand for the kinds in files and commands.
const wchar_t* MailKindWord(MailKind kind);
std::optional<MailKind> ParseMailKind(const std::wstring& word);

// An account, or a folder within one. Without a name, a service or an identifier it lacks that
// property.
struct MailNode {
    DWORD number = 0;
    DWORD parent = 0;  // 0: an account
    MailKind kind = MailKind::kFolder;
    std::wstring name;
    std::wstring service;          // of an account
    std::vector<BYTE> identifier;  // the entry identifier
};

// The accounts and folders of the device: the file \mail.store, one line for each in the order in
// which tables have them:
//
//   next 3
//   1 0 account "Outlook E-mail" "ActiveSync" 000000000100000001000000
//   2 1 inbox "Inbox" "" 000000000100000002000000
class MailStore {
  public:
    // A missing file is an empty store; lines that are none are left out.
    static MailStore Load();
    bool Save() const;

    const std::vector<MailNode>& nodes() const { return nodes_; }
    std::vector<MailNode>& nodes() { return nodes_; }
    const MailNode* Find(DWORD number) const;
    const MailNode* AccountOf(const MailNode& node) const;

    // Returns its number, which is never used again; 0 when there is no such parent.
    DWORD Add(DWORD parent, MailKind kind, const std::wstring& name,
              const std::wstring& service = L"");
    // With all below it.
    bool Remove(DWORD number);

  private:
    void Append(MailNode node);

    DWORD next_ = 1;
    std::vector<MailNode> nodes_;
    std::unordered_map<DWORD, std::size_t> places_;  // of the numbers among them
};
