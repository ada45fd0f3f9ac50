#include "tools/describe/describe_values.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "app/language/dialog_init.h"
#include "tools/describe/page_tables.h"

namespace {

constexpr unsigned kDialogInit = 240;

struct Shown {
    const char* kind;
    std::vector<std::pair<long, std::wstring>> entries;
};

std::vector<std::wstring> FixedList(HMODULE library, unsigned dialog, int control) {
    std::vector<std::wstring> texts;
    const HRSRC resource =
        FindResourceW(library, MAKEINTRESOURCEW(dialog), MAKEINTRESOURCEW(kDialogInit));
    if (!resource) return texts;
    const auto* const bytes =
        static_cast<const std::uint8_t*>(LockResource(LoadResource(library, resource)));
    for (const auto& record : ParseDialogInit({bytes, SizeofResource(library, resource)})) {
        if (record.controlId == control) texts.push_back(record.text);
    }
    return texts;
}

std::wstring StringOf(HMODULE library, unsigned id) {
    wchar_t text[256] = {};
    LoadStringW(library, id, text, 256);
    return text;
}

Shown ShownOf(HMODULE library, const PageDescription& page, const Row& row) {
    Shown shown{"kList", {}};
    switch (row.kind) {
        case Row::Kind::kCheck:
        case Row::Kind::kInvertedCheck: return {"kCheck", {}};
        case Row::Kind::kIndex:
            for (const std::wstring& text : FixedList(library, page.dialog, row.control)) {
                shown.entries.emplace_back(static_cast<long>(shown.entries.size()), text);
            }
            break;
        case Row::Kind::kNumberText:
            for (const std::wstring& text : FixedList(library, page.dialog, row.control)) {
                shown.entries.emplace_back(std::wcstol(text.c_str(), nullptr, 10), text);
            }
            break;
        case Row::Kind::kChoice:
            for (const ValueLabel* choice = row.choices; choice->label; ++choice) {
                shown.entries.emplace_back(choice->value, StringOf(library, choice->label));
            }
            break;
        case Row::Kind::kNoValue:
        case Row::Kind::kOwn: break;
    }
    // What the page fills by itself holds what the table does not know.
    if (shown.entries.empty()) shown.kind = "kOwn";
    return shown;
}

// What a control is called on its page: its own text or that of the label before it.
std::wstring LabelOf(const DialogTemplate& dialog, int id) {
    constexpr wchar_t kButton[] = L"button", kStatic[] = L"#0082";
    const auto control = std::find_if(dialog.controls.begin(), dialog.controls.end(),
                                      [id](const auto& c) { return static_cast<int>(c.id) == id; });
    if (control == dialog.controls.end()) return {};
    if (!_wcsicmp(control->className.c_str(), kButton)) return control->text;
    if (control == dialog.controls.begin() || (control - 1)->className != kStatic) return {};
    std::wstring label = (control - 1)->text;
    while (label.ends_with(L':')) label.pop_back();
    return label;
}

}  // namespace

void PrintValues(HMODULE library) {
    std::printf(
        "// What pages show of each value: the value, the page's anchor, how, under which label, "
        "and\n"
        "// the ids of template and control; behind it the entries of a list, each with its "
        "number.\n"
        "// Written by tools/describe_program.sh values.\n\n");
    for (const PageDescription* page : AllPages()) {
        const auto dialog = TemplateOf(library, page->dialog);
        std::wstring previous;
        for (const Row& row : page->rows) {
            const std::wstring value = ValueOf(row);
            // A value of several controls has no label of its own.
            if (value.empty() || value == previous) continue;
            previous = value;
            const auto sharing = std::count_if(page->rows.begin(), page->rows.end(),
                                               [&](auto& r) { return ValueOf(r) == value; });
            const Shown shown = ShownOf(library, *page, row);
            const std::wstring label =
                dialog && sharing == 1 ? LabelOf(*dialog, row.control) : std::wstring();
            std::wstring escaped;
            for (const wchar_t c : value) escaped += c == L'\\' ? L"\\\\" : std::wstring(1, c);
            std::printf("ROW(L\"%s\", \"%s\", %s, \"%s\", %u, %d)\n", Narrow(escaped).c_str(),
                        Narrow(page->anchor).c_str(), shown.kind, Narrow(label).c_str(),
                        page->dialog, row.control);
            for (const auto& [number, text] : shown.entries) {
                std::printf("ENTRY(%ld, \"%s\")\n", number, Narrow(text).c_str());
            }
        }
    }
}
