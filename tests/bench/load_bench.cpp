// What loading costs beside the least that any program would have to do for it, in turns in one
// run: a skin's artwork beside opening its archive and inflating the same members, a folder of
// icons beside mapping and hashing the same files, and how both mail folders and icons grow.
//
// usage: load_bench.exe (with a device of its own as current drive, beside the built artwork)
#include <windows.h>

#include <string>
#include <vector>

#include "appearance/categories/icon_digest.h"
#include "appearance/categories/icon_library.h"
#include "appearance/skins/archive.h"
#include "appearance/skins/skin_art.h"
#include "base/mapped_file.h"
#include "base/owned_handle.h"
#include "pages/stores/mail_folder_tree.h"
#include "pocketpc/common/mail_store.h"
#include "settings/keyboard_layouts.h"
#include "settings/settings_key.h"
#include "tests/bench/bench.h"

namespace {

// The medians of two actions that take turns.
Medians CompareActions(const std::function<void()>& one, const std::function<void()>& other) {
    return Compare([&] { return Time(one); }, [&] { return Time(other); });
}

std::wstring Beside(const wchar_t* name) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path = program;
    return path.substr(0, path.rfind(L'\\') + 1) + name;
}

void BenchSkin() {
    constexpr int kTimes = 20;
    CreateDirectoryW(L"\\Bench", nullptr);
    CreateDirectoryW(L"\\Bench\\Skins", nullptr);
    Require(
        CopyFileW(Beside(L"Skins\\NewStyle.zip").c_str(), L"\\Bench\\Skins\\NewStyle.zip", FALSE),
        "copying the skin");
    const Medians times = CompareActions(
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
        });
    Print("a skin's artwork", "inflating its members alone", times, kTimes);
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

std::vector<std::wstring> MakeIcons(const std::wstring& folder, int count) {
    CreateDirectoryW(folder.c_str(), nullptr);
    std::vector<std::wstring> paths;
    for (int i = 0; i < count; ++i) {
        paths.push_back(folder + L"\\" + std::to_wstring(i) + L".bmp");
        Require(CopyFileW(Beside(L"iconset\\96\\apple.bmp").c_str(), paths.back().c_str(), FALSE),
                "copying an icon");
    }
    return paths;
}

void BenchIcons() {
    WriteCatalogue(10000);
    double smallest = 0;
    for (const int count : {500, 2000, 4000}) {
        const std::wstring folder = L"\\Bench\\" + std::to_wstring(count);
        const std::vector<std::wstring> paths = MakeIcons(folder, count);
        IconLibrary library;
        const Medians times = CompareActions(
            [&] {
                library.Clear();
                library.LoadFolder(folder);
            },
            [&] {
                const IconDigester digester;
                for (const std::wstring& path : paths) {
                    Require(digester.Digest(MappedFile(path).bytes()).has_value(), "hashing");
                }
            });
        Require(library.groups()[0].icons.size() == paths.size(), "loading the icons");
        if (!smallest) smallest = times.one;
        printf("%d icons, %.1f times 500: ", count, times.one / smallest);
        Print("loading", "mapping and hashing alone", times);
    }
}

void BenchMail() {
    constexpr int kAccounts = 8;
    double smallest = 0;
    for (const int folders : {400, 800, 1600, 3200}) {
        MailStore store;
        for (int account = 0; account < kAccounts; ++account) {
            const DWORD parent = store.Add(0, MailKind::kAccount,
                                           L"Account " + std::to_wstring(account), L"ActiveSync");
            for (int i = 0; i < folders / kAccounts; ++i) {
                store.Add(parent, MailKind::kFolder, L"Folder " + std::to_wstring(i));
            }
        }
        Require(store.Save(), "saving the mail store");
        std::size_t accounts = 0;
        const double time = Time([&] {
            const MapiSession session;
            accounts = ReadMailFolderTree(session, Mail2(), L"None").size();
        });
        Require(accounts == kAccounts, "reading the folders");
        if (!smallest) smallest = time;
        printf("%d mail folders: %.0f ms, %.1f times 400\n", folders, time, time / smallest);
    }
}

void BenchLayouts() {
    constexpr int kLookups = 10000;
    KeyboardLayouts& layouts = GetKeyboardLayouts();
    const double time = Time([&] {
        for (int i = 0; i < kLookups; ++i) {
            Require(layouts.Find(i % 2 ? L"Latin" : L"greek") != nullptr, "finding a layout");
        }
    });
    printf("%d lookups of keyboard layouts by name: %.2f ms\n", kLookups, time);
}

}  // namespace

int main() {
    CSettingsKey(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Apps\\Lum Diary", true, false)
        .WriteString(L"InstallDir", L"\\Bench");
    BenchSkin();
    BenchLayouts();
    BenchIcons();
    BenchMail();
    return 0;
}
