#include "settings/keyboard_layouts.h"

#include "base/names.h"
#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

struct BuiltInLayout {
    const wchar_t* name;
    const char* text;  // UTF-8
};

// What the plug-in's users know, irregularities included: not every letter of a label matches.
constexpr BuiltInLayout kBuiltInLayouts[] = {
    {L"Latin",
     "labc(abcàáâãäåæçč) def(defèéêë) ghi(ghiìíîï) jkl(jkl) mno(mnoñòóôõöø) pqrs(pqrsßř) "
     "tuv(tuvùúûü) wxyz(wxyzýÿ)"},
    {L"Cyrillic",
     "lабвг(абвг) дежз(деёжз) ийкл(икл) мноп(мноп) рсту(рсту) фхцч(фхцч) шыь(шщыьъ) эюя(эюя)"},
    {L"Hebrew", "rרשת(רשת) צק(צץק) סעפ(סעפף) מנ(מםנן) יכל(יכךל) זחט(זחט) דהו(דהו) אבג(אבג)"},
    {L"Greek",
     "lαβγ(αβγά) δεζ(δεζέ) ηθι(ηθιήίϊΐ) κλμ(κλμ) νξο(νξοό) πρσς(πρσς) τυφ(τυφύϋΰ) χψω(χψωώ)"},
};

std::wstring FromUtf8(const char* text) {
    constexpr int kLength = 512;
    wchar_t converted[kLength] = {};
    if (!MultiByteToWideChar(CP_UTF8, 0, text, -1, converted, kLength)) return {};
    return converted;
}

std::unique_ptr<KeyboardLayout> Read(CSettingsKey& key, const std::wstring& name) {
    std::optional<KeyboardLayout> layout = KeyboardLayout::Parse(key.ReadString(name.c_str()));
    return layout ? std::make_unique<KeyboardLayout>(std::move(*layout)) : nullptr;
}

bool built = false;  // the process's one

}  // namespace

KeyboardLayouts::KeyboardLayouts() {
    AddStored();
    const bool allAreKnown = !hasUnread_;
    CSettingsKey key = OpenProductKey(settings::keys::KeyboardLayouts);
    for (const BuiltInLayout& builtIn : kBuiltInLayouts) {
        if (PositionOf(builtIn.name) >= 0) continue;
        const std::wstring text = FromUtf8(builtIn.text);
        if (text.empty()) continue;
        if (allAreKnown) key.WriteString(builtIn.name, text.c_str());
        entries_.push_back({builtIn.name, nullptr});
    }
}

void KeyboardLayouts::AddStored() {
    CSettingsKey key = OpenProductKey(settings::keys::KeyboardLayouts);
    const std::vector<std::wstring> names = key.ValueNames();
    hasUnread_ = key.TakeUnread();
    for (const std::wstring& name : names) {
        std::unique_ptr<KeyboardLayout> layout = Read(key, name);
        const bool isUnread = key.TakeUnread();  // and is read when it is asked for
        hasUnread_ = hasUnread_ || isUnread;
        if (!layout && !isUnread) continue;
        const int position = PositionOf(name);
        if (position < 0) {
            entries_.push_back({name, std::move(layout)});
        } else if (Entry& known = entries_[static_cast<std::size_t>(position)];
                   known.layout && layout) {
            *known.layout = std::move(*layout);
        }
    }
}

const std::wstring& KeyboardLayouts::NameAt(int position) const {
    return entries_[static_cast<std::size_t>(position)].name;
}

const KeyboardLayout* KeyboardLayouts::At(int position) {
    Entry& entry = entries_[static_cast<std::size_t>(position)];
    if (!entry.layout) {
        CSettingsKey key = OpenProductKey(settings::keys::KeyboardLayouts);
        entry.layout = Read(key, entry.name);
        hasUnread_ = hasUnread_ || key.HasUnread();
    }
    return entry.layout.get();
}

const KeyboardLayout* KeyboardLayouts::Find(const std::wstring& name) {
    const int position = PositionOf(name);
    return position < 0 ? nullptr : At(position);
}

int KeyboardLayouts::PositionOf(const std::wstring& name) const {
    for (int i = 0; i < Count(); ++i) {
        if (IsSameName(NameAt(i), name)) return i;
    }
    return -1;
}

bool KeyboardLayouts::IsBuiltIn(const std::wstring& name) {
    for (const BuiltInLayout& layout : kBuiltInLayouts) {
        if (name == layout.name) return true;
    }
    return false;
}

std::wstring KeyboardLayouts::NameOf(const KeyboardLayout* layout) const {
    for (const Entry& entry : entries_) {
        if (layout && entry.layout.get() == layout) return entry.name;
    }
    return {};
}

OfferedLayouts KeyboardLayouts::LoadOffered(const std::wstring& tab) {
    if (hasUnread_) AddStored();
    CSettingsKey key = OpenProductKey();
    const std::wstring namesOf = tab + settings::TabLayouts.name;
    const std::wstring activeOf = tab + settings::TabLayoutActive.name;
    const std::wstring names = key.ReadString(namesOf.c_str(), settings::TabLayouts.defaultText);
    const auto active = static_cast<std::int32_t>(
        key.ReadDword(activeOf.c_str(), settings::TabLayoutActive.defaultValue));
    OfferedLayouts offered = OfferedLayouts::Parse(
        names, active, [this](const std::wstring& name) { return Find(name); });
    if (hasUnread_ || key.HasUnread()) {
        partlyLoaded_.insert(tab);
    } else {
        partlyLoaded_.erase(tab);
    }
    return offered;
}

std::wstring KeyboardLayouts::NamesOf(const OfferedLayouts& offered) const {
    std::wstring names;
    for (const KeyboardLayout* const layout : offered.layouts) {
        if (!names.empty()) names += L',';
        names += NameOf(layout);
    }
    return names;
}

bool KeyboardLayouts::CanStore(const OfferedLayouts& offered) const {
    return FitsValue(NamesOf(offered));
}

bool KeyboardLayouts::SaveOffered(const std::wstring& tab, const OfferedLayouts& offered) const {
    if (!CanStore(offered) || partlyLoaded_.contains(tab)) return false;
    CSettingsKey key = OpenProductKey();
    return key.WriteString((tab + settings::TabLayouts.name).c_str(), NamesOf(offered).c_str()) &&
           key.WriteDword((tab + settings::TabLayoutActive.name).c_str(),
                          static_cast<std::uint32_t>(offered.active));
}

KeyboardLayouts& GetKeyboardLayouts() {
    static KeyboardLayouts layouts;
    built = true;
    return layouts;
}

void AddStoredKeyboardLayouts() {
    if (built) GetKeyboardLayouts().AddStored();
}
