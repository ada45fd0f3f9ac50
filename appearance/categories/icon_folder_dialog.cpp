#include "appearance/categories/icon_folder_dialog.h"

#include "base/find_files.h"
#include "base/wait_cursor.h"
#include "resources/ids.h"

namespace {

// Calls `action(name)` for each folder in a folder until it says false. Names that begin with a dot
// are those of the folder itself, of the one above, and hidden ones.
template <typename Action>
void ForEachFolder(const std::wstring& path, Action action) {
    ForEachFile(path + L"\\*.*", [&action](WIN32_FIND_DATAW& found) {
        return !IsFolder(found) || found.cFileName[0] == L'.' || action(found.cFileName);
    });
}

bool HasFolders(const std::wstring& path) {
    bool has = false;
    ForEachFolder(path, [&has](const wchar_t*) {
        has = true;
        return false;
    });
    return has;
}

}  // namespace

IconFolderDialog::IconFolderDialog()
    : FullScreenDialog(IDD_ICON_FOLDERS, L"options_category_icons_chooser", Band::kOwnTitle) {}

HWND IconFolderDialog::Tree() const { return Item(IDC_FOLDER_TREE); }

bool IconFolderDialog::OnInit() {
    const WaitCursor wait;
    ListFolders(TVI_ROOT);
    return false;
}

bool IconFolderDialog::OnInitDialog() {
    FullScreenDialog::OnInitDialog();
    SetFocus(Tree());
    return false;
}

// From the root of the device, without a backslash at the end.
std::wstring IconFolderDialog::PathOf(HTREEITEM item) const {
    std::wstring path;
    for (; item && item != TVI_ROOT;
         item = reinterpret_cast<HTREEITEM>(
             SendMessageW(Tree(), TVM_GETNEXTITEM, TVGN_PARENT, reinterpret_cast<LPARAM>(item)))) {
        wchar_t name[MAX_PATH] = {};
        TVITEMW folder = {};
        folder.mask = TVIF_TEXT;
        folder.hItem = item;
        folder.pszText = name;
        folder.cchTextMax = MAX_PATH;
        SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&folder));
        path = L"\\" + (name + path);
    }
    return path;
}

void IconFolderDialog::ListFolders(HTREEITEM parent) {
    ForEachFolder(PathOf(parent), [&](wchar_t* name) {
        TVINSERTSTRUCTW insert = {};
        insert.hParent = parent;
        insert.hInsertAfter = TVI_SORT;
        insert.item.mask = TVIF_TEXT | TVIF_CHILDREN;
        insert.item.pszText = name;
        insert.item.cChildren = I_CHILDRENCALLBACK;  // asked for when it shows
        SendMessageW(Tree(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert));
        return true;
    });
}

std::optional<INT_PTR> IconFolderDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_NOTIFY) return FullScreenDialog::OnMessage(message, wParam, lParam);
    switch (reinterpret_cast<const NMHDR*>(lParam)->code) {
        case TVN_GETDISPINFOW: {
            TVITEMW& item = reinterpret_cast<NMTVDISPINFOW*>(lParam)->item;
            if (item.mask & TVIF_CHILDREN) item.cChildren = HasFolders(PathOf(item.hItem));
            return TRUE;
        }
        case TVN_ITEMEXPANDINGW: {
            const NMTREEVIEWW& expanding = *reinterpret_cast<const NMTREEVIEWW*>(lParam);
            const HTREEITEM item = expanding.itemNew.hItem;
            const bool read = SendMessageW(Tree(), TVM_GETNEXTITEM, TVGN_CHILD,
                                           reinterpret_cast<LPARAM>(item)) != 0;
            if (expanding.action == TVE_EXPAND && !read) {
                const WaitCursor wait;
                ListFolders(item);
            }
            return Answer(FALSE);
        }
    }
    return std::nullopt;
}

bool IconFolderDialog::OnCommand(int id, int code) {
    if (id == IDOK) {
        path_ = PathOf(
            reinterpret_cast<HTREEITEM>(SendMessageW(Tree(), TVM_GETNEXTITEM, TVGN_CARET, 0)));
    }
    return FullScreenDialog::OnCommand(id, code);
}
