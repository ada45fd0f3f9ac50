// The stand-in device keeps the manners of a real one where the program depends on them.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "pocketpc/include/sipapi.h"
#include "tests/windows.h"

namespace {

constexpr wchar_t kTestKey[] = L"\\Software\\Device Test";

HKEY Open(HKEY root, const std::wstring& path) {
    HKEY key = nullptr;
    RegOpenKeyExW(root, path.c_str(), 0, 0, &key);
    return key;
}

LSTATUS Create(HKEY root, const std::wstring& path) {
    HKEY key = nullptr;
    DWORD disposition = 0;
    const LSTATUS status =
        RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, 0, nullptr, &key, &disposition);
    if (status == ERROR_SUCCESS) RegCloseKey(key);
    return status;
}

HWND CreateEdit(DWORD style, HWND parent = nullptr, DWORD extendedStyle = 0) {
    return CreateWindowExW(extendedStyle, L"EDIT", L"", style, 0, 30, 90, 90, parent, nullptr,
                           nullptr, nullptr);
}

class Registry : public ::testing::Test {
  protected:
    void SetUp() override {
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, kTestKey);
        RegDeleteKeyW(HKEY_CURRENT_USER, kTestKey);
        ASSERT_EQ(Create(HKEY_LOCAL_MACHINE, kTestKey), ERROR_SUCCESS);
        key_ = Open(HKEY_LOCAL_MACHINE, L"Software\\Device Test");
        ASSERT_NE(key_, nullptr);
    }
    void TearDown() override {
        RegCloseKey(key_);
        EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, kTestKey), ERROR_SUCCESS);
    }

    LSTATUS Set(const std::wstring& name, DWORD size) {
        const std::vector<BYTE> data(size, 'x');
        return RegSetValueExW(key_, name.c_str(), 0, REG_BINARY, data.data(), size);
    }

    HKEY key_ = nullptr;
};

TEST_F(Registry, OpensWithALeadingBackslashAndAnyAccess) {
    EXPECT_EQ(Set(L"Value", 3), ERROR_SUCCESS);
    const HKEY other = Open(HKEY_LOCAL_MACHINE, kTestKey);
    BYTE data[2];
    DWORD size = sizeof data;
    EXPECT_EQ(RegQueryValueExW(other, L"Value", nullptr, nullptr, data, &size), ERROR_MORE_DATA);
    EXPECT_EQ(size, 3u);
    EXPECT_EQ(RegCloseKey(other), ERROR_SUCCESS);
    EXPECT_EQ(RegQueryValueExW(other, L"Value", nullptr, nullptr, data, &size),
              ERROR_INVALID_HANDLE);
}

// What the desktop itself sees, past the stand-in.
TEST_F(Registry, KeepsTheRootsApartAndBelowTheHive) {
    const HMODULE desktop = GetModuleHandleW(L"advapi32.dll");
    const auto open = reinterpret_cast<decltype(&RegOpenKeyExW)>(
        reinterpret_cast<void*>(GetProcAddress(desktop, L"RegOpenKeyExW")));
    const auto close = reinterpret_cast<decltype(&RegCloseKey)>(
        reinterpret_cast<void*>(GetProcAddress(desktop, L"RegCloseKey")));
    const std::wstring hive = L"Software\\PocketPC Devices\\Default\\";
    HKEY key = nullptr;
    EXPECT_EQ(open(HKEY_CURRENT_USER, (hive + L"HKEY_LOCAL_MACHINE" + kTestKey).c_str(), 0,
                   KEY_READ, &key),
              ERROR_SUCCESS);
    close(key);
    EXPECT_EQ(open(HKEY_LOCAL_MACHINE, &kTestKey[1], 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Open(HKEY_CURRENT_USER, kTestKey), nullptr);
    EXPECT_EQ(Open(HKEY_CLASSES_ROOT, kTestKey), nullptr);
    EXPECT_EQ(Open(HKEY_USERS, kTestKey), nullptr);
}

TEST_F(Registry, RefusesWhatIsNoRootAndNoOpenKey) {
    // A root with one bit more, above the lower half of the pointer.
    constexpr auto kNearlyRoot = 0x80000002 ^ std::uintptr_t{1} << sizeof(HKEY) * 4;
    for (const std::uintptr_t value :
         {std::uintptr_t{0}, std::uintptr_t{0x80000004}, kNearlyRoot, std::uintptr_t{0x1234}}) {
        const auto key = reinterpret_cast<HKEY>(value);
        EXPECT_EQ(Create(key, L"Software\\Device Test"), ERROR_INVALID_HANDLE) << value;
        EXPECT_EQ(RegSetValueExW(key, L"x", 0, REG_SZ, nullptr, 0), ERROR_INVALID_HANDLE) << value;
    }
    // A root comes as a pointer with or without an extended sign.
    const HKEY key = Open(reinterpret_cast<HKEY>(std::uintptr_t{0x80000002}), kTestKey);
    EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
}

TEST_F(Registry, DeletesAKeyWithAllBelowItUnlessAnyIsOpen) {
    ASSERT_EQ(Create(key_, L"Parent\\Child\\Grandchild"), ERROR_SUCCESS);
    const HKEY inner = Open(key_, L"PARENT\\child\\grandchild");
    ASSERT_NE(inner, nullptr);
    EXPECT_NE(RegDeleteKeyW(key_, L"Parent"), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(inner), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyW(key_, L"Parent"), ERROR_SUCCESS);
    EXPECT_EQ(Open(key_, L"Parent"), nullptr);
    EXPECT_EQ(RegDeleteKeyW(key_, L"Parent"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, L"\\"), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, nullptr), ERROR_INVALID_PARAMETER);
}

