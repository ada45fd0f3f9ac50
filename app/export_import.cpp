#include "app/export_import.h"

#include <commdlg.h>

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/language/language_table.h"
#include "app/registry_exporter.h"
#include "app/reload_after_import.h"
#include "base/fill_in.h"
#include "base/put_in_place.h"
#include "base/read_file.h"
#include "base/wait_cursor.h"
#include "resources/ids.h"
#include "settings/install_path.h"
#include "settings/settings_file_facts.h"
#include "settings/settings_key.h"

namespace {

// Asks for a settings file by one of the system's two file dialogs; no value when the user cancels.
std::optional<std::wstring> AskForFile(HWND owner, BOOL(WINAPI* dialog)(OPENFILENAMEW*),
                                       DWORD flags) {
    std::wstring filter =
        FillIn(L"%s (*.dias)|*.dias|", {GetLanguageTable().LoadString(IDS_SETTINGS_FILE_TYPE)});
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    wchar_t path[MAX_PATH] = {};
    GetLanguageTable().LoadString(IDS_SETTINGS_FILE_NAME).copy(path, MAX_PATH - 1);
    OPENFILENAMEW request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = filter.c_str();
    request.lpstrFile = path;
    request.nMaxFile = MAX_PATH;
    request.Flags = flags;
    request.lpstrDefExt = L"dias";
    if (!dialog(&request)) return {};
    return path;
}

int Say(const wchar_t* text, UINT style) {
    return MessageBoxW(GetActiveWindow(), text,
                       GetLanguageTable().LoadString(IDS_APP_TITLE).c_str(), style);
}

void SayThatItFailed(unsigned text) {
    Say(GetLanguageTable().LoadString(text).c_str(), MB_ICONINFORMATION);
}

bool ExportTo(const wchar_t* path) {
    RegistryExporter exporter;
    exporter.Exclude(L"Version");
    exporter.Exclude(L"Build");
    return exporter.Export(path, HKEY_LOCAL_MACHINE, kProductKey);
}

// The way back, if it can be kept; if not, the one there was stays.
void KeepBeforeImport() {
    const std::wstring path = GetInstallPath(L"Before import.dias");
    if (ExportTo(FreshName(path).c_str())) PutInPlace(path);
}

// The question whether to import a file; what the user could not expect of it follows in paragraphs
// of its own.
std::wstring ImportQuestion(const std::wstring& path, std::span<const std::uint8_t> file) {
    const SettingsFileFacts facts = LookThroughSettingsFile(file);
    const LanguageTable& table = GetLanguageTable();
    std::wstring question = FillIn(table.LoadString(IDS_CONFIRM_IMPORT), {path});
    if (facts.writesOutside) question += L"\n\n" + table.LoadString(IDS_IMPORT_WRITES_OUTSIDE);
    if (!facts.whole) question += L"\n\n" + table.LoadString(IDS_IMPORT_DAMAGED);
    return question;
}

}  // namespace

void ExportSettings(HWND owner) {
    const auto path = AskForFile(owner, GetSaveFileNameW, OFN_OVERWRITEPROMPT);
    if (!path) return;
    const WaitCursor wait;
    if (!ExportTo(path->c_str())) SayThatItFailed(IDS_EXPORT_FAILED);
}

bool ImportSettings(HWND owner) {
    const auto path = AskForFile(owner, GetOpenFileNameW, OFN_FILEMUSTEXIST);
    if (!path) return false;
    // Read once: what is asked about is what is imported, even of a file that is written below.
    const auto file = ReadWholeFile(*path).value_or(std::vector<std::uint8_t>{});
    const std::wstring question = ImportQuestion(*path, file);
    if (Say(question.c_str(), MB_YESNO | MB_ICONQUESTION) != IDYES) return false;
    const WaitCursor wait;
    KeepBeforeImport();
    const bool done = RegistryExporter().Import(file);
    ReloadAfterImport();  // Even of a file that failed, something was stored.
    if (!done) SayThatItFailed(IDS_IMPORT_FAILED);
    return true;
}
