// The settings store over the device's registry. Each test starts from an empty product key.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/names.h"
#include "settings/diary_settings.h"
#include "settings/install_path.h"
#include "settings/settings_key.h"
#include "tests/registry.h"

namespace {

constexpr wchar_t kInstallKey[] = L"SOFTWARE\\Apps\\Lum Diary";

class Settings : public ::testing::Test {
  protected:
    void SetUp() override {
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kInstallKey);
    }

    // The type and the bytes that the registry holds, past the class under test; empty when none.
    static std::string Stored(const wchar_t* name) {
        RegistryValues values;
        ReadValues(kProductKey, values);
        return values[kProductKey + std::wstring(L"\\") + name];
    }
    static void Store(const wchar_t* name, DWORD type, const std::string& data) {
        HKEY key = nullptr;
        OpenProductKey();  // makes it
        ASSERT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, kProductKey, 0, 0, &key), ERROR_SUCCESS);
        RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(data.data()),
                       static_cast<DWORD>(data.size()));
        RegCloseKey(key);
    }
    static std::string Bytes(const std::wstring& text) {
        const auto* begin = reinterpret_cast<const char*>(text.c_str());
        return {begin, begin + (text.size() + 1) * sizeof(wchar_t)};
    }
    // As it is stored.
    static std::string Number(DWORD number) {
        return "\4" + std::string(reinterpret_cast<const char*>(&number), sizeof number);
    }
};

TEST_F(Settings, MissingNumberYieldsItsDefaultAndCreatesIt) {
    CSettingsKey key = OpenProductKey();
    EXPECT_EQ(key.ReadDword(L"Number", 7), 7u);
    EXPECT_EQ(Stored(L"Number"), Number(7));
    EXPECT_EQ(key.ReadDword(L"Number", 8), 7u);

    EXPECT_EQ(key.ReadDword(L"None", SETTINGS_NO_DEFAULT), 0xDEF0u);
    EXPECT_EQ(Stored(L"None"), "");
}

TEST_F(Settings, NumbersOfOtherTypes) {
    Store(L"Short", REG_BINARY, "\1\2");
    Store(L"Four", REG_BINARY, "\4\3\2\1");
    Store(L"Text", REG_SZ, Bytes(L"long"));
    CSettingsKey key = OpenProductKey();
    EXPECT_EQ(key.ReadDword(L"Short", 9), 0x0201u);
    EXPECT_EQ(key.ReadDword(L"Four", 9), 0x01020304u);
    EXPECT_EQ(key.ReadDword(L"Text", 9), 9u);
    EXPECT_EQ(Stored(L"Text"), Number(9));
}

TEST_F(Settings, Texts) {
    CSettingsKey key = OpenProductKey();
    EXPECT_EQ(key.ReadString(L"None"), L"");
    EXPECT_EQ(Stored(L"None"), "");
    EXPECT_EQ(key.ReadString(L"Text", L"Ünï"), L"Ünï");
    EXPECT_EQ(Stored(L"Text"), "\1" + Bytes(L"Ünï"));
    EXPECT_TRUE(key.WriteString(L"Empty", L""));
    EXPECT_EQ(Stored(L"Empty"), "\1" + Bytes(L""));

    Store(L"Inner", REG_SZ, Bytes(std::wstring(L"a\0b", 3)));
    Store(L"Odd", REG_BINARY, {'x', 0, 'y'});
    Store(L"Open", REG_SZ, {'z', 0});
    EXPECT_EQ(key.ReadString(L"Inner"), L"a");
    EXPECT_EQ(key.ReadString(L"Odd"), L"xy");
    EXPECT_EQ(key.ReadString(L"Open"), L"z");
}

TEST_F(Settings, UnreadablePointersTouchNothing) {
    const auto* bad = reinterpret_cast<const wchar_t*>(8);
    CSettingsKey key = OpenProductKey();
    BYTE buffer[4];
    DWORD size = sizeof buffer;
    for (const wchar_t* name : {static_cast<const wchar_t*>(nullptr), bad}) {
        EXPECT_EQ(key.ReadDword(name, 3), 3u);
        EXPECT_FALSE(key.WriteDword(name, 1));
        EXPECT_EQ(key.ReadString(name, L"x"), L"");
        EXPECT_FALSE(key.WriteString(name, L"x"));
        EXPECT_FALSE(key.WriteString(L"Name", name));
        EXPECT_EQ(key.ReadString(L"Name", name), L"");
        EXPECT_FALSE(key.WriteBinary(L"Name", name, 4));
        EXPECT_FALSE(key.ReadBinary(name, buffer, &size));
    }
    size = 4;
    EXPECT_FALSE(key.ReadBinary(L"Name", const_cast<wchar_t*>(bad), &size));
    std::wstring name;
    EXPECT_FALSE(key.FirstValueName(name)) << "wrote " << name.size() << " characters' name";
}

