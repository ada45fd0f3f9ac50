#pragma once

#include <memory>
#include <string>
#include <vector>

#include "pages/stores/mail2_storage.h"
#include "pages/stores/settings_ini.h"

// The second mail program: whether it is installed, and its mail storages.
class Mail2 {
  public:
    Mail2();

    bool IsInstalled() const { return installed_; }
    // Both end with a backslash; the first one may be empty.
    const std::wstring& installFolder() const { return installFolder_; }
    const std::wstring& dataFolder() const { return dataFolder_; }
    DWORD build() const { return build_; }
    // Whether its mails and text messages are to be shown as the system's own.
    bool integratesEmail() const { return integratesEmail_; }
    bool integratesSms() const { return integratesSms_; }

    // Reads the storages anew. Without Mail2 there are none.
    void Load();

    // One account for each storage, with its folders. They last until the next Load.
    const std::vector<std::unique_ptr<Mail2Storage>>& accounts() const { return accounts_; }

    // What deleting a mail does: bit 0 marks it as read, bit 1 keeps it in the deleted items.
    unsigned deletionFlags() const { return deletionFlags_; }

  private:
    SettingsIni ReadSettings() const;
    void AddService(const SettingsIniSection& section);

    bool installed_ = false;
    std::wstring installFolder_;
    std::wstring dataFolder_;
    DWORD build_ = 0;
    bool integratesEmail_ = false;
    bool integratesSms_ = false;
    unsigned deletionFlags_ = 0;
    std::vector<std::unique_ptr<Mail2Storage>> accounts_;
};

// The process's one; looks for the program on first use.
Mail2& GetMail2();
