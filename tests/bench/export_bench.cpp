// What exporting and importing 20,000 values in 500 keys costs beside the desktop's own "reg
// export" and "reg import" of the same tree, in turns in one run. Both ask the desktop's registry
// once for each value, which is where nearly all of the time goes.
//
// usage: export_bench.exe (with the device as current drive)
#include <windows.h>

#include <process.h>

#include <string>

#include "app/registry_exporter.h"
#include "tests/bench/bench.h"

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

}  // namespace

int main() {
    MakeTree();
    const std::wstring tree = kDesktopTree;
    const auto time = [](const char* what, const auto& action) {
        return [=] { return Time([&] { Require(action(), what); }); };
    };
    const Medians exports = Compare(
        time("exporting",
             [] { return RegistryExporter().Export(L"\\bench.dias", HKEY_LOCAL_MACHINE, kTree); }),
        time("reg export", [&] { return Reg(L"export \"" + tree + L"\" bench.reg /y"); }));
    const Medians imports =
        Compare(time("importing", [] { return RegistryExporter().Import(L"\\bench.dias"); }),
                time("reg import", [] { return Reg(L"import bench.reg"); }));
    printf("%d values in %d keys, medians of 5:\n", kKeys * kValuesInKey, kKeys);
    Print("export", "reg export", exports);
    Print("import", "reg import", imports);
    return 0;
}
