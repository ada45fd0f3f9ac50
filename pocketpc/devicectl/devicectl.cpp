// Lists and edits what a device holds: volumes, databases, records and registry keys.
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <cstdio>
#include <string>
#include <vector>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/screen.h"
#include "pocketpc/common/text.h"
#include "pocketpc/devicectl/databases.h"
#include "pocketpc/devicectl/furnish.h"
#include "pocketpc/devicectl/keys.h"
#include "pocketpc/devicectl/mail.h"

namespace {

constexpr char kUsage[] =
    R"(devicectl lists and edits what a device holds. The device is the current drive.

  devicectl furnish FILE                       carry out a script, - for the standard input
  devicectl volumes                            the volumes that are mounted from the start
  devicectl databases VOLUME                   number, records, sort orders and name of each
  devicectl records VOLUME DATABASE            number and values of each
  devicectl add VOLUME DATABASE VALUE...       a new record; prints its number
  devicectl change VOLUME DATABASE N VALUE...  record N; a property without a value is removed
  devicectl delete VOLUME DATABASE N           record N
  devicectl drop VOLUME DATABASE               the database with its records
  devicectl list KEY                           sub-keys and values
  devicectl set KEY NAME TYPE DATA             types: string dword binary
  devicectl unset KEY NAME
  devicectl delete-key KEY                     with all below it
  devicectl mail                               the mail accounts and folders, each with its number and kind
  devicectl mail-account NAME SERVICE          a new account; prints its number
  devicectl mail-folder N NAME [KIND]          a new folder in account or folder N; prints its number
  devicectl mail-remove N                      account or folder N with all below it
  devicectl screen WIDTHxHEIGHT                the upper left part of the display becomes the screen
  devicectl turn                               holds the screen the other way up
  devicectl panel up|down                      raises or lowers the input panel

A VOLUME is a file such as \pim.vol, or "store" for the object store itself. A KEY begins with HKCU or HKLM.
A VALUE is NUMBER:TYPE=DATA, as in 2:string=Business. Types: i2 ui2 i4 ui4 r8 bool string time blob recid;
blobs are hexadecimal digits; 1:recid is the record's own identifier, without data. A mail folder's KIND is inbox,
outbox, sent, deleted, drafts or folder.

A script adds what a device lacks and leaves the rest as it is. It is UTF-8 text; lines that are indented by
four blanks belong to the statement above them, and # begins a comment:

  folder PATH
  file PATH                                    its lines follow, indented; $BOM is a byte-order mark
  copy FROM PATH                               a file of the device's, or without a backslash one beside devicectl
  volume FILE
  database VOLUME NAME SORT...                 sorts as in 2:string~+0:ui4-: ~ ignores case, - descends
      record VALUE...
  key KEY
      value NAME TYPE DATA
  account NAME SERVICE                         a mail account of the messaging system
      folder PATH [KIND]                       folders within each other are separated by \
  many-accounts COUNT FOLDERS                  so many accounts, each with so many folders
  newer, older, any                            what kind of device the lines from here on are for
)";

using Words = std::vector<std::wstring>;

