#include "tests/trials/walk.h"

#include <commctrl.h>
#include <prsht.h>

#include <bit>

#include "app/registry_exporter.h"
#include "resources/ids.h"
#include "tests/ui/device.h"
#include "tests/ui/page_table.h"

namespace {

using namespace ui;
using Storing = std::function<void()>;

const std::wstring kInstall = kInstallFolder;

BOOL CALLBACK Paint(HWND window, LPARAM) {
    if (IsWindowVisible(window)) SendMessageW(window, WM_PAINT, 0, 0);
    return TRUE;
}

// A dialog, painted at once, as some objects are made when something is painted first, which else
// happens at a moment of chance. Null when it does not open.
HWND Opened(const Program& program, const wchar_t* title) {
    const HWND window = program.Sheet(title);
    if (window) Draw(window);
    return window;
}

// Away from what the device has stored, which is what the row would change to.
void Change(HWND page, const PageRow& row) {
    if (row.select == kClick) {
        Click(page, row.control);
    } else {
        Select(page, row.control, row.select == 0);
    }
}

// What a page has besides its table.
void UsePage(const Program& program, HWND page) {
    if (const HWND skins = GetDlgItem(page, IDC_SKIN)) {
        Select(page, IDC_SKIN, SendMessageW(skins, CB_GETCURSEL, 0, 0) == 0);
    } else if (const HWND layouts = GetDlgItem(page, IDC_CONTACT_LAYOUT)) {
        Select(page, IDC_CONTACT_LAYOUT,
               static_cast<int>(SendMessageW(layouts, CB_GETCOUNT, 0, 0)) - 2);
        const HWND dialog = Opened(program, L"Keyboard layouts");
        SendDlgItemMessageW(dialog, IDC_LAYOUTS_LIST, WM_KEYDOWN, VK_SPACE, 0);
        Draw(dialog);
        Ok(dialog);
    } else if (const HWND notes = GetDlgItem(page, IDC_NOTES_FOLDERS)) {
        SendMessageW(notes, WM_KEYDOWN, VK_SPACE, 0);
    } else if (GetDlgItem(page, IDC_TABS_LIST)) {
        Click(page, IDC_TABS_DOWN);
    } else if (const HWND titles = GetDlgItem(page, IDC_TITLE_FIELDS)) {
        SendMessageW(titles, WM_KEYDOWN, VK_RIGHT, 0);
    }
}

// Of the pages those whose bits are set.
Outcome WalkSheet(const Program& program, int entry, unsigned shown, const Storing& storing) {
    program.Open(entry, std::countr_zero(shown));
    const HWND sheet = program.Sheet(kSheetTitles[entry]);
    if (!sheet) return {};
    const auto pages = SendMessageW(PropSheet_GetTabControl(sheet), TCM_GETITEMCOUNT, 0, 0);
    for (int i = 0; i < pages; ++i) {
        if (!(shown >> i & 1)) continue;
        TurnTo(sheet, i);
        const HWND page = PropSheet_GetCurrentPageHwnd(sheet);
        Draw(sheet);
        for (const std::span<const PageRow> rows : PageTables()) {
            if (rows.front().entry == entry && rows.front().page == i) Change(page, rows.front());
        }
        UsePage(program, page);
        Draw(page);
    }
    storing();
    return {Ok(sheet)};
}

void UseColors(HWND dialog) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_CATEGORY_COLOR, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_CATEGORY_COLOR)));
    HWND colors = nullptr;
    const auto find = [&] { return colors = FindWindowW(L"LumDiaryColorsListWnd.0", nullptr); };
    if (!Until([&] { return !IsWindow(dialog) || find(); }) || !colors) return;
    Draw(colors);
    PostKeys(colors, {VK_RIGHT, VK_RETURN});
    Until([&] { return !IsWindow(colors) || !IsWindowVisible(colors); });
}

void BrowseForIcons(const Program& program, HWND chooser) {
    PickSource(chooser, {VK_UP});
    const HWND folders = Opened(program, L"Choose folder");
    PostKeys(GetDlgItem(folders, IDC_FOLDER_TREE), {VK_END});
    Cancel(folders);
}

Outcome WalkCategories(const Program& program, const Storing& storing) {
    program.Open(7, 0);
    const HWND dialog = Opened(program, L"Category Icons");
    if (!dialog) return {};
    UseColors(dialog);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_CATEGORY_CHOOSE, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_CATEGORY_CHOOSE)));
    // Without categories, which a failing call may cost, there is nothing to choose for.
    if (IsWindowEnabled(GetDlgItem(dialog, IDC_CATEGORY_CHOOSE))) {
        const HWND chooser = Opened(program, L"Choose icon");
        if (!chooser) return {};
        BrowseForIcons(program, chooser);
        PickSource(chooser, {VK_DOWN});  // all of them
        SendMessageW(chooser, WM_NULL, 0, 0);
        // Both marks of a group, which are made when they are painted first.
        const HWND icons = GetDlgItem(chooser, IDC_ICON_LIST);
        for (const WPARAM key : {VK_HOME, VK_LEFT}) SendMessageW(icons, WM_KEYDOWN, key, 0);
        Draw(chooser);
        SendMessageW(icons, WM_KEYDOWN, VK_RIGHT, 0);
        PostKeys(icons, {VK_DOWN, VK_DOWN, VK_DOWN});
        storing();
        PostMessageW(chooser, WM_COMMAND, IDOK, 0);
        SendMessageW(chooser, WM_NULL, 0, 0);
        if (IsWindow(chooser) && !Cancel(chooser)) return {};
    }
    Draw(dialog);
    return {Ok(dialog)};
}

