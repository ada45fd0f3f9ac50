#pragma once

#include <cstdint>
#include <span>

// The key, under HKEY_LOCAL_MACHINE, that this program and the plug-in share.
inline constexpr const wchar_t kProductKey[] = L"\\Software\\Lum Software House\\Lum Diary";

// A number of the product key: its name and the default that the first read creates.
struct NumberSetting {
    const wchar_t* name = nullptr;
    std::uint32_t defaultValue = 0;

    constexpr NumberSetting WithDefault(std::uint32_t value) const { return {name, value}; }
};

// A text, likewise; without a default a missing one is empty and is not created.
struct TextSetting {
    const wchar_t* name = nullptr;
    const wchar_t* defaultText = nullptr;
    const wchar_t* key = nullptr;  // below the product key; null: in that itself
};

// What catalogue.inc lists.
namespace settings {

#define NUMBER(setting, name, number) inline constexpr NumberSetting setting{name, number};
#define STRING(setting, name, text) inline constexpr TextSetting setting{name, text};
#define BELOW_STRING(setting, key, name, text) \
    inline constexpr TextSetting setting{name, text, key};
#include "settings/catalogue.inc"

namespace keys {

#define KEY(setting, name, contents) inline constexpr const wchar_t* setting = name;
#include "settings/catalogue.inc"

}  // namespace keys

// The height for a screen's form; the default is in pixels.
constexpr NumberSetting HeightFor(bool landscape, int defaultHeight) {
    const NumberSetting& setting = landscape ? TotalHeightLandscape : TotalHeight;
    return setting.WithDefault(static_cast<std::uint32_t>(defaultHeight));
}

}  // namespace settings

// A value as the catalogue and the shared settings list it, for whoever wants to know of all.
struct CatalogueEntry {
    enum class Default { kFixed, kOfDevice, kNone };

    const wchar_t* key;   // below the product key; null: in that itself
    const wchar_t* name;  // of a value that each tab has: what follows the tab's name
    bool isText;
    Default rule;
    std::uint32_t number;  // the default
    const wchar_t* text;   // the default; null for numbers
    bool ofEachTab;
    bool edited;  // on some page
};
std::span<const CatalogueEntry> Catalogue();

// A key below the product key with records of the owner's own.
struct CatalogueKey {
    const wchar_t* name;
    const char* contents;
};
std::span<const CatalogueKey> CatalogueKeys();
