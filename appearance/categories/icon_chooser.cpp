#include "appearance/categories/icon_chooser.h"

#include <aygshell.h>

#include "app/language/language_table.h"
#include "appearance/categories/icon_files.h"
#include "appearance/categories/icon_folder_dialog.h"
#include "appearance/categories/short_path.h"
#include "appearance/skins/skin_art.h"
#include "base/fill_in.h"
#include "base/owned_handle.h"
#include "base/scale.h"
#include "base/wait_cursor.h"
#include "resources/ids.h"
#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

// The commands of the menu of sources: a source's number and one more; browsing.
constexpr int kFirstSource = 1;
constexpr int kBrowse = 222;

constexpr int kMarkSize = 9;  // at 96 dots per inch

void PaintMark(HDC dc, const RECT& area, bool expanded) {
    DrawIconEx(dc, area.left, area.top,
               GetSkinArt().Icon(expanded ? SkinIcon::kExpanded : SkinIcon::kCollapsed),
               ScaleX(kMarkSize), ScaleX(kMarkSize), 0, nullptr, DI_NORMAL);
}

}  // namespace

IconChooser::IconChooser(std::wstring category)
    : FullScreenDialog(IDD_ICON_CHOOSER, L"options_category_icons_chooser"),
      category_(std::move(category)) {}

unsigned IconChooser::MenuBarId() const { return IDM_ICON_CHOOSER; }

std::wstring IconChooser::BandTitle() const {
    return FillIn(GetLanguageTable().LoadString(IDS_ICON_FOR), {category_});
}

bool IconChooser::OnInit() {
    const std::optional<RememberedFolders> remembered = ReadRememberedFolders();
    foldersAreKnown_ = remembered.has_value();
    sources_ = std::make_unique<IconSources>(FindFixedIconSources(),
                                             remembered.value_or(RememberedFolders()));
    list_.Create(hwnd(), IDC_ICON_LIST, RECT{}, PaintMark);
    return false;
}

bool IconChooser::OnInitDialog() {
    FullScreenDialog::OnInitDialog();
    SetFocus(list_.hwnd());
    const std::uint32_t source = OpenProductKey().Read(settings::IconSetId);
    if (const auto folders = sources_->Show(static_cast<std::int32_t>(source))) Load(*folders);
    return false;
}

std::optional<INT_PTR> IconChooser::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // A menu that is open goes with the dialog.
    if (message == WM_CLOSE) SendMessageW(hwnd(), WM_CANCELMODE, 0, 0);
    return FullScreenDialog::OnMessage(message, wParam, lParam);
}

bool IconChooser::OnCommand(int id, int code) {
    switch (id) {
        case IDM_SHOW_SOURCES: ChooseSource(); return true;
        case IDC_ICON_LIST:
            if (code == kIconsListActivated) PostMessageW(hwnd(), WM_COMMAND, IDOK, 0);
            return true;
        case IDOK:
            OpenProductKey().Write(settings::IconSetId,
                                   static_cast<std::uint32_t>(sources_->shown().value_or(0)));
            if (const auto selected = list_.SelectedPath()) path_ = *selected;
            break;
    }
    return FullScreenDialog::OnCommand(id, code);
}

void IconChooser::Load(const std::vector<std::wstring>& folders) {
    const WaitCursor wait;
    list_.Show(nullptr);
    library_.Clear();
    for (const std::wstring& folder : folders) library_.LoadFolder(folder);
    list_.Show(&library_);
    // A folder that was chosen comes first next time.
    if (foldersAreKnown_) WriteRememberedFolders(sources_->remembered());
}

void IconChooser::ChooseSource() {
    const int command = TrackSourceMenu();
    if (command == kBrowse) {
        Browse();
    } else if (command >= kFirstSource) {
        if (const auto folders = sources_->Show(command - kFirstSource)) Load(*folders);
    }
    SetFocus(list_.hwnd());
}

void IconChooser::Browse() {
    IconFolderDialog dialog;
    if (dialog.DoModal(hwnd()) && !dialog.path().empty()) {
        Load(sources_->ShowFolder(dialog.path()));
    }
}

// The chosen command; 0 for none.
int IconChooser::TrackSourceMenu() const {
    const OwnedMenu owned(CreatePopupMenu());
    const HMENU menu = owned.get();
    if (!menu) return 0;
    int command = kFirstSource;
    const auto add = [&](const std::wstring& text) {
        AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(command++), text.c_str());
    };
    const auto addFolders = [&](const std::vector<std::wstring>& folders) {
        for (const std::wstring& folder : folders) add(MenuText(folder));
    };
    add(GetLanguageTable().LoadString(IDS_ALL_SOURCES));
    addFolders(sources_->fixed());
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    if (!sources_->remembered().folders().empty()) {
        addFolders(sources_->remembered().folders());
        AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    }
    const auto last = static_cast<UINT>(command - 1);
    command = kBrowse;
    add(GetLanguageTable().LoadString(IDS_BROWSE_SOURCES));
    CheckMenuRadioItem(menu, kFirstSource, last,
                       static_cast<UINT>(kFirstSource + sources_->shown().value_or(0)),
                       MF_BYCOMMAND);

    // Above its soft key, the left one.
    RECT bar = {};
    GetWindowRect(SHFindMenuBar(hwnd()), &bar);
    return TrackPopupMenuEx(menu, TPM_LEFTALIGN | TPM_BOTTOMALIGN | TPM_RETURNCMD, bar.left,
                            bar.top, hwnd(), nullptr);
}

// A path as a menu shows it: short enough for the screen, with nothing taken for a mnemonic.
std::wstring IconChooser::MenuText(const std::wstring& folder) const {
    const WindowDc dc(hwnd());
    const SelectedObject font(dc.get(),
                              reinterpret_cast<HFONT>(SendMessageW(hwnd(), WM_GETFONT, 0, 0)));
    const int widest = GetSystemMetrics(SM_CXSCREEN) * 3 / 4;
    std::wstring text = ShortenPath(folder, [&](const std::wstring& part) {
        RECT area = {};
        DrawTextW(dc.get(), part.c_str(), static_cast<int>(part.size()), &area,
                  DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
        return area.right <= widest;
    });
    for (std::size_t at = 0; (at = text.find(L'&', at)) != std::wstring::npos; at += 2) {
        text.insert(at, 1, L'&');
    }
    return text;
}
