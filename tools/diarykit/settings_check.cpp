#include "tools/diarykit/settings_check.h"

#include <algorithm>

#include "pages/stores/mail_filter.h"
#include "settings/keyboard_layout.h"
#include "settings/settings_file_facts.h"
#include "tools/diarykit/known_values.h"
#include "tools/diarykit/text.h"

namespace {

class Checker {
  public:
    Checker(const std::string& file, const StoredSettings& settings)
        : file_(file), settings_(settings) {}

    std::vector<Finding> Run() {
        if (!settings_.whole) findings_.push_back(NotWhole(file_));
        for (const StoredKey& key : settings_.keys) CheckKey(key);
        return std::move(findings_);
    }

  private:
    void Add(std::string text) { findings_.push_back({file_, 0, std::move(text)}); }

    void CheckKey(const StoredKey& key) {
        const auto below = PathInProductKey(settings_, key);
        const std::string full = ToUtf8(FullPath(settings_, key));
        if (!below) {
            const bool leadsThere =
                PlaceOfKey(settings_.root, settings_.path + L'\\' + key.path) == KeyPlace::kAbove;
            if (!leadsThere || !key.values.empty()) {
                Add("writes outside the diary's own key: " + full + " with " +
                    std::to_string(key.values.size()) + " values");
            }
            return;
        }
        const CatalogueKey* const records = FindKnownKey(*below);
        if (!records && !HoldsKnownValues(*below)) {
            Add("the program has no key " + Quoted(*below));
            return;
        }
        for (const StoredValue& value : key.values) {
            name_ = below->empty() ? Plain(value.name) : Plain(*below + L'\\' + value.name);
            if (records) {
                CheckRecord(*records, value);
            } else {
                CheckValue(FindKnownValue(*below, value.name), value);
            }
        }
    }

    void CheckValue(const KnownValue& known, const StoredValue& value) {
        if (!known.entry) return Add("the program has no value " + name_);
        if (!HasType(value, known.entry->isText ? SettingsType::kText : SettingsType::kNumber)) {
            return;
        }
        for (const ShownValue* shown : known.shown) {
            if (const std::string odd = Odd(*shown, value); !odd.empty()) {
                Add(name_ + " is " + Describe(value) + ", " + odd + " (page " + shown->page + ")");
            }
        }
    }

    static std::string Odd(const ShownValue& shown, const StoredValue& value) {
        const auto isShown = [&value](const ShownValue::Entry& entry) {
            return static_cast<std::uint32_t>(entry.number) == value.number;
        };
        switch (shown.how) {
            case ShownValue::How::kCheck:
                return value.number > 1 ? "but stands for a check box, which stores 0 or 1" : "";
            case ShownValue::How::kList:
                return std::none_of(shown.entries.begin(), shown.entries.end(), isShown)
                           ? "which the list on its page does not have"
                           : "";
            case ShownValue::How::kOwn: break;
        }
        return "";
    }

    // Records of the owner's own, whose names may be any.
    void CheckRecord(const CatalogueKey& key, const StoredValue& value) {
        namespace keys = settings::keys;
        const std::wstring_view name = key.name;
        if (name == keys::CategoryColors) {
            HasType(value, SettingsType::kNumber);
        } else if (name == keys::IconFolders) {
            const bool isPlace =
                value.name.size() == 1 && value.name[0] >= L'1' && value.name[0] <= L'5';
            if (!isPlace) Add("the program has no value " + name_);
            HasType(value, SettingsType::kText);
        } else if (name == keys::KeyboardLayouts) {
            if (HasType(value, SettingsType::kText) && !KeyboardLayout::Parse(value.text)) {
                Add(name_ + " is no keyboard layout: " + Quoted(value.text));
            }
        } else if (name == keys::MailFilters) {
            if (HasType(value, SettingsType::kBinary) && !ParseMailFilter(value.bytes)) {
                Add(name_ + " is no filter of mail folders");
            }
        }
    }

    bool HasType(const StoredValue& value, SettingsType expected) {
        if (value.type == expected) return true;
        Add(name_ + " is of the type " + TypeName(value.type) + ", not " + TypeName(expected));
        return false;
    }

    const std::string& file_;
    const StoredSettings& settings_;
    std::string name_;  // of the value that is looked at
    std::vector<Finding> findings_;
};

}  // namespace

Finding NotWhole(const std::string& file) { return {file, 0, "cannot be read to its end"}; }

std::optional<std::wstring> PathInProductKey(const StoredSettings& settings, const StoredKey& key) {
    const std::wstring path = settings.path + L'\\' + key.path;
    if (PlaceOfKey(settings.root, path) != KeyPlace::kInside) return {};
    std::wstring_view rest = path, product = kProductKey;
    while (!TakeKeyName(product).empty()) TakeKeyName(rest);
    return TidyPath(rest);
}

std::vector<Finding> CheckSettings(const std::string& file, std::span<const std::uint8_t> bytes) {
    return Checker(file, ReadSettings(bytes)).Run();
}
