#include "pages/messages/mail_folders_view.h"

#include <algorithm>
#include <numeric>

#include "base/scale.h"
#include "pages/messages/mail_folder_icons.h"

namespace {

constexpr int kBoxSize = 16;
// The state images; the first one of a list means that there is no image.
constexpr UINT kNotTicked = 1, kTicked = 2;
// Accounts with no more folders than this, all together, are shown open.
constexpr std::size_t kFewFolders = 30;

OwnedImageList BoxImages() {
    const int width = ScaleX(kBoxSize), height = ScaleY(kBoxSize);
    OwnedImageList list(ImageList_Create(width, height, ILC_COLOR, kTicked + 1, 1));
    const WindowDc screen;
    const OwnedBitmap bitmap(CreateCompatibleBitmap(screen.get(), width, height));
    const OwnedDc memory(CreateCompatibleDC(screen.get()));
    if (!list || !bitmap || !memory) return {};
    for (UINT state = 0; state <= kTicked; ++state) {
        {
            const SelectedObject selected(memory.get(), bitmap.get());
            RECT area = {0, 0, width, height};
            FillRect(memory.get(), &area, GetSysColorBrush(COLOR_WINDOW));
            InflateRect(&area, -ScaleX(2), -ScaleY(2));
            DrawFrameControl(memory.get(), &area, DFC_BUTTON,
                             DFCS_BUTTONCHECK | DFCS_FLAT | (state == kTicked ? DFCS_CHECKED : 0));
        }
        if (ImageList_Add(list.get(), bitmap.get(), nullptr) < 0) return {};
    }
    return list;
}

std::size_t CountFolders(const std::vector<MailFolderNode>& folders) {
    return std::accumulate(folders.begin(), folders.end(), folders.size(),
                           [](std::size_t count, const MailFolderNode& folder) {
                               return count + CountFolders(folder.children);
                           });
}

}  // namespace

MailFoldersView::MailFoldersView(HWND tree, std::vector<MailFolderNode> folders, Toggle toggled)
    : tree_(tree),
      folders_(std::move(folders)),
      toggled_(std::move(toggled)),
      pictures_(MailFolderIcons()),
      boxes_(BoxImages()) {
    SendMessageW(tree_, WM_SETREDRAW, FALSE, 0);
    TreeView_SetImageList(tree_, pictures_.get(), TVSIL_NORMAL);
    TreeView_SetImageList(tree_, boxes_.get(), TVSIL_STATE);
    Insert(TVI_ROOT, nullptr, folders_);
    Number(TreeView_GetRoot(tree_), 0);
    const HTREEITEM first = TreeView_GetRoot(tree_);
    if (CountFolders(folders_) <= kFewFolders) {
        for (HTREEITEM item = first; item; item = Next(item, TVGN_NEXT)) {
            TreeView_Expand(tree_, item, TVE_EXPAND);
        }
    }
    if (first) {
        TreeView_SelectItem(tree_, first);
        TreeView_EnsureVisible(tree_, first);
    }
    SendMessageW(tree_, WM_SETREDRAW, TRUE, 0);
}

void MailFoldersView::Insert(HTREEITEM parent, const MailFolderNode* account,
                             const std::vector<MailFolderNode>& folders) {
    for (const MailFolderNode& folder : folders) {
        Place& place = places_.emplace_back(Place{account ? account : &folder, &folder});
        TVINSERTSTRUCTW insert = {};
        insert.hParent = parent;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        insert.item.pszText = const_cast<LPWSTR>(folder.name.c_str());
        insert.item.lParam = reinterpret_cast<LPARAM>(&place);
        insert.item.state = INDEXTOSTATEIMAGEMASK(kNotTicked);
        insert.item.stateMask = TVIS_STATEIMAGEMASK;
        insert.item.iImage = insert.item.iSelectedImage = static_cast<int>(folder.kind);
        place.item = TreeView_InsertItem(tree_, &insert);
        if (!place.item) continue;
        byFolder_.emplace(folder.folder, &place);
        Insert(place.item, place.account, folder.children);
    }
    if (!folders.empty()) TreeView_SortChildren(tree_, parent, FALSE);
}

std::size_t MailFoldersView::Number(HTREEITEM first, std::size_t row) {
    for (HTREEITEM item = first; item; item = Next(item, TVGN_NEXT)) {
        PlaceOf(item).row = row;
        row = Number(Next(item, TVGN_CHILD), row + 1);
    }
    return row;
}

const MailFoldersView::Place* MailFoldersView::Find(const MailFolderRef& folder) const {
    const auto found = byFolder_.find(folder);
    return found == byFolder_.end() ? nullptr : found->second;
}

