// Tells of the program's own tables what documents and tools need of them, and finds what a change
// has forgotten.
//
// usage: describe settings   docs/settings.md: every value, its default, the pages that edit it
//        describe pages      a line for each page: entry, page, how it is reached, its anchor
//        describe check      what the tables lack beside DiaryRes.Dll in the same folder
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "app/open_entry.h"
#include "base/dialog_template.h"
#include "base/owned_handle.h"
#include "settings/diary_settings.h"

namespace {

// Names and defaults are ASCII.
std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }

std::vector<const PageDescription*> AllPages() {
    std::vector<const PageDescription*> pages;
    for (const MainEntry& entry : MainEntries()) {
        pages.insert(pages.end(), entry.pages.begin(), entry.pages.end());
    }
    return pages;
}

// The value that a row edits; empty for none.
std::wstring ValueOf(const Row& row) {
    if (row.shared) return NameOf(row.shared);
    if (row.pattern) return NameOf(row.pattern);
    if (row.text.key) return std::wstring(row.text.key) + L'\\' + row.text.name;
    if (row.text.name) return row.text.name;
    return row.setting.name ? row.setting.name : L"";
}

std::wstring NameOf(const CatalogueEntry& entry) {
    return entry.key ? std::wstring(entry.key) + L'\\' + entry.name : entry.name;
}

// The anchors of the pages that edit a value, in their order.
std::vector<std::wstring> EditedOn(const std::wstring& value) {
    std::vector<std::wstring> anchors;
    for (const PageDescription* page : AllPages()) {
        const bool edits = std::any_of(page->rows.begin(), page->rows.end(),
                                       [&](const Row& row) { return ValueOf(row) == value; });
        if (edits) anchors.push_back(page->anchor);
    }
    return anchors;
}

std::string DefaultOf(const CatalogueEntry& entry) {
    switch (entry.rule) {
        case CatalogueEntry::Default::kOfDevice: return "depends on the device";
        case CatalogueEntry::Default::kNone: return "";
        case CatalogueEntry::Default::kFixed: break;
    }
    if (entry.isText) return Narrow(entry.text);
    constexpr std::uint32_t kFirstInHex = 0x10000;
    char text[16];
    std::snprintf(text, sizeof text, entry.number < kFirstInHex ? "%lu" : "0x%08lX",
                  static_cast<unsigned long>(entry.number));
    return text;
}

void PrintSettings() {
    struct Line {
        std::string kind;
        std::string defaults;
        std::string pages;
    };
    const auto before = [](const std::wstring& a, const std::wstring& b) {
        return _wcsicmp(a.c_str(), b.c_str()) < 0;
    };
    std::map<std::wstring, Line, decltype(before)> lines(before);
    for (const CatalogueEntry& entry : Catalogue()) {
        const std::wstring name = NameOf(entry);
        Line& line = lines[(entry.ofEachTab ? L"(tab)" : L"") + name];
        line.kind = entry.isText ? "text" : "number";
        // A value with two defaults is one value.
        line.defaults += (line.defaults.empty() ? "" : " or ") + DefaultOf(entry);
        line.pages.clear();
        for (const std::wstring& anchor : EditedOn(name)) {
            line.pages += (line.pages.empty() ? "" : ", ") + Narrow(anchor);
        }
        if (line.pages.empty()) line.pages = "no page";
    }
    std::printf(
        "# Settings\n\n"
        "Every value of the key `HKEY_LOCAL_MACHINE\\Software\\Lum Software House\\Lum Diary`, as "
        "the\n"
        "program's tables have it. Numbers are `REG_DWORD`, texts `REG_SZ`. A value that is "
        "missing is\n"
        "written with its default when it is first read. This page is written by\n"
        "`tools/describe_program.sh settings`.\n\n"
        "| Value | Type | Default | Edited on |\n|---|---|---|---|\n");
    for (const auto& [name, line] : lines) {
        std::printf("| %s | %s | %s | %s |\n", Narrow(name).c_str(), line.kind.c_str(),
                    line.defaults.c_str(), line.pages.c_str());
    }
    std::printf("\nKeys below it hold records of the owner's own:\n\n| Key | Holds |\n|---|---|\n");
    for (const CatalogueKey& key : CatalogueKeys()) {
        std::printf("| %s | %s |\n", Narrow(key.name).c_str(), key.contents);
    }
}

void PrintPages() {
    int number = 0;
    for (const MainEntry& entry : MainEntries()) {
        int place = 0;
        for (const PageDescription* page : entry.pages) {
            std::printf("%d %d %s %s\n", number, place++,
                        entry.startPageCanBeChosen ? "open" : "turn", Narrow(page->anchor).c_str());
        }
        ++number;
    }
}

std::optional<DialogTemplate> TemplateOf(HMODULE library, unsigned id) {
    const HRSRC resource = FindResourceW(library, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!resource) return {};
    const auto* const bytes =
        static_cast<const std::uint8_t*>(LockResource(LoadResource(library, resource)));
    return ParseDialogTemplate({bytes, SizeofResource(library, resource)});
}

