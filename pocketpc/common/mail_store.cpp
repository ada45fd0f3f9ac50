#include "pocketpc/common/mail_store.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "pocketpc/common/text.h"

namespace {

constexpr wchar_t kFile[] = L"\\mail.store";
constexpr const wchar_t* kKinds[] = {L"account", L"folder",  L"inbox",  L"outbox",
                                     L"sent",    L"deleted", L"drafts", L"message"};

std::string ReadFile() {
    std::string bytes;
    const HANDLE file = CreateFileW(kFile, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return bytes;
    char part[4096];
    for (DWORD size = 0; ::ReadFile(file, part, sizeof part, &size, nullptr) && size;) {
        bytes.append(part, size);
    }
    CloseHandle(file);
    return bytes;
}

std::wstring Quoted(const std::wstring& text) {
    std::wstring quoted = L"\"";
    for (const wchar_t c : text) quoted += c == L'"' ? L"\"\"" : std::wstring(1, c);
    return quoted + L'"';
}

std::vector<BYTE> BytesOf(const std::wstring& digits) {
    std::vector<BYTE> bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes.push_back(static_cast<BYTE>(wcstoul(digits.substr(i, 2).c_str(), nullptr, 16)));
    }
    return bytes;
}

std::wstring DigitsOf(const std::vector<BYTE>& bytes) {
    std::wstring digits;
    wchar_t text[3];
    for (const BYTE byte : bytes) {
        swprintf(text, std::size(text), L"%02x", byte);
        digits += text;
    }
    return digits;
}

std::optional<MailNode> ParseNode(const std::vector<std::wstring>& words) {
    if (words.size() < 5) return std::nullopt;
    const auto kind = ParseMailKind(words[2]);
    const DWORD number = wcstoul(words[0].c_str(), nullptr, 10);
    if (!kind || !number) return std::nullopt;
    return MailNode{number,   wcstoul(words[1].c_str(), nullptr, 10),
                    *kind,    words[3],
                    words[4], words.size() > 5 ? BytesOf(words[5]) : std::vector<BYTE>()};
}

}  // namespace

const wchar_t* MailKindWord(MailKind kind) { return kKinds[static_cast<int>(kind)]; }

std::optional<MailKind> ParseMailKind(const std::wstring& word) {
    const auto found = std::find(std::begin(kKinds), std::end(kKinds), word);
    if (found == std::end(kKinds)) return std::nullopt;
    return static_cast<MailKind>(found - std::begin(kKinds));
}

MailStore MailStore::Load() {
    MailStore store;
    std::wstring text = TextOfUtf8(ReadFile());
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(L'\n', begin), text.size());
        const std::vector<std::wstring> words =
            SplitWords(std::wstring_view(text).substr(begin, end - begin));
        begin = end + 1;
        if (words.size() == 2 && words[0] == L"next") {
            store.next_ = std::max(store.next_, wcstoul(words[1].c_str(), nullptr, 10));
        } else if (const auto node = ParseNode(words)) {
            store.next_ = std::max(store.next_, node->number + 1);
            store.Append(*node);
        }
    }
    return store;
}

bool MailStore::Save() const {
    std::wstring text = L"next " + std::to_wstring(next_) + L"\n";
    for (const MailNode& node : nodes_) {
        text += std::to_wstring(node.number) + L" " + std::to_wstring(node.parent) + L" " +
                MailKindWord(node.kind) + L" " + Quoted(node.name) + L" " + Quoted(node.service) +
                L" " + DigitsOf(node.identifier) + L"\n";
    }
    const std::string bytes = Utf8Of(text);
    const HANDLE file = CreateFileW(kFile, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool done =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
        written == bytes.size();
    CloseHandle(file);
    return done;
}

const MailNode* MailStore::Find(DWORD number) const {
    const auto found = places_.find(number);
    return found == places_.end() ? nullptr : &nodes_[found->second];
}

// Of a number that comes again the first counts.
void MailStore::Append(MailNode node) {
    places_.try_emplace(node.number, nodes_.size());
    nodes_.push_back(std::move(node));
}

const MailNode* MailStore::AccountOf(const MailNode& node) const {
    const MailNode* found = &node;
    // A file edited by hand may join folders in a circle.
    for (std::size_t steps = 0; found && found->parent && steps <= nodes_.size(); ++steps) {
        found = Find(found->parent);
    }
    return found && !found->parent ? found : nullptr;
}

DWORD MailStore::Add(DWORD parent, MailKind kind, const std::wstring& name,
                     const std::wstring& service) {
    const MailNode* above = Find(parent);
    if (parent && !above) return 0;
    const MailNode* account = above ? AccountOf(*above) : nullptr;
    if (parent && !account) return 0;
    MailNode node{next_++, parent, kind, name, service, std::vector<BYTE>(4)};
    // No flags, the account and the folder.
    for (const DWORD part : {account ? account->number : node.number, node.number}) {
        for (int shift = 0; shift < 32; shift += 8) {
            node.identifier.push_back(static_cast<BYTE>(part >> shift));
        }
    }
    const DWORD number = node.number;
    Append(std::move(node));
    return number;
}

bool MailStore::Remove(DWORD number) {
    if (!Find(number)) return false;
    std::vector<DWORD> gone = {number};
    for (std::size_t i = 0; i < gone.size(); ++i) {
        for (const MailNode& node : nodes_) {
            const bool known = std::find(gone.begin(), gone.end(), node.number) != gone.end();
            if (node.parent == gone[i] && !known) gone.push_back(node.number);
        }
    }
    places_.clear();
    for (MailNode& node : std::exchange(nodes_, {})) {
        if (std::find(gone.begin(), gone.end(), node.number) == gone.end()) Append(std::move(node));
    }
    return true;
}
