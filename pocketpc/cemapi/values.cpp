// The properties of accounts and folders.
#include <algorithm>
#include <cstring>

#include "pocketpc/cemapi/objects.h"

namespace {

constexpr std::size_t kLongestInTable = 255;
constexpr ULONG kOlderTransportName = PROP_TAG(PT_TSTRING, 0x8302);

// The tag of the transport's name changed with version 5.0.
ULONG TransportNameTag() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    const bool newer = GetVersionExW(&version) && version.dwMajorVersion >= 5;
    return newer ? PR_CE_TRANSPORT_NAME : kOlderTransportName;
}

const MailNode* SpecialFolder(const MailSnapshot& mail, const MailNode& account, ULONG tag) {
    struct Special {
        ULONG tag;
        MailKind kind;
    };
    constexpr Special kSpecial[] = {{PR_IPM_WASTEBASKET_ENTRYID, MailKind::kDeleted},
                                    {PR_CE_IPM_DRAFTS_ENTRYID, MailKind::kDrafts},
                                    {PR_CE_IPM_INBOX_ENTRYID, MailKind::kInbox},
                                    {PR_IPM_OUTBOX_ENTRYID, MailKind::kOutbox},
                                    {PR_IPM_SENTMAIL_ENTRYID, MailKind::kSent}};
    for (const Special& special : kSpecial) {
        if (special.tag != tag || account.kind != MailKind::kAccount) continue;
        for (const MailNode& node : mail->nodes()) {
            if (node.kind == special.kind && mail->AccountOf(node) == &account) return &node;
        }
    }
    return nullptr;
}

void* Part(void* buffer, const void* bytes, std::size_t size) {
    void* part = nullptr;
    MAPIAllocateMore(static_cast<ULONG>(size), buffer, &part);
    if (part) std::memcpy(part, bytes, size);
    return part;
}

void SetText(std::wstring text, bool inTable, void* buffer, SPropValue& value) {
    if (text.empty()) return;
    if (inTable) text.resize(std::min(text.size(), kLongestInTable));
    value.ulPropTag = CHANGE_PROP_TYPE(value.ulPropTag, PT_UNICODE);
    value.Value.lpszW =
        static_cast<LPWSTR>(Part(buffer, text.c_str(), (text.size() + 1) * sizeof(wchar_t)));
}

void SetBytes(const std::vector<BYTE>& bytes, bool inTable, void* buffer, SPropValue& value) {
    if (bytes.empty()) return;
    const std::size_t size = inTable ? std::min(bytes.size(), kLongestInTable) : bytes.size();
    value.ulPropTag = CHANGE_PROP_TYPE(value.ulPropTag, PT_BINARY);
    value.Value.bin = {static_cast<ULONG>(size),
                       static_cast<LPBYTE>(Part(buffer, bytes.data(), size))};
}

const std::vector<const MailNode*> kNone;

template <typename Map>
const std::vector<const MailNode*>& NodesOf(const Map& map, const typename Map::key_type& key) {
    const auto found = map.find(key);
    return found == map.end() ? kNone : found->second;
}

}  // namespace

SessionMail::SessionMail(MailStore store) : MailStore(std::move(store)) {
    for (const MailNode& node : nodes()) {
        children_[node.parent].push_back(&node);
        identifiers_[node.identifier].push_back(&node);
    }
}

const std::vector<const MailNode*>& SessionMail::ChildrenOf(DWORD number) const {
    return NodesOf(children_, number);
}

const std::vector<const MailNode*>& SessionMail::WithIdentifier(
    const std::vector<BYTE>& identifier) const {
    return NodesOf(identifiers_, identifier);
}

void FillValue(const MailSnapshot& mail, const MailNode& node, ULONG tag, bool inTable,
               void* buffer, SPropValue& value) {
    value = {};
    value.ulPropTag = CHANGE_PROP_TYPE(tag, PT_ERROR);
    value.Value.err = MAPI_E_NOT_FOUND;
    if (tag == PR_ENTRYID) {
        SetBytes(node.identifier, inTable, buffer, value);
    } else if (tag == PR_DISPLAY_NAME_W) {
        SetText(node.name, inTable, buffer, value);
    } else if (tag == TransportNameTag()) {
        SetText(node.service, inTable, buffer, value);
    } else if (tag == PR_SUBFOLDERS) {
        value.ulPropTag = tag;
        value.Value.b = !mail->ChildrenOf(node.number).empty();
    } else if (tag == PR_OBJECT_TYPE) {
        value.ulPropTag = tag;
        value.Value.l = node.kind == MailKind::kAccount   ? MAPI_STORE
                        : node.kind == MailKind::kMessage ? MAPI_MESSAGE
                                                          : MAPI_FOLDER;
    } else if (tag == PR_IPM_SUBTREE_ENTRYID && !node.parent && !trials::NoSubtree()) {
        SetBytes(RootIdentifier(node), inTable, buffer, value);
    } else if (const MailNode* special = SpecialFolder(mail, node, tag)) {
        SetBytes(special->identifier, inTable, buffer, value);
    }
}

std::vector<BYTE> RootIdentifier(const MailNode& account) {
    // No flags, the account and the folder 0; folders are counted from 1 on.
    std::vector<BYTE> identifier(12);
    for (int i = 0; i < 4; ++i) identifier[4 + i] = static_cast<BYTE>(account.number >> 8 * i);
    return identifier;
}

const MailNode* FindEntry(const MailSnapshot& mail, ULONG size, LPENTRYID entry,
                          const std::function<bool(const MailNode&)>& wanted) {
    if (!entry || !size) return nullptr;
    const auto bytes = reinterpret_cast<const BYTE*>(entry);
    const auto& nodes = mail->WithIdentifier({bytes, bytes + size});
    const auto found =
        std::ranges::find_if(nodes, [&](const MailNode* node) { return wanted(*node); });
    return found == nodes.end() ? nullptr : *found;
}

bool IsOneOf(LPCIID id, std::initializer_list<const IID*> ids) {
    return std::any_of(ids.begin(), ids.end(),
                       [&](const IID* one) { return IsEqualIID(*id, *one); });
}
