#include "app/language/language_template.h"

#include <cstdint>
#include <memory>
#include <span>
#include <unordered_set>
#include <utility>

#include "app/language/dialog_init.h"
#include "base/dialog_template.h"
#include "base/owned_handle.h"

namespace {

constexpr unsigned kLastDialog = 30720;
constexpr unsigned kLastMenu = 65534;
constexpr unsigned kLastString = 65534;
// Ids of the standard texts of a window framework, which no user of this program ever sees.
constexpr unsigned kFirstFrameworkString = 57344;
constexpr unsigned kLastFrameworkString = 64999;
constexpr unsigned kStringsInBlock = 16;
constexpr int kTextLength = 4000;
constexpr int kMenuItems = 256;

// A static control whose text is a picture's number.
bool IsPicture(const DialogTemplate::Control& control) {
    return control.className == L"#0082" && control.text.starts_with(L'#');
}

class TextCollector {
  public:
    explicit TextCollector(HMODULE library) : library_(library) {}

    void AddDialogs(const std::function<HWND(unsigned, HWND)>& createDialog) {
        const HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_CAPTION, 0, 0, 16, 16, nullptr,
                                            nullptr, library_, nullptr);
        for (unsigned id = 1; id <= kLastDialog; ++id) {
            if (!Exists(id, RT_DIALOG)) continue;
            if (const auto described = ParseDialogTemplate(Bytes(id, RT_DIALOG))) {
                AddDialog(*described);
            } else if (const HWND dialog = createDialog(id, parent)) {
                AddDialog(dialog);
                DestroyWindow(dialog);
            }
            AddDialogLists(id);
        }
        DestroyWindow(parent);
    }

    void AddMenus() {
        for (unsigned id = 1; id <= kLastMenu; ++id) {
            if (!Exists(id, RT_MENU)) continue;
            AddMenu(OwnedMenu(LoadMenuW(library_, MAKEINTRESOURCEW(id))).get());
        }
    }

    void AddStrings() {
        for (unsigned first = 0; first <= kLastString; first += kStringsInBlock) {
            if (!Exists(first / kStringsInBlock + 1, RT_STRING)) continue;
            for (unsigned id = first; id < first + kStringsInBlock && id <= kLastString; ++id) {
                if (id >= kFirstFrameworkString && id <= kLastFrameworkString) continue;
                const int length = LoadStringW(library_, id, buffer_, kTextLength);
                Add({buffer_, static_cast<std::size_t>(length)});
            }
        }
    }

    std::vector<std::wstring> TakeTexts() { return std::move(texts_); }

  private:
    bool Exists(unsigned id, const wchar_t* type) const {
        return FindResourceW(library_, MAKEINTRESOURCEW(id), type) != nullptr;
    }

    void Add(const std::wstring& text) {
        if (!text.empty() && known_.insert(text).second) texts_.push_back(text);
    }

    void AddWindowText(HWND window) {
        const int length = GetWindowTextW(window, buffer_, kTextLength);
        Add({buffer_, static_cast<std::size_t>(length)});
    }

    // Every text stands in the template; to make a window of each for it takes most of a first
    // start.
    void AddDialog(const DialogTemplate& dialog) {
        Add(dialog.caption);
        for (const DialogTemplate::Control& control : dialog.controls) {
            if (!IsPicture(control)) Add(control.text);
        }
    }

    // Of one in another form than the usual.
    void AddDialog(HWND dialog) {
        AddWindowText(dialog);
        for (HWND child = GetWindow(dialog, GW_CHILD); child;
             child = GetWindow(child, GW_HWNDNEXT)) {
            AddWindowText(child);
            wchar_t className[16] = {};
            GetClassNameW(child, className, 16);
            if (std::wstring(className) == L"combobox") AddComboBox(child);
        }
    }

    void AddComboBox(HWND combo) {
        // Some lists are filled only when they drop down.
        SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
        SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
        for (WPARAM item = 0;; ++item) {
            const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, item, 0);
            if (length < 0) break;
            if (length >= kTextLength) continue;
            SendMessageW(combo, CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(buffer_));
            Add(buffer_);
        }
    }

    void AddDialogLists(unsigned id) {
        constexpr unsigned kDialogInit = 240;
        for (const DialogInitRecord& record :
             ParseDialogInit(Bytes(id, MAKEINTRESOURCEW(kDialogInit)))) {
            Add(record.text);
        }
    }

    // None of a resource that is not there.
    std::span<const std::uint8_t> Bytes(unsigned id, const wchar_t* type) const {
        const HRSRC resource = FindResourceW(library_, MAKEINTRESOURCEW(id), type);
        if (!resource) return {};
        const void* const bytes = LockResource(LoadResource(library_, resource));
        return {static_cast<const std::uint8_t*>(bytes), SizeofResource(library_, resource)};
    }

    void AddMenu(HMENU menu) {
        for (int position = 0; position < kMenuItems; ++position) {
            MENUITEMINFOW item = {};
            item.cbSize = sizeof item;
            item.fMask = MIIM_TYPE;
            item.dwTypeData = buffer_;
            item.cch = kTextLength;
            buffer_[0] = L'\0';
            if (!GetMenuItemInfoW(menu, position, TRUE, &item)) break;
            Add(buffer_);
            if (const HMENU subMenu = GetSubMenu(menu, position)) AddMenu(subMenu);
        }
    }

    HMODULE library_;
    wchar_t buffer_[kTextLength] = {};
    std::vector<std::wstring> texts_;
    std::unordered_set<std::wstring> known_;
};

}  // namespace

std::vector<std::wstring> CollectTexts(HMODULE library,
                                       const std::function<HWND(unsigned, HWND)>& createDialog) {
    const auto collector = std::make_unique<TextCollector>(library);
    collector->AddDialogs(createDialog);
    collector->AddMenus();
    collector->AddStrings();
    return collector->TakeTexts();
}