TEST_F(Registry, KeepsTheLimits) {
    EXPECT_EQ(Create(key_, std::wstring(255, L'k')), ERROR_SUCCESS);
    EXPECT_NE(Create(key_, std::wstring(256, L'k')), ERROR_SUCCESS);
    EXPECT_EQ(Set(std::wstring(255, L'v'), 1), ERROR_SUCCESS);
    EXPECT_NE(Set(std::wstring(256, L'v'), 1), ERROR_SUCCESS);
    EXPECT_EQ(Set(L"Data", 4096), ERROR_SUCCESS);
    EXPECT_NE(Set(L"Data", 4097), ERROR_SUCCESS);
    std::wstring fourteenLevels = L"x";  // below "Software\Device Test"
    for (int i = 1; i < 14; ++i) fourteenLevels += L"\\x";
    EXPECT_EQ(Create(key_, fourteenLevels), ERROR_SUCCESS);
    EXPECT_NE(Create(key_, fourteenLevels + L"\\x"), ERROR_SUCCESS);
}

TEST(Device, TellsItsVersionAndPlatform) {
    OSVERSIONINFOW version = {};
    EXPECT_FALSE(GetVersionExW(&version));
    version.dwOSVersionInfoSize = sizeof version;
    ASSERT_TRUE(GetVersionExW(&version));
    EXPECT_EQ(version.dwPlatformId, static_cast<DWORD>(VER_PLATFORM_WIN32_CE));
    EXPECT_EQ(version.dwMajorVersion, 5u);
    EXPECT_EQ(version.dwMinorVersion, 2u);
    EXPECT_EQ(version.dwBuildNumber, 19208u);

    wchar_t platform[9] = {};
    EXPECT_FALSE(SystemParametersInfoW(SPI_GETPLATFORMTYPE, 8, platform, 0));
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETPLATFORMTYPE, 9, platform, 0));
    EXPECT_STREQ(platform, L"PocketPC");
    RECT workArea = {};
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &workArea, 0));  // The desktop's answer.
}

