#include "app/language/language_table.h"

#include <aygshell.h>
#include <commctrl.h>

#include <optional>
#include <unordered_set>
#include <vector>

#include "app/language/language_template.h"
#include "app/language/module.h"
#include "base/owned_handle.h"
#include "base/put_in_place.h"
#include "base/read_file.h"

namespace {

constexpr int kStringLength = 1024;
constexpr int kWindowTextLength = 4096;
constexpr int kButtonTextLength = 256;
constexpr int kClassNameLength = 64;

void TranslateComboBox(HWND combo, const LanguageIndex& index) {
    const LRESULT selection = SendMessageW(combo, CB_GETCURSEL, 0, 0);
    bool selectionMoved = false;
    std::wstring text;
    for (WPARAM item = 0;; ++item) {
        const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, item, 0);
        if (length < 0) break;
        text.resize(length + 1);
        SendMessageW(combo, CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(text.data()));
        text.resize(length);
        const std::wstring* translation = index.Find(text);
        if (!translation) continue;
        // An item cannot be renamed; what belongs to it moves to the one that takes its place.
        const LRESULT data = SendMessageW(combo, CB_GETITEMDATA, item, 0);
        SendMessageW(combo, CB_DELETESTRING, item, 0);
        SendMessageW(combo, CB_INSERTSTRING, item, reinterpret_cast<LPARAM>(translation->c_str()));
        SendMessageW(combo, CB_SETITEMDATA, item, data);
        selectionMoved = true;
    }
    if (selectionMoved && selection >= 0) SendMessageW(combo, CB_SETCURSEL, selection, 0);
}

void TranslateText(HWND window, const LanguageIndex& index) {
    std::vector<wchar_t> text(kWindowTextLength);
    const int length = GetWindowTextW(window, text.data(), kWindowTextLength);
    const std::wstring* translation = index.Find({text.data(), static_cast<std::size_t>(length)});
    if (translation) SetWindowTextW(window, translation->c_str());
}

// `done` holds the menus already seen, as a run-time menu can be its own sub-menu.
void TranslateMenuOnce(HMENU menu, const LanguageIndex& index, std::unordered_set<HMENU>& done) {
    if (!done.insert(menu).second) return;
    std::vector<wchar_t> text(kWindowTextLength);
    for (UINT position = 0;; ++position) {
        MENUITEMINFOW item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_TYPE;
        item.dwTypeData = text.data();
        item.cch = kWindowTextLength;
        text[0] = L'\0';  // Separators and pictures leave it so.
        if (!GetMenuItemInfoW(menu, position, TRUE, &item)) break;
        if (const std::wstring* translation = index.Find(text.data())) {
            std::wstring changed = *translation;
            item.dwTypeData = changed.data();
            SetMenuItemInfoW(menu, position, TRUE, &item);
        }
        if (const HMENU subMenu = GetSubMenu(menu, static_cast<int>(position))) {
            TranslateMenuOnce(subMenu, index, done);
        }
    }
}

// Of a dialog that is made for its texts alone.
INT_PTR CALLBACK IgnoreMessage(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

// Not only unreadable for now: a user's translation is not to be written over.
bool IsMissing(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
           GetLastError() == ERROR_FILE_NOT_FOUND;
}

}  // namespace

bool LanguageTable::Load(const std::wstring& path) {
    std::optional<std::vector<std::uint8_t>> bytes = ReadWholeFile(path);
    if (!bytes && IsMissing(path) && WriteTemplate(path)) bytes = ReadWholeFile(path);
    if (!bytes) return false;
    index_ = LanguageIndex(ParseLanguageFile(*bytes));
    return true;
}

std::wstring LanguageTable::LoadString(unsigned id) const {
    const std::wstring text = LoadSource(id);
    const std::wstring* translation = index_.Find(text);
    return translation ? translation->substr(0, kStringLength - 1) : text;
}

std::wstring LanguageTable::LoadSource(unsigned id) {
    wchar_t text[kStringLength] = {};
    const int length = ::LoadString(ResourceLibrary(), id, text, kStringLength);
    return {text, static_cast<std::size_t>(length)};
}

std::wstring LanguageTable::Translate(const std::wstring& text) const {
    const std::wstring* translation = index_.Find(text);
    return translation ? *translation : text;
}

void LanguageTable::TranslateWindow(HWND window) const {
    TranslateText(window, index_);
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        TranslateText(child, index_);
        wchar_t className[kClassNameLength] = {};
        GetClassNameW(child, className, kClassNameLength);
        if (_wcsicmp(className, L"combobox") == 0) TranslateComboBox(child, index_);
    }
}

void LanguageTable::TranslateMenuBar(HWND window) const {
    const HWND bar = SHFindMenuBar(window);
    if (!bar) return;
    for (int i = static_cast<int>(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0)) - 1; i >= 0; --i) {
        TBBUTTON button = {};
        if (!SendMessageW(bar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button))) continue;
        wchar_t text[kButtonTextLength] = {};
        TBBUTTONINFOW info = {};
        info.cbSize = sizeof info;
        info.dwMask = TBIF_TEXT | TBIF_LPARAM;
        info.pszText = text;
        info.cchText = kButtonTextLength;
        const auto infoAddress = reinterpret_cast<LPARAM>(&info);
        if (SendMessageW(bar, TB_GETBUTTONINFOW, button.idCommand, infoAddress) < 0) continue;
        const auto menu = reinterpret_cast<HMENU>(info.lParam);
        if (const std::wstring* translation = index_.Find(text)) {
            std::wstring changed = translation->substr(0, kButtonTextLength - 1);
            info.dwMask = TBIF_TEXT;
            info.pszText = changed.data();
            SendMessageW(bar, TB_SETBUTTONINFOW, button.idCommand, infoAddress);
        }
        if (menu) TranslateMenu(menu);
    }
}

void LanguageTable::TranslateMenu(HMENU menu) const {
    std::unordered_set<HMENU> done;
    TranslateMenuOnce(menu, index_, done);
}

HWND LanguageTable::createDialog(HMODULE library, unsigned id, HWND parent) const {
    return CreateDialogParamW(library, MAKEINTRESOURCEW(id), parent, IgnoreMessage, 0);
}

bool LanguageTable::WriteTemplate(const std::wstring& path) const {
    const HMODULE library = ResourceLibrary() ? ResourceLibrary() : ModuleInstance();
    const std::wstring fresh = FreshName(path);
    bool done = false;
    {
        const OwnedFile file(CreateFileW(fresh.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file) return false;
        const std::vector<std::wstring> texts =
            CollectTexts(library, [this, library](unsigned id, HWND parent) {
                return createDialog(library, id, parent);
            });
        const std::wstring content = L"\xFEFF" + LanguageTemplateText(texts);
        const auto size = static_cast<DWORD>(content.size() * sizeof(wchar_t));
        DWORD written = 0;
        done = WriteFile(file.get(), content.data(), size, &written, nullptr) && written == size;
    }
    if (done) return PutInPlace(path);
    DeleteFileW(fresh.c_str());
    return false;
}

LanguageTable& GetLanguageTable() {
    static LanguageTable table;
    return table;
}
