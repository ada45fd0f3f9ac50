#include "pocketpc/devicectl/mail.h"

#include <algorithm>
#include <iterator>

namespace {

const MailNode* ChildNamed(const MailStore& mail, DWORD parent, const std::wstring& name) {
    const auto found = std::find_if(
        mail.nodes().begin(), mail.nodes().end(),
        [&](const MailNode& node) { return node.parent == parent && node.name == name; });
    return found == mail.nodes().end() ? nullptr : &*found;
}

void List(const MailStore& mail, DWORD parent, const std::wstring& path,
          std::vector<std::wstring>& lines) {
    for (const MailNode& node : mail.nodes()) {
        if (node.parent != parent) continue;
        std::wstring line = std::to_wstring(node.number) + L"\t" + MailKindWord(node.kind) + L"\t" +
                            path + node.name;
        if (!node.service.empty()) line += L"\t" + node.service;
        lines.push_back(line);
        List(mail, node.number, path + node.name + L"\\", lines);
    }
}

}  // namespace

std::vector<std::wstring> ListMail() {
    std::vector<std::wstring> lines;
    List(MailStore::Load(), 0, L"", lines);
    return lines;
}

bool HasAccount(const MailStore& mail, const std::wstring& name) {
    return ChildNamed(mail, 0, name) != nullptr;
}

bool AddMailFolder(MailStore& mail, DWORD account, const std::wstring& path, MailKind kind) {
    DWORD parent = account;
    std::size_t begin = 0;
    for (std::size_t end; (end = path.find(L'\\', begin)) != std::wstring::npos; begin = end + 1) {
        const MailNode* folder = ChildNamed(mail, parent, path.substr(begin, end - begin));
        if (!folder) return false;
        parent = folder->number;
    }
    return mail.Add(parent, kind, path.substr(begin)) != 0;
}

void AddManyAccounts(MailStore& mail, DWORD count, DWORD folders) {
    struct Special {
        const wchar_t* name;
        MailKind kind;
    };
    constexpr Special kSpecial[] = {{L"Inbox", MailKind::kInbox},
                                    {L"Outbox", MailKind::kOutbox},
                                    {L"Sent Items", MailKind::kSent},
                                    {L"Deleted Items", MailKind::kDeleted},
                                    {L"Drafts", MailKind::kDrafts}};
    constexpr const wchar_t* kTopics[] = {L"Invoices", L"Travel",  L"Family", L"Newsletters",
                                          L"Projects", L"Minutes", L"Orders", L"Sports club"};
    constexpr DWORD kFoldersInOne = 12;
    for (DWORD i = 1; i <= count; ++i) {
        const std::wstring name = L"Account " + std::to_wstring(i);
        if (HasAccount(mail, name)) continue;
        const DWORD account = mail.Add(0, MailKind::kAccount, name);
        DWORD made = 0, parent = account;
        for (const Special& special : kSpecial) {
            if (made++ < folders) mail.Add(account, special.kind, special.name);
        }
        // Counted down, so that the order of the store is not that of the alphabet.
        for (DWORD left = folders; made < folders; ++made, --left) {
            const std::wstring topic = kTopics[left % std::size(kTopics)];
            const bool top = made % kFoldersInOne == 0;
            const DWORD number = mail.Add(top ? account : parent, MailKind::kFolder,
                                          topic + L" " + std::to_wstring(left));
            if (top) parent = number;
        }
    }
}
