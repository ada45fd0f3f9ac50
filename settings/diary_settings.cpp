#include "settings/diary_settings.h"

#include "settings/device.h"
#include "settings/settings_key.h"

namespace {

struct SharedPattern {
    DisplayPattern CDiarySettings::*member;
    const wchar_t* name;
    const wchar_t* defaultPattern;
};

constexpr SharedPattern kPatterns[] = {
#define PATTERN(member, name, text) {&CDiarySettings::member, name, text},
#include "settings/shared_settings.inc"
};

struct SharedNumber {
    enum class Kind { kUsual, kOnPhone, kReadOnly };

    std::int32_t CDiarySettings::*member;
    const wchar_t* name;
    std::int32_t defaultValue;
    Kind kind;
};

// In the order of loading, since a first read creates the value.
constexpr SharedNumber kNumbers[] = {
#define SHARED(member, name, number) \
    {&CDiarySettings::member, name, number, SharedNumber::Kind::kUsual},
#define SHARED_PHONE(member, name) {&CDiarySettings::member, name, 0, SharedNumber::Kind::kOnPhone},
#define SHARED_READ_ONLY(member, name, number) \
    {&CDiarySettings::member, name, number, SharedNumber::Kind::kReadOnly},
#include "settings/shared_settings.inc"
};

std::int32_t DefaultOf(const SharedNumber& number) {
    if (number.kind == SharedNumber::Kind::kOnPhone) return IsPhoneDevice() ? 1 : 0;
    return number.defaultValue;
}

bool loaded = false;  // the process's one

}  // namespace

void CDiarySettings::Load() {
    CSettingsKey key = OpenProductKey();
    for (const SharedPattern& pattern : kPatterns) {
        (this->*pattern.member).Parse(key.ReadString(pattern.name, pattern.defaultPattern));
    }
    hasUnreadPatterns_ = key.TakeUnread();
    unread_.clear();
    for (const SharedNumber& number : kNumbers) {
        const auto defaultValue = static_cast<std::uint32_t>(DefaultOf(number));
        this->*number.member = static_cast<std::int32_t>(key.ReadDword(number.name, defaultValue));
        if (key.TakeUnread()) unread_.push_back(number.member);
    }
}

void CDiarySettings::Save() const {
    CSettingsKey key = OpenProductKey();
    for (const SharedPattern& pattern : kPatterns) {
        key.WriteString(pattern.name, (this->*pattern.member).Format().c_str());
    }
    for (const SharedNumber& number : kNumbers) {
        if (number.kind == SharedNumber::Kind::kReadOnly) continue;
        key.WriteDword(number.name, static_cast<std::uint32_t>(this->*number.member));
    }
}

CDiarySettings& GetDiarySettings() {
    static CDiarySettings settings;
    if (!loaded) {
        loaded = true;
        settings.Load();
    }
    return settings;
}

void ReloadDiarySettings() {
    if (loaded) GetDiarySettings().Load();
}

const wchar_t* NameOf(std::int32_t CDiarySettings::*member) {
    for (const SharedNumber& number : kNumbers) {
        if (number.member == member) return number.name;
    }
    return nullptr;
}

const wchar_t* NameOf(DisplayPattern CDiarySettings::*member) {
    for (const SharedPattern& pattern : kPatterns) {
        if (pattern.member == member) return pattern.name;
    }
    return nullptr;
}
