#include "pocketpc/devicectl/furnish.h"

#include <windows.h>

#include <memory>
#include <optional>
#include <vector>

#include "pocketpc/common/text.h"
#include "pocketpc/devicectl/databases.h"
#include "pocketpc/devicectl/keys.h"
#include "pocketpc/devicectl/mail.h"

namespace {

constexpr std::size_t kIndentation = 4;

bool Exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool MakeFolder(const std::wstring& path) {
    for (std::size_t slash = path.find(L'\\', 1);; slash = path.find(L'\\', slash + 1)) {
        const std::wstring part = path.substr(0, slash);
        if (!Exists(part) && !CreateDirectoryW(part.c_str(), nullptr)) return false;
        if (slash == std::wstring::npos) return true;
    }
}

bool MakeFolderOf(const std::wstring& path) {
    const std::size_t slash = path.rfind(L'\\');
    return slash == std::wstring::npos || slash == 0 || MakeFolder(path.substr(0, slash));
}

bool MakeFile(const std::wstring& path, const std::wstring& text) {
    if (!MakeFolderOf(path)) return false;
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const std::string bytes = Utf8Of(text);
    DWORD written = 0;
    const bool ok =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return ok;
}

// A name without a folder is that of a file beside this program.
bool CopyTo(const std::wstring& from, const std::wstring& path) {
    if (Exists(path)) return true;
    std::wstring source = from;
    if (from.find(L'\\') == std::wstring::npos) {
        wchar_t program[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, program, MAX_PATH - 1);
        source = program;
        source.replace(source.rfind(L'\\') + 1, std::wstring::npos, from);
    }
    return MakeFolderOf(path) && CopyFileW(source.c_str(), path.c_str(), TRUE);
}

// Carries a script out, line by line. An indented line belongs to the statement above it.
class Furnisher {
  public:
    // An empty text when the line is right and has been done.
    std::wstring Take(const std::wstring& line) {
        if (line.starts_with(std::wstring(kIndentation, L' '))) {
            const std::wstring inner = line.substr(kIndentation);
            if (skipping_) return {};
            if (!file_.empty()) {
                fileText_ += FileLine(inner) + L"\r\n";
                return {};
            }
            if (inner.starts_with(L"#") || inner.empty()) return {};
            return Inner(SplitWords(inner));
        }
        if (line.empty() && !file_.empty()) fileText_ += L"\r\n";
        if (line.empty() || line.starts_with(L"#")) return {};
        const std::wstring problem = Finish();
        return problem.empty() ? Outer(SplitWords(line)) : problem;
    }

    // Ends the statement that is being put together.
    std::wstring Finish() {
        std::wstring problem;
        if (!file_.empty() && !MakeFile(file_, fileText_)) problem = SystemProblem();
        if (mail_ && !mail_->Save()) problem = SystemProblem();
        mail_.reset();
        file_.clear();
        fileText_.clear();
        database_.reset();
        volume_.reset();
        key_.reset();
        skipping_ = false;
        account_ = 0;
        return problem;
    }

  private:
    static std::wstring FileLine(std::wstring line) {
        constexpr std::wstring_view kMark = L"$BOM";
        for (std::size_t at; (at = line.find(kMark)) != std::wstring::npos;) {
            line.replace(at, kMark.size(), L"\xFEFF");
        }
        return line;
    }

