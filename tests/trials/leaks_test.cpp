// Opens and closes everything many times and counts what the program has then.
#include <windows.h>

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

#include "tests/trials/walk.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

enum { kGdiObjects, kWindows, kHandles, kKilobytes, kFigureCount };
using Figures = std::array<int, kFigureCount>;
constexpr const char* kNames[] = {"GDI objects", "windows", "handles", "KB"};

// By the table that every process has of its own, as nothing else tells it under Wine.
int GdiObjectsOf(HANDLE process) {
    struct Entry {
        ULONGLONG object;
        ULONG owner;
        USHORT unique;
        BYTE type, flags;
        ULONGLONG user;
    };
    constexpr std::size_t kTable = sizeof(void*) == 8 ? 0xF8 : 0x94;  // within the PEB
    static Entry entries[0x4000];
    PROCESS_BASIC_INFORMATION basic = {};
    NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr);
    const BYTE* table = nullptr;
    ReadProcessMemory(process, reinterpret_cast<BYTE*>(basic.PebBaseAddress) + kTable, &table,
                      sizeof table, nullptr);
    if (!ReadProcessMemory(process, table, entries, sizeof entries, nullptr)) return -1;
    int count = 0;
    for (const Entry& entry : entries) count += entry.type != 0;
    return count;
}

struct Counting {
    DWORD process;
    int windows = 0;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM counting) {
    auto& count = *reinterpret_cast<Counting*>(counting);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    count.windows += process == count.process;
    if (!GetAncestor(window, GA_PARENT) || GetAncestor(window, GA_PARENT) == GetDesktopWindow())
        EnumChildWindows(window, CountWindow, counting);
    return TRUE;
}

// Menus, icons and windows of all programs, of which the server has so many and no more.
int FreeUserObjects() {
    std::vector<HMENU> menus;
    while (const HMENU menu = CreateMenu()) menus.push_back(menu);
    for (const HMENU menu : menus) DestroyMenu(menu);
    return static_cast<int>(menus.size());
}

int HandlesOf(DWORD process) {
    std::vector<BYTE> buffer(1 << 20);
    if (NtQuerySystemInformation(SystemProcessInformation, buffer.data(),
                                 static_cast<ULONG>(buffer.size()), nullptr)) {
        return -1;
    }
    for (std::size_t at = 0;;) {
        SYSTEM_PROCESS_INFORMATION info;
        std::memcpy(&info, buffer.data() + at, sizeof info);
        if (reinterpret_cast<ULONG_PTR>(info.UniqueProcessId) == process) return info.HandleCount;
        if (!info.NextEntryOffset) return -1;
        at += info.NextEntryOffset;
    }
}

Figures Count(DWORD id) {
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    Counting counting = {id};
    EnumWindows(CountWindow, reinterpret_cast<LPARAM>(&counting));
    PROCESS_MEMORY_COUNTERS memory = {};
    GetProcessMemoryInfo(process, &memory, sizeof memory);
    const Figures figures = {GdiObjectsOf(process), counting.windows, HandlesOf(id),
                             static_cast<int>(memory.PagefileUsage / 1024)};
    CloseHandle(process);
    for (const int figure : figures) EXPECT_NE(figure, -1) << "cannot be told";
    return figures;
}

// What is still painting holds a few more for a moment.
Figures Settled(DWORD process) {
    Figures least = Count(process);
    for (int i = 0; i < 20; ++i) {
        Sleep(10);
        const Figures now = Count(process);
        for (int figure = 0; figure < kFigureCount; ++figure) {
            least[figure] = std::min(least[figure], now[figure]);
        }
    }
    return least;
}

class Leaks : public DeviceTest, public testing::WithParamInterface<Step> {};

TEST_P(Leaks, NothingGrowsAfterTheTenthTime) {
    const Step& step = GetParam();
    const char* const wanted = std::getenv("ROUNDS");
    const int rounds = wanted ? atoi(wanted) : 12;
    Program program;
    ASSERT_TRUE(program.Main());
    const auto go = [&](int count) {
        for (int round = 0; round < count; ++round) {
            if (std::string(step.name) == "export") DeleteFileW(kExportFile);
            if (std::string(step.name) == "import") Prepared(step);
            if (!step.run(program, [] {}).closed) return false;
        }
        Draw(program.Main());
        return true;
    };
    ASSERT_TRUE(go(10));
    const Figures first = Settled(program.id());
    Figures allowed = first;
    allowed[kKilobytes] += 256;  // a heap is never twice the same
    const int freeObjects = FreeUserObjects();
    ASSERT_TRUE(go(rounds - 10));
    Figures last;
    Until([&] {
        last = Count(program.id());
        return std::ranges::equal(last, allowed, std::ranges::less_equal());
    });
    for (int i = 0; i < kFigureCount; ++i) {
        EXPECT_LE(last[i], allowed[i]) << kNames[i];
        printf("%s %d, after %d rounds %d; ", kNames[i], first[i], rounds, last[i]);
    }
    const int left = FreeUserObjects();
    EXPECT_GE(left, freeObjects) << "menus, icons or windows are left";
    printf("free user objects %d, then %d\n", freeObjects, left);
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Step, Leaks, testing::ValuesIn(Steps()), NameOfStep);

}  // namespace
