// A device for each test: an empty product key, the installation as it came.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>

#include "settings/settings_key.h"
#include "tests/model/devicectl.h"
#include "tests/ui/driver.h"

namespace ui {

// Gives the device one of the things that ./run --with gives it.
inline bool FurnishWith(const wchar_t* thing) {
    return Control(std::wstring(L"furnish \"Z:" FURNISHING L"/") + thing + L".txt\"");
}

inline constexpr wchar_t kInstallFolder[] = L"\\Program Files\\Lum Diary\\";
inline constexpr wchar_t kLanguageFile[] = L"\\Program Files\\Lum Diary\\LumDiary_en.txt";

inline constexpr const wchar_t* kSheetTitles[] = {
    L"General options", L"Calendar options", L"Task options",          L"Contact options",
    L"Note options",    L"Message options",  L"Special event options",
};

class DeviceTest : public ::testing::Test {
  protected:
    void SetUp() override {
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
        DeleteFileW(kLanguageFile);
        // Away from where menus open, whose entry under the pointer is selected.
        SetCursorPos(0, 0);
    }

    // Opens a page of an entry's sheet; null when it does not show with the control.
    HWND OpenPage(const Program& program, int entry, int page, int control) {
        program.Open(entry, page);
        sheet_ = program.Sheet(kSheetTitles[entry]);
        TurnTo(sheet_, page);  // Not every sheet opens at any page.
        return Page(sheet_, control);
    }
    // Says ok and confirms the message that keeps the sheet open.
    bool IsRefused(const Program& program) const {
        PostMessageW(sheet_, WM_COMMAND, IDOK, 0);
        return program.Dismiss() && IsWindow(sheet_);
    }

    static void Put(const wchar_t* name, DWORD value) { OpenProductKey().WriteDword(name, value); }

    // A number as it is stored; no value when there is none of that name and type.
    static std::optional<DWORD> Stored(const wchar_t* name) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kProductKey, 0, 0, &key) != ERROR_SUCCESS) return {};
        DWORD value = 0, size = sizeof value, type = 0;
        const LSTATUS status =
            RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
        RegCloseKey(key);
        if (status != ERROR_SUCCESS || type != REG_DWORD) return {};
        return value;
    }
    static std::wstring StoredText(const wchar_t* name) {
        return OpenProductKey().ReadString(name);
    }

    // Whether a message box has a text.
    static bool BoxSays(HWND box, const std::wstring& text) {
        for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            if (Text(child) == text) return true;
        }
        return false;
    }
    static bool WriteLanguageFile(const std::wstring& text) {
        const std::wstring content = L"\xFEFF" + text;
        return WriteBytes(kLanguageFile, content.data(), content.size() * sizeof(wchar_t));
    }
    // Looking at a file must not keep the program from writing or deleting it.
    static std::string ReadBytes(const wchar_t* path) {
        constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        const HANDLE file =
            CreateFileW(path, GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
        std::string bytes;
        char buffer[4096];
        for (DWORD read = 0; ReadFile(file, buffer, sizeof buffer, &read, nullptr) && read;) {
            bytes.append(buffer, read);
        }
        CloseHandle(file);
        return bytes;
    }

    HWND sheet_ = nullptr;
};

}  // namespace ui
