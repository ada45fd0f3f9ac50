#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "app/sheets/page_description.h"
#include "base/dialog_template.h"

// The program's tables, as more than one of the descriptions needs them.

// Names, anchors and English texts are ASCII.
std::string Narrow(const std::wstring& text);

// All pages, in the order of the entries.
std::vector<const PageDescription*> AllPages();

// The value that a row edits; empty for none.
std::wstring ValueOf(const Row& row);
std::wstring NameOf(const CatalogueEntry& entry);

// The anchors of the pages that edit a value, in their order.
std::vector<std::wstring> EditedOn(const std::wstring& value);

std::optional<DialogTemplate> TemplateOf(HMODULE library, unsigned id);
