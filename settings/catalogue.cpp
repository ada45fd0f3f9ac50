#include "settings/catalogue.h"

namespace {

constexpr CatalogueEntry Number(const wchar_t* name, std::uint32_t number,
                                CatalogueEntry::Default rule = CatalogueEntry::Default::kFixed) {
    return {nullptr, name, false, rule, number, nullptr, false, true};
}

constexpr CatalogueEntry Text(const wchar_t* key, const wchar_t* name, const wchar_t* text) {
    const auto rule = text ? CatalogueEntry::Default::kFixed : CatalogueEntry::Default::kNone;
    return {key, name, true, rule, 0, text, false, true};
}

constexpr CatalogueEntry OfEachTab(CatalogueEntry entry) {
    entry.ofEachTab = true;
    return entry;
}

constexpr CatalogueEntry Kept(CatalogueEntry entry) {
    entry.edited = false;
    return entry;
}

constexpr CatalogueEntry kEntries[] = {
#define NUMBER(setting, name, number) Number(name, number),
#define DEVICE_NUMBER(setting, name, number) \
    Number(name, number, CatalogueEntry::Default::kOfDevice),
#define TAB_NUMBER(setting, name, number) OfEachTab(Number(name, number)),
#define KEPT_NUMBER(setting, name, number) Kept(Number(name, number)),
#define STRING(setting, name, text) Text(nullptr, name, text),
#define TAB_STRING(setting, name, text) OfEachTab(Text(nullptr, name, text)),
#define BELOW_STRING(setting, key, name, text) Text(key, name, text),
#include "settings/catalogue.inc"
#define PATTERN(member, name, text) Text(nullptr, name, text),
#define SHARED(member, name, number) Number(name, number),
#define SHARED_PHONE(member, name) Number(name, 0, CatalogueEntry::Default::kOfDevice),
#define SHARED_READ_ONLY(member, name, number) Kept(Number(name, number)),
#include "settings/shared_settings.inc"
};

constexpr CatalogueKey kKeys[] = {
#define KEY(setting, name, contents) {name, contents},
#include "settings/catalogue.inc"
};

}  // namespace

std::span<const CatalogueEntry> Catalogue() { return kEntries; }

std::span<const CatalogueKey> CatalogueKeys() { return kKeys; }