// Each row needs its control, or it would store 0; each control that the keys reach needs its row,
// or it would store nothing.
int CheckControls(HMODULE library, const PageDescription& page) {
    const auto dialog = TemplateOf(library, page.dialog);
    if (!dialog) {
        std::printf("%s: no template\n", Narrow(page.anchor).c_str());
        return 1;
    }
    int faults = 0;
    const auto hasRow = [&page](int id) {
        return std::any_of(page.rows.begin(), page.rows.end(),
                           [id](const Row& row) { return row.control == id; });
    };
    const auto isThere = [&dialog](int id) {
        return std::any_of(
            dialog->controls.begin(), dialog->controls.end(),
            [id](const auto& control) { return static_cast<int>(control.id) == id; });
    };
    for (const Row& row : page.rows) {
        for (const int id : {row.control, row.enabledBy}) {
            if (id == 0 || isThere(id)) continue;
            std::printf("%s: no control %d\n", Narrow(page.anchor).c_str(), id);
            ++faults;
        }
    }
    for (const DialogTemplate::Control& control : dialog->controls) {
        if (!(control.style & WS_TABSTOP) || hasRow(static_cast<int>(control.id))) continue;
        std::printf("%s: no row for control %lu\n", Narrow(page.anchor).c_str(),
                    static_cast<unsigned long>(control.id));
        ++faults;
    }
    return faults;
}

// A template for wide screens may differ from the usual one in places and sizes alone.
int CheckWide(HMODULE library, unsigned id) {
    const auto wide = TemplateOf(library, id), usual = TemplateOf(library, id - IDD_WIDE);
    const auto fault = [id](std::size_t control, const char* what) {
        std::printf("template %u, control %d of the order: %s\n", id, static_cast<int>(control),
                    what);
        return 1;
    };
    if (!wide || !usual) return fault(0, "cannot be read, or has no usual template");
    if (wide->style != usual->style || wide->caption != usual->caption) {
        return fault(0, "the dialog's style or caption differs");
    }
    if (wide->controls.size() != usual->controls.size()) return fault(0, "not as many controls");
    int faults = 0;
    for (std::size_t i = 0; i < wide->controls.size(); ++i) {
        const DialogTemplate::Control &a = wide->controls[i], &b = usual->controls[i];
        if (a.id != b.id) faults += fault(i, "another id");
        if (a.style != b.style || a.extendedStyle != b.extendedStyle) {
            faults += fault(i, "another style");
        }
        if (a.className != b.className) faults += fault(i, "another class");
        if (a.text != b.text) faults += fault(i, "another text");
    }
    return faults;
}

BOOL CALLBACK AddWide(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR ids) {
    if (IS_INTRESOURCE(name) && LOWORD(name) > IDD_WIDE) {
        reinterpret_cast<std::vector<unsigned>*>(ids)->push_back(LOWORD(name));
    }
    return TRUE;
}

int CheckWideTemplates(HMODULE library, int& looked) {
    std::vector<unsigned> ids;
    EnumResourceNamesW(library, RT_DIALOG, AddWide, reinterpret_cast<LONG_PTR>(&ids));
    int faults = 0;
    for (const unsigned id : ids) faults += CheckWide(library, id);
    looked = static_cast<int>(ids.size());
    return faults;
}

int Check() {
    const OwnedLibrary library(LoadLibraryExW(L"DiaryRes.Dll", nullptr, LOAD_LIBRARY_AS_DATAFILE));
    if (!library) {
        std::printf("DiaryRes.Dll cannot be loaded\n");
        return 1;
    }
    int faults = 0, controls = 0;
    for (const PageDescription* page : AllPages()) {
        faults += CheckControls(library.get(), *page);
        controls += static_cast<int>(page->rows.size());
    }
    for (const CatalogueEntry& entry : Catalogue()) {
        const std::wstring name = NameOf(entry);
        if (EditedOn(name).empty() == !entry.edited) continue;
        std::printf("%s is edited on %s\n", Narrow(name).c_str(),
                    entry.edited ? "no page" : "a page, but marked as kept");
        ++faults;
    }
    int wide = 0;
    faults += CheckWideTemplates(library.get(), wide);
    std::printf("%d rows of %d pages, %d values and %d wide templates looked at\n", controls,
                static_cast<int>(AllPages().size()), static_cast<int>(Catalogue().size()), wide);
    return faults || !controls || !wide ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
    const std::string what = count == 2 ? arguments[1] : "";
    if (what == "settings") {
        PrintSettings();
    } else if (what == "pages") {
        PrintPages();
    } else if (what == "check") {
        return Check();
    } else {
        std::fprintf(stderr, "usage: describe settings | pages | check\n");
        return 2;
    }
    return 0;
}
