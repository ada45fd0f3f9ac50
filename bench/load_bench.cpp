// What loading costs beside the least that any program would have to do for it, in turns in one
// run: a skin's artwork beside opening its archive and inflating the same members, a folder of
// icons beside mapping and hashing the same files, and how both mail folders and icons grow.
//
// usage: load_bench.exe (with a device of its own as current drive, beside the built artwork)
#include <windows.h>

#include <psapi.h>

#include <string>
#include <vector>

#include "appearance/categories/icon_digest.h"
#include "appearance/categories/icon_library.h"
#include "appearance/skins/archive.h"
#include "appearance/skins/skin_art.h"
#include "base/find_files.h"
#include "base/mapped_file.h"
#include "base/owned_handle.h"
#include "bench/bench.h"
#include "bench/beside.h"
#include "pages/stores/mail_folder_tree.h"
#include "pocketpc/common/mail_store.h"
#include "settings/settings_key.h"

namespace {

void BenchSkin() {
    constexpr int kTimes = 20;
    CreateDirectoryW(L"\\Bench\\Skins", nullptr);
    Require(
        CopyFileW(Beside(L"Skins\\NewStyle.zip").c_str(), L"\\Bench\\Skins\\NewStyle.zip", FALSE),
        "copying the skin");
    const Pair times = TimeInTurns(
        [] {
            for (int i = 0; i < kTimes; ++i) Require(GetSkinArt().IsValid(), "loading the skin");
            GetSkinArt().Reset();
        },
        [] {
            for (int i = 0; i < kTimes; ++i) {
                const auto archive = Archive::Open(L"\\Bench\\Skins\\NewStyle.zip");
                for (const char* member : {"icons.bmp", "scrollbar.bmp", "tab_icons_16.bmp"}) {
                    Require(archive && archive->ReadMember(member), "reading a member");
                }
            }
        },
        25);
    Report("20 times a skin's artwork", "ms", "inflating its members", times, 1.5);
}

// A catalogue of groups with random digests, of which none is an icon's.
void WriteCatalogue(int digests) {
    constexpr int kGroups = 10;
    std::vector<DWORD> file = {kGroups};
    for (int i = 0; i < kGroups; ++i) file.push_back('A' + static_cast<DWORD>(i));  // "A", zero
    DWORD random = 1;
    for (int i = 0; i < kGroups; ++i) {
        file.push_back(static_cast<DWORD>(digests / kGroups));
        for (int word = 0; word < digests / kGroups * 4; ++word) {
            file.push_back(random = random * 1664525 + 1013904223);
        }
    }
    const OwnedFile catalogue(
        CreateFileW(L"\\Bench\\icons.dat", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    WriteFile(catalogue.get(), file.data(), static_cast<DWORD>(file.size() * sizeof(DWORD)),
              &written, nullptr);
}

// Folders of 250 icons each, so that it is not the file system's look-up in large folders that is
// measured.
std::vector<std::wstring> MakeIconFolders(int icons) {
    constexpr int kInFolder = 250;
    std::vector<std::wstring> folders;
    for (int first = 0; first < icons; first += kInFolder) {
        folders.push_back(L"\\Bench\\" + std::to_wstring(first));
        if (!CreateDirectoryW(folders.back().c_str(), nullptr)) {
            Require(GetLastError() == ERROR_ALREADY_EXISTS, "making a folder");
            continue;  // From a smaller number.
        }
        for (int i = 0; i < kInFolder; ++i) {
            const std::wstring path = folders.back() + L"\\" + std::to_wstring(i) + L".bmp";
            Require(CopyFileW(Beside(L"iconset\\96\\apple.bmp").c_str(), path.c_str(), FALSE),
                    "copying an icon");
        }
    }
    return folders;
}

void HashIcons(const std::vector<std::wstring>& folders) {
    const IconDigester digester;
    for (const std::wstring& folder : folders) {
        ForEachFile(folder + L"\\*", [&](const WIN32_FIND_DATAW& found) {
            if (IsFolder(found)) return true;
            const MappedFile file(folder + L"\\" + found.cFileName);
            Require(digester.Digest(file.bytes()).has_value(), "hashing");
            return true;
        });
    }
}

double PrivateMebibytes() {
    PROCESS_MEMORY_COUNTERS memory = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return static_cast<double>(memory.WorkingSetSize) / (1 << 20);
}

void BenchIcons() {
    WriteCatalogue(10000);
    constexpr int kFewest = 500, kMost = 8000;
    Pair fewest = {}, most = {};
    for (int count = kFewest; count <= kMost; count *= 2) {
        const std::vector<std::wstring> folders = MakeIconFolders(count);
        IconLibrary library;
        const auto load = [&] {
            library.Clear();
            for (const std::wstring& folder : folders) library.LoadFolder(folder);
        };
        most = TimeInTurns(
            load, [&] { HashIcons(folders); }, 5);
        if (count == kFewest) fewest = most;
        Require(library.groups()[0].icons.size() == static_cast<std::size_t>(count),
                "loading the icons");
        const std::string what = std::to_string(count) + " icons";
        Report(what.c_str(), "ms", "mapping and hashing them", most, 2.0);
    }
    constexpr double kFold = kMost / kFewest;
    Report("8000 icons, a sixteenth", "ms", "500 icons", {most.ours / kFold, fewest.ours}, 1.3);
    Report("hashing 8000 icons, a sixteenth", "ms", "500 icons",
           {most.theirs / kFold, fewest.theirs});
}

// In a process that has done nothing else yet, so that what it takes is the icons'.
void BenchIconMemory() {
    constexpr int kIcons = 8000;
    constexpr double kPictureBytes = 3 * 16 * 16, kMore = 200;
    const std::vector<std::wstring> folders = MakeIconFolders(kIcons);
    IconLibrary library;
    library.LoadFolder(folders[0]);
    const double before = PrivateMebibytes();
    for (const std::wstring& folder : folders) library.LoadFolder(folder);
    Require(library.groups()[0].icons.size() == kIcons, "loading the icons");
    const double allowed = (kIcons - 250) * (kPictureBytes + kMore) / (1 << 20);
    Report("memory of 7750 more icons", "MiB", "their pixels and 200 bytes each",
           {PrivateMebibytes() - before, allowed}, 1.0);
}

double TimeToReadFolders(int folders) {
    constexpr int kAccounts = 8;
    MailStore store;
    for (int account = 0; account < kAccounts; ++account) {
        const DWORD parent =
            store.Add(0, MailKind::kAccount, L"Account " + std::to_wstring(account), L"ActiveSync");
        for (int i = 0; i < folders / kAccounts; ++i) {
            store.Add(parent, MailKind::kFolder, L"Folder " + std::to_wstring(i));
        }
    }
    Require(store.Save(), "saving the mail store");
    const auto read = [] {
        const MapiSession session;
        Require(ReadMailFolderTree(session, Mail2(), L"None").size() == kAccounts,
                "reading the folders");
    };
    double best = Time(read);
    const int rounds =
        std::max(5, 16000 / folders);  // The less there is to do, the more disturbs it.
    for (int round = 1; round < rounds; ++round) best = std::min(best, Time(read));
    return best;
}

void BenchMail() {
    constexpr int kFewest = 400;
    const double fewest = TimeToReadFolders(kFewest);
    for (int folders = 2 * kFewest; folders <= 16 * kFewest; folders *= 2) {
        const std::string what = std::to_string(folders) + " mail folders, for each 400";
        Report(what.c_str(), "ms", "400 mail folders",
               {TimeToReadFolders(folders) * kFewest / folders, fewest}, 1.3);
    }
}

}  // namespace

int main() {
    CSettingsKey(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Apps\\Lum Diary", true, false)
        .WriteString(L"InstallDir", L"\\Bench");
    CreateDirectoryW(L"\\Bench", nullptr);
    BenchIconMemory();
    BenchSkin();
    BenchIcons();
    BenchMail();
    return 0;
}
