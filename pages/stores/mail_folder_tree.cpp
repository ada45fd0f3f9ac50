#include "pages/stores/mail_folder_tree.h"

#include <map>
#include <set>
#include <utility>

namespace {

using Identifier = std::vector<std::uint8_t>;

// No device's folders go as deep; a store that makes up new ones all the time ends here.
constexpr int kDeepest = 32;

constexpr MailFolderKind kSpecialKinds[kSpecialFolderCount] = {
    MailFolderKind::kDeleted, MailFolderKind::kDrafts, MailFolderKind::kInbox,
    MailFolderKind::kOutbox, MailFolderKind::kSent};

MailFolderKind KindOfMail2Type(std::int32_t type) {
    switch (type) {
        case 1: return MailFolderKind::kInbox;
        case 2: return MailFolderKind::kOutbox;
        case 3: return MailFolderKind::kSent;
        case 4: return MailFolderKind::kDeleted;
        case 5: return MailFolderKind::kDrafts;
    }
    return MailFolderKind::kFolder;
}

MailFolderNode MakeChild(const MailFolderNode& parent, MailFolderRef folder, MailFolderKind kind,
                         const std::wstring& name) {
    return {std::move(folder), kind, name, parent.path + L" - " + name, {}};
}

// Opens an entry of a store if that is a folder. With an empty identifier it is the root: devices
// document that they refuse that, so it is for a store that names no other beginning.
MapiPointer<IMAPIFolder> OpenFolder(IMsgStore& store, const Identifier& identifier) {
    ULONG type = 0;
    LPUNKNOWN object = nullptr;
    if (FAILED(store.OpenEntry(static_cast<ULONG>(identifier.size()),
                               identifier.empty() ? nullptr : EntryOf(identifier), nullptr, 0,
                               &type, &object))) {
        return {};
    }
    const MapiPointer<IUnknown> owner(object);
    IMAPIFolder* folder = nullptr;
    if (type != MAPI_FOLDER ||
        FAILED(object->QueryInterface(IID_IMAPIFolder, reinterpret_cast<void**>(&folder)))) {
        return {};
    }
    return MapiPointer<IMAPIFolder>(folder);
}

// Walks the folders of one store.
class Walker {
  public:
    explicit Walker(IMsgStore& store) : store_(store) {
        // Where these cannot be read every folder is a plain one.
        ForEachSpecialFolder(store, [this](std::size_t i, const Identifier& identifier) {
            kinds_.emplace(identifier, kSpecialKinds[i]);
        });
    }

    void Walk(MailFolderNode& account) {
        const auto root = OpenFolder(store_, SubtreeIdentifier(store_));
        if (root) Walk(*root.get(), account, 1);
    }

  private:
    void Walk(IMAPIFolder& folder, MailFolderNode& parent, int depth) {
        LPMAPITABLE table = nullptr;
        if (depth > kDeepest || FAILED(folder.GetHierarchyTable(MAPI_UNICODE, &table))) return;
        const MapiPointer<IMAPITable> owner(table);
        ForEachRow(*table, {PR_ENTRYID, PR_DISPLAY_NAME_W, PR_SUBFOLDERS},
                   [&](const MapiRecord& row) {
                       Add(row, parent, depth);
                       return true;
                   });
    }

    void Add(const MapiRecord& row, MailFolderNode& parent, int depth) {
        const auto identifier = row.Bytes(0);
        const auto name = row.Text(1);
        if (!identifier || identifier->empty() || !name || name->empty()) return;
        const MailFolderRef ref = {*identifier, false};
        if (!ref.CanBeStored() || !seen_.insert(*identifier).second) return;
        const MapiPointer<IMAPIFolder> folder = OpenFolder(store_, *identifier);
        if (!folder) return;
        const auto special = kinds_.find(*identifier);
        MailFolderNode node =
            MakeChild(parent, ref,
                      special == kinds_.end() ? MailFolderKind::kFolder : special->second, *name);
        if (row.Flag(2)) Walk(*folder.get(), node, depth + 1);
        parent.children.push_back(std::move(node));
    }

    IMsgStore& store_;
    std::map<Identifier, MailFolderKind> kinds_;
    std::set<Identifier> seen_;
};

MailFolderNode MakeAccount(MailFolderRef folder, const std::wstring& name) {
    return {std::move(folder), MailFolderKind::kAccount, name, name, {}};
}

}  // namespace

std::vector<MailFolderNode> ReadMailFolderTree(const MapiSession& session, const Mail2& mail2,
                                               const std::wstring& unnamed) {
    std::vector<MailFolderNode> tree;
    const auto nameOf = [&](const std::wstring& name) { return name.empty() ? unnamed : name; };
    session.ForEachAccount([&](const MapiAccount& account) {
        const MapiPointer<IMsgStore> store = session.OpenStore(account);
        if (!store) return true;
        MailFolderNode node = MakeAccount({account.identifier, false}, nameOf(account.name));
        Walker(*store.get()).Walk(node);
        tree.push_back(std::move(node));
        return true;
    });
    for (const auto& account : mail2.accounts()) {
        // The account itself is what no record is. Its folders' identifiers are as long.
        const MailFolderRef ref = {account->FolderIdentifier(Mail2Folder()), true};
        if (!ref.CanBeStored()) continue;
        MailFolderNode node = MakeAccount(ref, nameOf(account->name()));
        for (const Mail2Folder& folder : account->folders()) {
            if (folder.name.empty()) continue;
            node.children.push_back(MakeChild(node, {account->FolderIdentifier(folder), true},
                                              KindOfMail2Type(folder.type), folder.name));
        }
        tree.push_back(std::move(node));
    }
    return tree;
}
