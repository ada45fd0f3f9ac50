#include "tools/describe/page_tables.h"

#include <algorithm>

#include "app/open_entry.h"

std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }

std::vector<const PageDescription*> AllPages() {
    std::vector<const PageDescription*> pages;
    for (const MainEntry& entry : MainEntries()) {
        pages.insert(pages.end(), entry.pages.begin(), entry.pages.end());
    }
    return pages;
}

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

std::vector<std::wstring> EditedOn(const std::wstring& value) {
    std::vector<std::wstring> anchors;
    for (const PageDescription* page : AllPages()) {
        const bool edits = std::any_of(page->rows.begin(), page->rows.end(),
                                       [&](const Row& row) { return ValueOf(row) == value; });
        if (edits) anchors.push_back(page->anchor);
    }
    return anchors;
}

std::optional<DialogTemplate> TemplateOf(HMODULE library, unsigned id) {
    const HRSRC resource = FindResourceW(library, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!resource) return {};
    const auto* const bytes =
        static_cast<const std::uint8_t*>(LockResource(LoadResource(library, resource)));
    return ParseDialogTemplate({bytes, SizeofResource(library, resource)});
}
