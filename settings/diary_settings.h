#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "settings/display_pattern.h"

// The list settings that several pages share. A page calls Load before it shows some of them, and
// after changing its own calls Save, which writes them all.
class CDiarySettings {
  public:
    virtual ~CDiarySettings() = default;

    void Load();
    void Save() const;
    // Whether a number could not be read when it was loaded last, and has its default instead.
    bool IsUnread(std::int32_t CDiarySettings::*member) const {
        return std::ranges::find(unread_, member) != unread_.end();
    }

#define PATTERN(member, name, text) DisplayPattern member;
#define SHARED(member, name, number) std::int32_t member = 0;
#define SHARED_PHONE(member, name) std::int32_t member = 0;
#define SHARED_READ_ONLY(member, name, number) std::int32_t member = 0;
#include "settings/shared_settings.inc"

    bool HasUnreadPatterns() const { return hasUnreadPatterns_; }

  private:
    bool hasUnreadPatterns_ = false;
    std::vector<std::int32_t CDiarySettings::*> unread_;
};

// The one object of the process, loaded by the first call.
CDiarySettings& GetDiarySettings();
// Loads it anew if it was loaded.
void ReloadDiarySettings();

// The value behind a member that rows name.
const wchar_t* NameOf(std::int32_t CDiarySettings::*member);
const wchar_t* NameOf(DisplayPattern CDiarySettings::*member);