TEST(Device, TellsTheVisibleDesktopToExactRequestsOnly) {
    SIPINFO info = {};
    EXPECT_FALSE(SipGetInfo(&info));
    info.cbSize = sizeof info;
    info.dwImDataSize = 4;
    EXPECT_FALSE(SipGetInfo(&info));
    info.dwImDataSize = 0;
    ASSERT_TRUE(SipGetInfo(&info));
    const RECT expected = {0, 26, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    EXPECT_TRUE(EqualRect(&info.rcVisibleDesktop, &expected));
    EXPECT_FALSE(info.fdwFlags & SIPF_ON);
    EXPECT_FALSE(SipShowIM(SIPF_DOCKED));
    ASSERT_TRUE(SipShowIM(SIPF_ON));
    EXPECT_TRUE(SipGetInfo(&info) && info.fdwFlags & SIPF_ON);
    EXPECT_EQ(info.rcVisibleDesktop.bottom, expected.bottom - 26 - 80);
    EXPECT_EQ(info.rcSipRect.top, info.rcVisibleDesktop.bottom);
    EXPECT_EQ(info.rcSipRect.bottom, expected.bottom - 26);
    ASSERT_TRUE(SipShowIM(SIPF_OFF));
}

TEST(Device, FindsFunctionsByWideNameAndOrdinal) {
    const HMODULE coredll = GetModuleHandleW(L"coredll.dll");
    EXPECT_NE(GetProcAddress(coredll, L"SipGetInfo"), nullptr);
    EXPECT_EQ(GetProcAddress(coredll, L"NoSuchFunction"), nullptr);
    EXPECT_NE(GetProcAddress(coredll, MAKEINTRESOURCEW(1)), nullptr);
    EXPECT_EQ(GetProcAddress(coredll, MAKEINTRESOURCEW(9999)), nullptr);
}

// The help viewer lies in \Windows; it notes what it was asked for, says that there is no such
// file, and gives the keyboard back to whom it had it from.
TEST(Device, StartsProgramsFromWindowsWithArgumentsAlone) {
    DeleteFileW(L"\\peghelp.log");
    PROCESS_INFORMATION process = {};
    wchar_t arguments[] = L"Missing.htm#anchor";
    wchar_t folder[] = L"\\";
    const auto start = [&](const wchar_t* program, wchar_t* folder) {
        SetLastError(ERROR_SUCCESS);
        // A console, if the viewer wanted one, would be a window of its own.
        return CreateProcessW(program, arguments, nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE,
                              nullptr, folder, nullptr, &process);
    };
    EXPECT_FALSE(start(L"NoSuchProgram", nullptr));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(start(nullptr, nullptr) || start(L"PegHelp", folder));
    const HWND asking = CreateEdit(WS_POPUP | WS_VISIBLE);
    ASSERT_TRUE(SetForegroundWindow(asking));
    ASSERT_TRUE(start(L"PegHelp", nullptr));
    HWND box = nullptr;
    EXPECT_TRUE(Until([&] { return IsWindowVisible(box = FindWindowW(L"#32770", L"Help")); }));
    Sleep(300);  // Focus has settled before a person can answer.
    EXPECT_TRUE(Until([&] {
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0 &&
               GetForegroundWindow() == asking;
    }));
    DestroyWindow(asking);
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeProcess(process.hProcess, &code));
    EXPECT_EQ(code, 1u);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    std::ifstream log("\\peghelp.log");
    EXPECT_EQ(std::string(std::istreambuf_iterator(log), {}), "Missing.htm#anchor\n");
}

TEST(Device, HidesTheDesktopsMannersAboutWindows) {
    const HWND window = CreateEdit(WS_OVERLAPPED, nullptr, 0x40);
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(GetWindowLongW(window, GWL_STYLE) & WS_CAPTION);
    EXPECT_NE(CreateEdit(WS_CHILD, window, 0x40), nullptr);
    ShowWindow(window, SW_SHOW);
    const auto withLowBit = reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(window) | 1);
    EXPECT_TRUE(SetForegroundWindow(withLowBit));
    EXPECT_EQ(GetForegroundWindow(), window);
    DestroyWindow(window);
    EXPECT_FALSE(SetForegroundWindow(withLowBit));
}

TEST(Device, HasTheTodayScreenAsTheDesktopsFirstChild) {
    EXPECT_EQ(GetWindow(GetDesktopWindow(), GW_CHILD), nullptr);
    const HWND today = MakeWindow(L"DesktopExplorerWindow", DefWindowProcW);
    const HWND above = CreateEdit(WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(GetWindow(GetDesktopWindow(), GW_CHILD), today);
    EXPECT_EQ(GetWindow(today, GW_CHILD), nullptr);
    const HWND child = CreateEdit(WS_CHILD, today);
    EXPECT_EQ(GetWindow(today, GW_CHILD), child);
    DestroyWindow(above);
    DestroyWindow(today);
}

}  // namespace