void MailFoldersView::ShowTicks(const std::vector<MailFilter::Entry>& filter) {
    std::set<const Place*> wanted;
    for (const MailFilter::Entry& entry : filter) {
        const auto [begin, end] = byFolder_.equal_range(entry.folder);
        for (auto place = begin; place != end; ++place) wanted.insert(place->second);
    }
    SendMessageW(tree_, WM_SETREDRAW, FALSE, 0);
    for (const Place* place : std::set(ticked_)) {
        if (!wanted.contains(place)) SetTick(*place, false);
    }
    std::set<HTREEITEM> opened;
    for (const Place* place : wanted) {
        if (!ticked_.contains(place)) SetTick(*place, true);
        HTREEITEM above = Next(place->item, TVGN_PARENT);
        for (; above && opened.insert(above).second; above = Next(above, TVGN_PARENT)) {
            TreeView_Expand(tree_, above, TVE_EXPAND);
        }
    }
    const auto first = std::ranges::min_element(wanted, {}, &Place::row);
    if (first != wanted.end()) {
        const HTREEITEM item = (*first)->item;
        TreeView_SelectItem(tree_, item);
        // With what it lies in, as far as there is room for both.
        if (const HTREEITEM parent = Next(item, TVGN_PARENT)) TreeView_EnsureVisible(tree_, parent);
        TreeView_EnsureVisible(tree_, item);
    }
    SendMessageW(tree_, WM_SETREDRAW, TRUE, 0);
}

const MailFolderNode* MailFoldersView::Selected() const {
    const HTREEITEM item = TreeView_GetSelection(tree_);
    return item ? PlaceOf(item).folder : nullptr;
}

std::optional<LRESULT> MailFoldersView::OnNotification(const NMHDR& header, HWND page) {
    switch (header.code) {
        case NM_CLICK:
        case NM_DBLCLK: {
            const DWORD position = GetMessagePos();
            TVHITTESTINFO hit = {};
            hit.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
            ScreenToClient(tree_, &hit.pt);
            const HTREEITEM item = TreeView_HitTest(tree_, &hit);
            if (!item || !(hit.flags & TVHT_ONITEMSTATEICON)) return std::nullopt;
            TreeView_SelectItem(tree_, item);
            ToggleItem(item);
            // A double tap on a box shall not open the folder.
            if (header.code == NM_DBLCLK) return 1;
            break;
        }
        case TVN_KEYDOWN: {
            const HTREEITEM item = TreeView_GetSelection(tree_);
            switch (reinterpret_cast<const NMTVKEYDOWN&>(header).wVKey) {
                case VK_SPACE:
                    if (item) ToggleItem(item);
                    return 1;  // It is no beginning of a name to look for.
                // At either end these leave the tree, so that a device without a Tab key reaches
                // the other controls.
                case VK_UP:
                    if (!item || !Next(item, TVGN_PREVIOUSVISIBLE)) {
                        PostMessageW(page, WM_NEXTDLGCTL, TRUE, FALSE);
                    }
                    break;
                case VK_DOWN:
                    if (!item || !Next(item, TVGN_NEXTVISIBLE)) {
                        PostMessageW(page, WM_NEXTDLGCTL, FALSE, FALSE);
                    }
                    break;
            }
            break;
        }
    }
    return std::nullopt;
}

void MailFoldersView::ToggleItem(HTREEITEM item) {
    const Place& place = PlaceOf(item);
    const bool ticked = !ticked_.contains(&place);
    // Stores may share a folder, which then stands in the tree more than once.
    const auto [begin, end] = byFolder_.equal_range(place.folder->folder);
    for (auto same = begin; same != end; ++same) SetTick(*same->second, ticked);
    toggled_(*place.folder);
}

void MailFoldersView::SetTick(const Place& place, bool ticked) {
    if (ticked) {
        ticked_.insert(&place);
    } else {
        ticked_.erase(&place);
    }
    TVITEMW change = {};
    change.mask = TVIF_STATE;
    change.hItem = place.item;
    change.state = INDEXTOSTATEIMAGEMASK(ticked ? kTicked : kNotTicked);
    change.stateMask = TVIS_STATEIMAGEMASK;
    TreeView_SetItem(tree_, &change);
}

HTREEITEM MailFoldersView::Next(HTREEITEM item, UINT relation) const {
    return TreeView_GetNextItem(tree_, item, relation);
}

MailFoldersView::Place& MailFoldersView::PlaceOf(HTREEITEM item) const {
    TVITEMW asked = {};
    asked.mask = TVIF_PARAM;
    asked.hItem = item;
    TreeView_GetItem(tree_, &asked);
    return *reinterpret_cast<Place*>(asked.lParam);
}