void Print(const std::wstring& line) {
    const std::string bytes = Utf8Of(line + L"\n");
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

int Fail(const std::wstring& problem) {
    std::fprintf(stderr, "devicectl: %s\n", Utf8Of(problem).c_str());
    return 1;
}

int FurnishFrom(const std::wstring& path) {
    std::FILE* file = path == L"-" ? stdin : _wfopen(path.c_str(), L"rb");
    if (!file) return Fail(L"no such file: " + path);
    std::string bytes;
    char part[4096];
    while (const std::size_t size = std::fread(part, 1, sizeof part, file)) {
        bytes.append(part, size);
    }
    if (file != stdin) std::fclose(file);
    const FurnishError error = Furnish(TextOfUtf8(bytes));
    if (error.text.empty()) return 0;
    return Fail(path + L", line " + std::to_wstring(error.line) + L": " + error.text);
}

int PrintVolumes() {
    CEGUID guid;
    CREATE_INVALIDGUID(&guid);
    wchar_t name[MAX_PATH];
    while (CeEnumDBVolumes(&guid, name, MAX_PATH)) Print(name);
    return 0;
}

int PrintDatabases(const Words& words) {
    MountedVolume volume(words[2]);
    if (!volume) return Fail(SystemProblem());
    for (const DatabaseText& database : ListDatabases(volume)) {
        std::wstring line =
            std::to_wstring(database.oid) + L"\t" + std::to_wstring(database.records) + L"\t";
        for (const std::wstring& order : database.orders) line += order + L" ";
        Print(line + L"\t" + database.name);
    }
    return 0;
}

CEOID RecordNumber(const std::wstring& text) { return wcstoul(text.c_str(), nullptr, 10); }

int EditRecords(const Words& words) {
    const std::wstring& verb = words[1];
    MountedVolume volume(words[2]);
    if (!volume) return Fail(SystemProblem());
    CEOID oid = 0;
    {
        OpenedDatabase database(volume, words[3]);
        if (!database) return Fail(SystemProblem());
        oid = database.oid();
        if (verb == L"records") {
            for (const RecordText& record : ListRecords(database)) {
                std::wstring line = std::to_wstring(record.oid);
                for (const std::wstring& value : record.values) line += L"\t" + value;
                Print(line);
            }
            return 0;
        }
        if (verb == L"delete") {
            return CeDeleteRecord(database.handle(), RecordNumber(words[4]))
                       ? 0
                       : Fail(SystemProblem());
        }
        if (verb != L"drop") {
            PropertyValues properties;
            for (std::size_t i = verb == L"change" ? 5 : 4; i < words.size(); ++i) {
                if (!properties.Add(words[i])) return Fail(L"no value of a property: " + words[i]);
            }
            std::vector<CEPROPVAL>& values = properties.values();
            const CEOID record =
                CeWriteRecordProps(database.handle(), verb == L"add" ? 0 : RecordNumber(words[4]),
                                   static_cast<WORD>(values.size()), values.data());
            if (!record) return Fail(SystemProblem());
            if (verb == L"add") Print(std::to_wstring(record));
            return 0;
        }
    }
    return CeDeleteDatabaseEx(volume.guid(), oid) ? 0 : Fail(SystemProblem());
}

int EditKeys(const Words& words) {
    const std::wstring& verb = words[1];
    if (verb == L"delete-key") return DeleteDeviceKey(words[2]) ? 0 : Fail(L"it cannot be deleted");
    DeviceKey key(words[2], verb == L"set");
    if (!key) return Fail(L"no such key: " + words[2]);
    if (verb == L"list") {
        for (const std::wstring& line : key.List()) Print(line);
        return 0;
    }
    const bool done = verb == L"set" ? key.Set(words[3], words[4], words[5]) : key.Unset(words[3]);
    return done ? 0 : Fail(L"no such value");
}

int EditMail(const Words& words) {
    const std::wstring& verb = words[1];
    if (verb == L"mail") {
        for (const std::wstring& line : ListMail()) Print(line);
        return 0;
    }
    MailStore mail = MailStore::Load();
    DWORD number = 0;
    if (verb == L"mail-account") {
        number = mail.Add(0, MailKind::kAccount, words[2], words[3]);
    } else if (verb == L"mail-folder") {
        const auto kind = ParseMailKind(words.size() > 4 ? words[4] : L"folder");
        if (!kind || *kind == MailKind::kAccount) return Fail(L"no kind of folder: " + words[4]);
        number = RecordNumber(words[2]);
        if (number) number = mail.Add(number, *kind, words[3]);
        if (!number) return Fail(L"no account or folder " + words[2]);
    } else if (!mail.Remove(RecordNumber(words[2]))) {
        return Fail(L"no account or folder " + words[2]);
    }
    if (!mail.Save()) return Fail(SystemProblem());
    if (number) Print(std::to_wstring(number));
    return 0;
}

int ChangeScreen(const Words& words) {
    unsigned width = 0, height = 0;
    if (swscanf(words[2].c_str(), L"%ux%u", &width, &height) != 2 || !width || !height ||
        width > 0x7FFF || height > 0x7FFF) {
        return Fail(L"no size of a screen: " + words[2]);
    }
    shell::SetScreen({static_cast<LONG>(width), static_cast<LONG>(height)});
    return 0;
}

int TurnScreen() {
    shell::TurnScreen();
    return 0;
}

int MoveInputPanel(const Words& words) {
    const bool up = words[2] == L"up";
    if (!up && words[2] != L"down") return Fail(L"neither up nor down: " + words[2]);
    shell::SetInputPanel(up);
    return 0;
}

struct Command {
    const wchar_t* verb;
    std::size_t fewestWords;
    int (*run)(const Words& words);
};
constexpr Command kCommands[] = {
    {L"furnish", 3, [](const Words& words) { return FurnishFrom(words[2]); }},
    {L"volumes", 2, [](const Words&) { return PrintVolumes(); }},
    {L"databases", 3, PrintDatabases},
    {L"records", 4, EditRecords},
    {L"add", 5, EditRecords},
    {L"change", 6, EditRecords},
    {L"delete", 5, EditRecords},
    {L"drop", 4, EditRecords},
    {L"list", 3, EditKeys},
    {L"set", 6, EditKeys},
    {L"unset", 4, EditKeys},
    {L"delete-key", 3, EditKeys},
    {L"mail", 2, EditMail},
    {L"mail-account", 4, EditMail},
    {L"mail-folder", 4, EditMail},
    {L"mail-remove", 3, EditMail},
    {L"screen", 3, ChangeScreen},
    {L"turn", 2, [](const Words&) { return TurnScreen(); }},
    {L"panel", 3, MoveInputPanel},
};

}  // namespace

int wmain(int count, wchar_t** arguments) {
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stdin), _O_BINARY);
    const Words words(arguments, arguments + count);
    if (count == 2 && (words[1] == L"--help" || words[1] == L"-h")) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    for (const Command& command : kCommands) {
        if (words.size() >= command.fewestWords && words[1] == command.verb) {
            return command.run(words);
        }
    }
    std::fputs(kUsage, stderr);
    return 2;
}
