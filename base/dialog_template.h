#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// A dialog as its template describes it.
struct DialogTemplate {
    struct Control {
        std::uint32_t id = 0;
        std::uint32_t style = 0, extendedStyle = 0;
        int x = 0, y = 0, width = 0, height = 0;  // dialog units
        std::wstring className;  // a number such as "#0080" for those of the system
        std::wstring text;       // likewise for a resource
    };
    std::uint32_t style = 0;
    int width = 0, height = 0;  // dialog units
    std::wstring caption;
    std::vector<Control> controls;  // in the tab order
};

// Reads a template of the extended form (DLGTEMPLATEEX); none for any other and for one that is
// cut off.
std::optional<DialogTemplate> ParseDialogTemplate(std::span<const std::uint8_t> bytes);
