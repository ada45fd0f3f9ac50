// What a start of the program costs beside a start of Wine's own settings program, in turns in one
// run: time to the visible main window. Also the first start, which writes the language file, and
// the sizes.
//
// usage: start_bench.exe (with the device as current drive, beside DiarySettings.exe)
#include <windows.h>

#include <psapi.h>

#include <string>

#include "tests/bench/bench.h"

namespace {

struct Search {
    DWORD process;
    bool found = false;
};

BOOL CALLBACK IsItsMainWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    wchar_t title[64];
    // The navigation bar has no title; a main window has.
    if (id == search.process && IsWindowVisible(window) && GetWindowTextW(window, title, 64)) {
        search.found = true;
    }
    return !search.found;
}

struct Start {
    double milliseconds = 0;
    SIZE_T peakBytes = 0;
};

// Starts a program, waits for its window, and ends it.
Start Measure(std::wstring commandLine) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    Start start;
    start.milliseconds = Time([&] {
        Require(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &startup, &process) != FALSE,
                "starting a program");
        Search search{process.dwProcessId};
        while (!search.found && WaitForSingleObject(process.hProcess, 1) == WAIT_TIMEOUT) {
            EnumWindows(IsItsMainWindow, reinterpret_cast<LPARAM>(&search));
        }
    });
    WaitForInputIdle(process.hProcess, 5000);
    PROCESS_MEMORY_COUNTERS memory = {};
    GetProcessMemoryInfo(process.hProcess, &memory, sizeof memory);
    start.peakBytes = memory.PeakWorkingSetSize;
    TerminateProcess(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return start;
}

}  // namespace

int main() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring program = path;
    program = program.substr(0, program.rfind(L'\\') + 1) + L"DiarySettings.exe";
    const std::wstring peer = L"winecfg.exe";

    Measure(peer);
    const Start first = Measure(program);  // Writes the language file.
    Start last;
    const Medians times = Compare([&] { return (last = Measure(program)).milliseconds; },
                                  [&] { return Measure(peer).milliseconds; }, 7);
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    GetFileAttributesExW(program.c_str(), GetFileExInfoStandard, &file);
    Print("start to window", "winecfg", times);
    printf("first start, which writes the language file: %.0f ms\n", first.milliseconds);
    printf("peak memory: %.1f MiB; program: %.0f KiB\n",
           static_cast<double>(last.peakBytes) / (1 << 20), file.nFileSizeLow / 1024.0);
    return 0;
}
