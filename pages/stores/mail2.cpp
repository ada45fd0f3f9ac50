#include "pages/stores/mail2.h"

#include <algorithm>

#include "base/names.h"
#include "pages/stores/read_settings_ini.h"
#include "settings/settings_key.h"

namespace {

constexpr wchar_t kMail2Key[] = L"Software\\WebIS\\Mail2";
constexpr unsigned kMarkRead = 1;
constexpr unsigned kKeepDeleted = 2;

void EndWithBackslash(std::wstring& folder) {
    if (!folder.ends_with(L'\\')) folder += L'\\';
}

// A number of this type only; 0 otherwise.
DWORD ReadBuild() {
    const OwnedKey key = OpenKey(HKEY_CURRENT_USER, kMail2Key);
    if (!key) return 0;
    DWORD build = 0, type = REG_NONE, size = sizeof build;
    const LSTATUS status = RegQueryValueExW(key.get(), L"Build", nullptr, &type,
                                            reinterpret_cast<BYTE*>(&build), &size);
    return status == ERROR_SUCCESS && type == REG_DWORD ? build : 0;
}

bool DescribesService(const SettingsIniSection& section) {
    return IsSameName(section.name.substr(0, section.name.find(L'.')), L"SERVICE");
}

}  // namespace

Mail2::Mail2() {
    CSettingsKey key(HKEY_CURRENT_USER, kMail2Key, false, false);
    if (!key.IsOpen()) return;
    installed_ = true;
    installFolder_ = key.ReadString(L"InstallDir");
    if (!installFolder_.empty()) EndWithBackslash(installFolder_);
    dataFolder_ = key.ReadString(L"DataDir");
    EndWithBackslash(dataFolder_);
    build_ = ReadBuild();
    const SettingsIni settings = ReadSettings();
    if (const SettingsIniSection* section = settings.FindSection(L"Settings")) {
        integratesEmail_ = section->FindBoolean(L"EmailIntegration").value_or(false);
        integratesSms_ = section->FindBoolean(L"SMSIntegration").value_or(false);
    }
}

SettingsIni Mail2::ReadSettings() const { return ReadSettingsIni(dataFolder_ + L"settings.ini"); }

void Mail2::Load() {
    accounts_.clear();
    if (!installed_) return;
    const SettingsIni settings = ReadSettings();
    for (const SettingsIniSection& section : settings.sections) {
        if (DescribesService(section)) AddService(section);
    }
    const SettingsIniSection* section = settings.FindSection(L"Settings");
    if (!section) return;
    const auto markRead = section->FindBoolean(L"MarkReadOnDeletion");
    const auto permanently = section->FindBoolean(L"DeletePermanently");
    if (markRead && permanently) {
        deletionFlags_ = (*markRead ? kMarkRead : 0) | (*permanently ? 0 : kKeepDeleted);
    }
}

void Mail2::AddService(const SettingsIniSection& section) {
    const std::wstring* storage = section.Find(L"Storage");
    const std::wstring* name = section.Find(L"StorageName");
    const std::wstring* file = section.Find(L"StorageDBFileName");
    const std::wstring* service = section.Find(L"ServiceName");
    if (!storage || !name || !file || !service) return;
    const auto same = std::find_if(accounts_.begin(), accounts_.end(), [&](const auto& account) {
        return account->storage() == *storage;
    });
    if (same != accounts_.end()) {
        (*same)->AddService(*service);
        return;
    }
    auto account = Mail2Storage::Open(*storage, *name, *file);
    if (!account) return;
    account->AddService(*service);
    accounts_.push_back(std::move(account));
}

Mail2& GetMail2() {
    static Mail2 mail2;
    return mail2;
}