bool Confirm(const Program& program) {
    const HWND box = Opened(program, L"Lum Diary Options");
    return box && Ok(box);
}

Outcome WalkAbout(const Program& program, const Storing& storing) {
    PostMessageW(program.Main(), WM_COMMAND, IDM_ABOUT_BOX, 0);
    if (!Confirm(program)) return {};
    PostMessageW(program.Main(), WM_COMMAND, ID_APP_ABOUT, 0);
    const HWND about = Opened(program, L"About");
    storing();
    return {about && Ok(about)};
}

// Confirms what is said, if anything is.
Outcome AwaitEnd(const Program& program) {
    SendMessageW(program.Main(), WM_NULL, 0, 0);  // Is served when all is done, or said.
    const bool said = !program.OpenSheets().empty();
    return {!said || Confirm(program), said};
}

Outcome WalkExport(const Program& program, const Storing& storing) {
    PostMessageW(program.Main(), WM_COMMAND, IDM_EXPORT, 0);
    const HWND dialog = Opened(program, L"Save As");
    storing();
    return Ok(dialog) ? AwaitEnd(program) : Outcome{};
}

Outcome WalkImport(const Program& program, const Storing& storing) {
    PostMessageW(program.Main(), WM_COMMAND, IDM_IMPORT, 0);
    if (!Ok(Opened(program, L"Open"))) return {};
    const HWND question = Opened(program, L"Lum Diary Options");
    storing();
    PostMessageW(question, WM_COMMAND, IDYES, 0);
    return Until([&] { return !IsWindow(question); }) ? AwaitEnd(program) : Outcome{};
}

// Storing it takes a second, in which the shell loads the plug-in anew.
constexpr unsigned kTabsPage = 1 << 5;

Step SheetStep(const char* name, int entry, unsigned shown = ~0u) {
    return {name, [=](const Program& program, const Storing& storing) {
                return WalkSheet(program, entry, shown, storing);
            }};
}

void StoreOtherThanDefaults() {
    CSettingsKey key = OpenProductKey();
    for (const PageRow& row : kPageRows) key.WriteDword(row.name, row.stored);
    key.WriteDword(L"ShowTabs", 0xFFFFFFFD);
    for (const auto& [name, text] : {std::pair{L"CurTaskPattern", L"xp1yz"},
                                     {L"CurAppPattern", L"n1rq"},
                                     {L"ShowTabsSequence", L"654321"},
                                     {L"EmailFilter", L"Mine"},
                                     {L"SkinName", L"NewStyle"},
                                     {L"FontName", L"DejaVu Sans"},
                                     {L"Contacts_layouts", L"Greek,Latin"}}) {
        key.WriteString(name, text);
    }
    // The tab host holds each tab as one of its own.
    for (const wchar_t* const path : {L"Lum Shell 2", L"Shared\\TabPlugins\\DiaryTasks\\Tab1"}) {
        CSettingsKey(HKEY_LOCAL_MACHINE,
                     (std::wstring(L"Software\\Lum Software House\\") + path).c_str(), true, false)
            .WriteDword(L"Place", 3);
    }
    OpenProductKey(L"IconSets").WriteString(L"1", L"\\Windows");
    OpenProductKey(L"Filters").WriteString(L"HiddenFolders", L"gone|personal");
    OpenProductKey(L"Colors").WriteDword(L"Business", 0x642068FF);
    OpenProductKey(L"MailFilters").WriteBinary(L"Mine", "M\3abc\1n\0", 8);
}

}  // namespace

void Draw(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    Paint(window, 0);
    EnumChildWindows(window, Paint, 0);
}

std::span<const Step> Steps() {
    static const Step steps[] = {
        SheetStep("general", 0, ~kTabsPage),
        SheetStep("tabs", 0, kTabsPage),
        SheetStep("calendar", 1),
        SheetStep("tasks", 2),
        SheetStep("contacts", 3),
        SheetStep("notes", 4),
        SheetStep("messages", 5),
        SheetStep("special_events", 6),
        {"categories", WalkCategories},
        {"about", WalkAbout},
        {"export", WalkExport, true},
        {"import", WalkImport, true},
    };
    return steps;
}

Holdings Prepared(const Step& step) {
    StoreOtherThanDefaults();
    DeleteFileW(kExportFile);
    CreateDirectoryW((kInstall + L"Icons").c_str(), nullptr);
    CopyFileW((kInstall + L"IconSet\\car.bmp").c_str(), (kInstall + L"Icons\\Business.bmp").c_str(),
              FALSE);
    if (std::string(step.name) == "import") {
        const Holdings settings = Holdings::Read();
        CSettingsKey key = OpenProductKey();
        for (const PageRow& row : kPageRows) key.WriteDword(row.name, row.defaultValue);
        key.WriteString(L"FontName", L"Tahoma");
        RegistryExporter().Export(kExportFile, HKEY_LOCAL_MACHINE, kProductKey);
        Holdings prepared = settings;
        prepared.files = Holdings::Read().files;
        prepared.Restore();
    }
    return Holdings::Read();
}