    std::wstring Outer(std::vector<std::wstring> words) {
        const std::wstring verb = words[0];
        if (verb == L"newer" || verb == L"older" || verb == L"any") {
            meant_ = verb == L"any" || (verb == L"newer") == IsNewerDevice();
            return {};
        }
        skipping_ = !meant_;
        const bool known = verb == L"folder" || verb == L"file" || verb == L"volume" ||
                           verb == L"database" || verb == L"key" || verb == L"account" ||
                           verb == L"many-accounts" || verb == L"copy";
        if (!known) return L"unknown statement " + verb;
        if (words.size() < 2) return verb + L" needs a name";
        if (skipping_) return {};
        const std::wstring& name = words[1];
        if (verb == L"folder") return MakeFolder(name) ? L"" : SystemProblem();
        if (verb == L"file") {
            skipping_ = Exists(name);
            if (!skipping_) file_ = name;
            return {};
        }
        if (verb == L"volume") {
            return MakeVolume(name, IsNewerDevice()) ? L"" : SystemProblem();
        }
        if (verb == L"key") {
            key_ = std::make_unique<DeviceKey>(name, true);
            return *key_ ? L"" : L"no such key can be made";
        }
        if (verb == L"account" || verb == L"many-accounts" || verb == L"copy") {
            if (words.size() < 3) return verb + L" needs two words";
            if (verb == L"copy") return CopyTo(name, words[2]) ? L"" : SystemProblem();
            mail_ = MailStore::Load();
            if (verb == L"account") return StartAccount(name, words[2]);
            AddManyAccounts(*mail_, wcstoul(name.c_str(), nullptr, 10),
                            wcstoul(words[2].c_str(), nullptr, 10));
            return {};
        }
        return StartDatabase(words);
    }

    std::wstring StartAccount(const std::wstring& name, const std::wstring& service) {
        skipping_ = HasAccount(*mail_, name);
        if (skipping_) {
            mail_.reset();
        } else {
            account_ = mail_->Add(0, MailKind::kAccount, name, service);
        }
        return {};
    }

    std::wstring StartDatabase(const std::vector<std::wstring>& words) {
        if (words.size() < 3) return L"database needs a volume and a name";
        std::vector<SortText> orders;
        for (std::size_t i = 3; i < words.size(); ++i) {
            const auto order = ParseSort(words[i]);
            if (!order) return L"no sort order: " + words[i];
            orders.push_back(*order);
        }
        volume_ = std::make_unique<MountedVolume>(words[1]);
        if (!*volume_) return SystemProblem();
        if (!MakeDatabase(*volume_, words[2], orders)) {
            // What is there belongs to the device's owner by now.
            skipping_ = GetLastError() == ERROR_DUP_NAME;
            return skipping_ ? L"" : SystemProblem();
        }
        database_ = std::make_unique<OpenedDatabase>(*volume_, words[2]);
        return *database_ ? L"" : SystemProblem();
    }

    std::wstring Inner(const std::vector<std::wstring>& words) {
        if (database_ && words[0] == L"record") {
            PropertyValues properties;
            for (std::size_t i = 1; i < words.size(); ++i) {
                if (!properties.Add(words[i])) return L"no value of a property: " + words[i];
            }
            std::vector<CEPROPVAL>& values = properties.values();
            return CeWriteRecordProps(database_->handle(), 0, static_cast<WORD>(values.size()),
                                      values.data())
                       ? L""
                       : SystemProblem();
        }
        if (key_ && words[0] == L"value" && words.size() == 4) {
            if (key_->Has(words[1])) return {};
            return key_->Set(words[1], words[2], words[3]) ? L"" : L"no value: " + words[3];
        }
        if (mail_ && account_ && words[0] == L"folder" && words.size() >= 2) {
            const auto kind = ParseMailKind(words.size() > 2 ? words[2] : L"folder");
            if (!kind) return L"no kind of folder: " + words[2];
            return AddMailFolder(*mail_, account_, words[1], *kind) ? L""
                                                                    : L"no such parent folder";
        }
        return L"unknown statement " + words[0] + L" here";
    }

    bool meant_ = true;      // the lines are for this kind of device
    bool skipping_ = false;  // the statement's indented lines have nothing to do
    std::wstring file_, fileText_;
    std::unique_ptr<MountedVolume> volume_;
    std::unique_ptr<OpenedDatabase> database_;
    std::unique_ptr<DeviceKey> key_;
    std::optional<MailStore> mail_;
    DWORD account_ = 0;
};

}  // namespace

FurnishError Furnish(std::wstring_view script) {
    Furnisher furnisher;
    int number = 0;
    while (!script.empty()) {
        ++number;
        const std::size_t end = script.find(L'\n');
        std::wstring line(script.substr(0, end));
        script.remove_prefix(end == std::wstring_view::npos ? script.size() : end + 1);
        if (line.ends_with(L'\r')) line.pop_back();
        const std::wstring problem = furnisher.Take(line);
        if (!problem.empty()) return {number, problem};
    }
    return {number, furnisher.Finish()};
}
