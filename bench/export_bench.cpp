// What exporting and importing 20,000 values in 500 keys costs beside the desktop's own "reg
// export" and "reg import" of the same tree, and beside the calls that nobody could do without. All
// ask the desktop's registry once for each value, which is where nearly all of the time goes.
//
// usage: export_bench.exe (with the device as current drive)
#include <windows.h>

#include <process.h>

#include <string>
#include <vector>

#include "app/registry_exporter.h"
#include "base/owned_handle.h"
#include "base/read_file.h"
#include "bench/bench.h"
#include "settings/settings_key.h"

namespace {

constexpr int kKeys = 500, kValuesInKey = 40;
constexpr wchar_t kTree[] = L"\\Software\\Bench";
// Where the stand-in keeps the tree in the desktop's registry.
constexpr wchar_t kDesktopTree[] =
    L"HKCU\\Software\\PocketPC Devices\\Default\\HKEY_LOCAL_MACHINE\\Software\\Bench";

void MakeTree() {
    for (int k = 0; k < kKeys; ++k) {
        HKEY key = nullptr;
        DWORD disposition = 0;
        const std::wstring path = std::wstring(kTree) + L"\\Key " + std::to_wstring(k);
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, 0, nullptr, &key,
                        &disposition);
        for (int v = 0; v < kValuesInKey; ++v) {
            const std::wstring name = L"Value number " + std::to_wstring(v);
            const auto* data = reinterpret_cast<const BYTE*>(name.c_str());
            const auto size = static_cast<DWORD>((name.size() + 1) * sizeof(wchar_t));
            const DWORD types[] = {REG_SZ, REG_DWORD, REG_BINARY};
            const DWORD type = types[v % 3];
            RegSetValueExW(key, name.c_str(), 0, type, data, type == REG_DWORD ? 4 : size);
        }
        RegCloseKey(key);
    }
}

// By the C library, as the device's CreateProcessW starts the device's programs alone.
bool Reg(const std::wstring& arguments) {
    return _wspawnlp(_P_WAIT, L"reg.exe", L"reg.exe", arguments.c_str(), nullptr) == 0;
}

// The calls of the registry that an export cannot do without, and the bytes they bring, in one
// piece.
void ReadTree(HKEY key, std::vector<BYTE>& bytes) {
    wchar_t name[256];
    BYTE data[4096];
    for (DWORD index = 0;; ++index) {
        DWORD length = 256, type = 0, size = sizeof data;
        if (RegEnumValueW(key, index, name, &length, nullptr, &type, data, &size)) break;
        bytes.insert(bytes.end(), data, data + size);
    }
    for (DWORD index = 0;; ++index) {
        DWORD length = 256;
        if (RegEnumKeyExW(key, index, name, &length, nullptr, nullptr, nullptr, nullptr)) break;
        ReadTree(OpenKey(key, name).get(), bytes);
    }
}

bool ReadAndWrite() {
    std::vector<BYTE> bytes;
    ReadTree(OpenKey(HKEY_LOCAL_MACHINE, kTree).get(), bytes);
    const OwnedFile file(
        CreateFileW(L"\\bare", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    return WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

// As many values as an import writes, in as many keys.
bool ReadAndStore() {
    MakeTree();
    return ReadWholeFile(L"\\bench.dias").has_value();
}

}  // namespace

int main() {
    MakeTree();
    const std::wstring tree = kDesktopTree;
    const auto time = [](const char* what, const auto& action) {
        return [=] { return Time([&] { Require(action(), what); }); };
    };
    const auto exporting = time("exporting", [] {
        return RegistryExporter().Export(L"\\bench.dias", HKEY_LOCAL_MACHINE, kTree);
    });
    const auto importing =
        time("importing", [] { return RegistryExporter().Import(L"\\bench.dias"); });
    Report(
        "export of 20,000 values", "ms", "reg export",
        TakeTurns(exporting, time("reg export",
                                  [&] { return Reg(L"export \"" + tree + L"\" bench.reg /y"); })),
        1.0);
    Report("export of 20,000 values", "ms", "a bare loop of its registry calls",
           TakeTurns(exporting, time("a bare loop", ReadAndWrite)), 1.1);
    Report("import of 20,000 values", "ms", "reg import",
           TakeTurns(importing, time("reg import", [] { return Reg(L"import bench.reg"); })), 1.0);
    Report("import of 20,000 values", "ms", "a bare loop of its registry calls",
           TakeTurns(importing, time("a bare loop", ReadAndStore)), 1.1);
    return 0;
}
