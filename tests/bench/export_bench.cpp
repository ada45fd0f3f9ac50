// What exporting and importing 20,000 values in 500 keys costs beside the desktop's own "reg
// export" and "reg import" of the same tree, in turns in one run. Both ask the desktop's registry
// once for each value, which is where nearly all of the time goes.
//
// usage: export_bench.exe (with the device as current drive)
#include <windows.h>

#include <process.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "app/registry_exporter.h"

namespace {

constexpr int kKeys = 500, kValuesInKey = 40, kRounds = 5;
constexpr wchar_t kTree[] = L"\\Software\\Bench";
// Where the stand-in keeps the tree in the desktop's registry.
constexpr wchar_t kDesktopTree[] =
    L"HKCU\\Software\\PocketPC Devices\\Default\\HKEY_LOCAL_MACHINE\\Software\\Bench";

double Now() {
    LARGE_INTEGER frequency, count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

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

template <typename Action>
double Time(Action action) {
    const double begin = Now();
    if (!action()) {
        printf("an action failed: error %lu\n", GetLastError());
        ExitProcess(1);
    }
    return Now() - begin;
}

// By the C library, as the device's CreateProcessW starts the device's programs alone.
bool Reg(const std::wstring& arguments) {
    return _wspawnlp(_P_WAIT, L"reg.exe", L"reg.exe", arguments.c_str(), nullptr) == 0;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main() {
    MakeTree();
    const std::wstring tree = kDesktopTree;
    std::vector<double> exports, imports, regExports, regImports;
    for (int round = 0; round < kRounds; ++round) {
        exports.push_back(Time(
            [] { return RegistryExporter().Export(L"\\bench.dias", HKEY_LOCAL_MACHINE, kTree); }));
        regExports.push_back(Time([&] { return Reg(L"export \"" + tree + L"\" bench.reg /y"); }));
        imports.push_back(Time([] { return RegistryExporter().Import(L"\\bench.dias"); }));
        regImports.push_back(Time([] { return Reg(L"import bench.reg"); }));
    }
    printf("%d values in %d keys, medians of %d:\n", kKeys * kValuesInKey, kKeys, kRounds);
    printf("export %.0f ms, reg export %.0f ms: %.1f times as fast\n", Median(exports),
           Median(regExports), Median(regExports) / Median(exports));
    printf("import %.0f ms, reg import %.0f ms: %.1f times as fast\n", Median(imports),
           Median(regImports), Median(regImports) / Median(imports));
    return 0;
}
