// What a start of the program costs beside one of Wine's own settings program and one of an empty
// window: time to the visible main window, and memory.
//
// usage: start_bench.exe (with the device as current drive, beside DiarySettings.exe)
#include <windows.h>

#include <psapi.h>

#include <string>

#include "bench/bench.h"
#include "bench/beside.h"

namespace {

constexpr wchar_t kLanguageFile[] = L"\\Program Files\\Lum Diary\\LumDiary_en.txt";

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

double KibiBytes(const std::wstring& program) {
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    GetFileAttributesExW(program.c_str(), GetFileExInfoStandard, &file);
    return file.nFileSizeLow / 1024.0;
}

}  // namespace

int main() {
    const std::wstring program = Beside(L"DiarySettings.exe");
    const std::wstring emptyOnDevice = Beside(L"empty_window.exe");
    const std::wstring emptyOnDesktop = Beside(L"empty_desktop_window.exe");
    const auto start = [](const std::wstring& path) {
        return [path] { return Measure(path).milliseconds; };
    };
    const auto firstStart = [&] {
        DeleteFileW(kLanguageFile);
        return Measure(program).milliseconds;
    };
    const auto memory = [](const std::wstring& path) {
        return [path] { return static_cast<double>(Measure(path).peakBytes) / (1 << 20); };
    };
    Measure(L"winecfg.exe");
    Measure(program);  // Writes the language file.
    Report("start to window", "ms", "winecfg", TakeTurns(start(program), start(L"winecfg.exe"), 15),
           1.0);
    Report("start to window", "ms", "an empty window, linked alike",
           TakeTurns(start(program), start(emptyOnDevice), 15), 1.5);
    Report("start to window", "ms", "an empty window of the desktop",
           TakeTurns(start(program), start(emptyOnDesktop), 15));
    Report("first start, writes the language file", "ms", "a usual start",
           TakeTurns(firstStart, start(program)), 3.0);
    Report("peak memory of a start", "MiB", "an empty window, linked alike",
           TakeTurns(memory(program), memory(emptyOnDevice)), 1.3);
    Report("peak memory of a start", "MiB", "an empty window of the desktop",
           TakeTurns(memory(program), memory(emptyOnDesktop)), 1.3);
    Report("size of the program", "KiB", "an empty window, linked alike",
           {KibiBytes(program), KibiBytes(emptyOnDevice)});
    return 0;
}