TEST_F(Settings, BinariesAndNames) {
    CSettingsKey key = OpenProductKey();
    EXPECT_TRUE(key.WriteBinary(L"Blob", "abc", 3));
    DWORD size = 0;
    EXPECT_TRUE(key.ReadBinary(L"Blob", nullptr, &size));
    EXPECT_EQ(size, 3u);
    BYTE small[2];
    size = sizeof small;
    EXPECT_FALSE(key.ReadBinary(L"Blob", small, &size));
    key.WriteDword(L"Two", 2);
    std::vector<std::wstring> names;
    std::wstring name;
    for (bool more = key.FirstValueName(name); more; more = key.NextValueName(name)) {
        names.push_back(name);
    }
    EXPECT_EQ(names, (std::vector<std::wstring>{L"Blob", L"Two"}));
}

TEST_F(Settings, KeyThatDoesNotOpen) {
    CSettingsKey missing(HKEY_LOCAL_MACHINE, L"\\Software\\Nowhere", false, false);
    EXPECT_FALSE(missing.IsOpen());
    EXPECT_EQ(missing.ReadDword(L"Number", 5), 5u);
    EXPECT_FALSE(missing.WriteDword(L"Number", 5));
    EXPECT_EQ(missing.ReadString(L"Text", L"d"), L"d");
    CSettingsKey impossible(HKEY_LOCAL_MACHINE, std::wstring(300, L'k').c_str(), true, true);
    EXPECT_FALSE(impossible.IsOpen());
    EXPECT_FALSE(impossible.WriteString(L"a", L"b"));
}

TEST_F(Settings, DeleteKeyTree) {
    {
        OpenProductKey(L"A\\B\\C").WriteDword(L"x", 1);
        OpenProductKey(L"A\\D");
    }
    EXPECT_FALSE(DeleteKeyTree(HKEY_LOCAL_MACHINE, nullptr));
    EXPECT_TRUE(DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey));
    EXPECT_FALSE(CSettingsKey(HKEY_LOCAL_MACHINE, kProductKey, false, false).IsOpen());
    EXPECT_FALSE(DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey));
    const CSettingsKey held = OpenProductKey(L"A");
    EXPECT_FALSE(DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey));
}

TEST_F(Settings, InstallPath) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path = program;
    const std::wstring folder = path.substr(0, path.rfind(L'\\'));
    EXPECT_EQ(GetInstallPath(), folder);
    EXPECT_EQ(GetInstallPath(L"DiaryRes.Dll"), folder + L"\\DiaryRes.Dll");
    CSettingsKey install(HKEY_LOCAL_MACHINE, kInstallKey, true, true);
    EXPECT_EQ(GetInstallPath(), L"");
    EXPECT_EQ(GetInstallPath(L"DiaryRes.Dll"), L"\\DiaryRes.Dll");
    install.WriteString(L"InstallDir", L"\\Program Files\\Diary\\");
    EXPECT_EQ(GetInstallPath(), L"\\Program Files\\Diary\\");
    EXPECT_EQ(GetInstallPath(L"a.bin"), L"\\Program Files\\Diary\\\\a.bin");
}

TEST_F(Settings, SaveWritesAllButTheTextOffset) {
    CDiarySettings settings;
    settings.Load();
    EXPECT_EQ(Stored(L"dbgTextOffset"), Number(4));
    EXPECT_EQ(Stored(L"ContPreview_ShowAddressMode"), Number(0));
    EXPECT_EQ(Stored(L"CurAppPattern"), "\1" + Bytes(L"n3rqsca"));
    settings.taskPattern.mode = 2;
    settings.textOffset = 99;
    settings.noteType6 = 0;
    settings.taskPlacement = -5;
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
    settings.Save();
    EXPECT_EQ(Stored(L"CurTaskPattern"), "\1" + Bytes(L"p2nqrsc"));
    EXPECT_EQ(Stored(L"NotesType6Enabled"), Number(0));
    EXPECT_EQ(Stored(L"App_TaskShowMultiday"), Number(static_cast<DWORD>(-5)));
    EXPECT_EQ(Stored(L"EmailConfirmDeletion"), Number(1));
    EXPECT_EQ(Stored(L"dbgTextOffset"), "");
}

// Names are the same where a key of the registry has but one value for both.
TEST_F(Settings, SameNamesShareAValue) {
    const std::tuple<std::wstring, std::wstring, bool> cases[] = {
        {L"\x00C4RZTE", L"\x00E4rzte", true},
        {L"\x03A3", L"\x03C3", true},
        {L"\x042F\x0449\x0438\x043A", L"\x044F\x0429\x0418\x041A", true},
        {L"Stra\u00DFe", L"STRASSE", false},
        {L"\x00C4rzte", L"Arzte", false},
        {L"a", L"ab", false},
        {L"ab", L"a\u00ADb", false},
        {L"\xFF21", L"A", false}};
    for (const auto& [one, other, same] : cases) {
        CSettingsKey key = OpenProductKey();
        key.WriteDword(one.c_str(), 1);
        key.WriteDword(other.c_str(), 2);
        const bool shared = key.ReadDword(one.c_str(), 0) == 2;
        EXPECT_EQ(shared, same) << testing::PrintToString(one);
        EXPECT_EQ(IsSameName(one, other), same) << testing::PrintToString(one);
        key.DeleteValue(one.c_str());
        key.DeleteValue(other.c_str());
    }
}

}  // namespace
