#pragma once

#include <memory>
#include <span>

#include "app/sheets/page_rows.h"
#include "controls/dialog_layout.h"

class OptionsPage;

// What a page is: a template, a section of the help, and a row for each control that the user can
// reach. Most pages are no more than that.
struct PageDescription {
    unsigned dialog;        // id of the template
    const wchar_t* anchor;  // without the "options_" that all pages' anchors begin with
    std::span<const Row> rows;
    // Makes a page with code of its own; null where the rows are all there is to it.
    std::unique_ptr<OptionsPage> (*make)(const PageDescription&) = nullptr;
    // The lists and previews that take what the page leaves of the screen.
    std::span<const Fill> fills = {};
};
