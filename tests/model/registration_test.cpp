// Where the plug-in is registered, over the device's registry.
#include "settings/registration.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "settings/settings_key.h"

namespace {

const std::wstring kPlugins = L"SOFTWARE\\Lum Software House\\Shared\\TabPlugins";
const std::wstring kToday = L"SOFTWARE\\Microsoft\\Today\\Items\\\"Lum Diary\"";
const std::wstring kHost = L"SOFTWARE\\Lum Software House\\Lum Shell 2";

CSettingsKey Make(const std::wstring& path) {
    return CSettingsKey(HKEY_LOCAL_MACHINE, path.c_str(), true, true);
}
bool Exists(const std::wstring& path) {
    return CSettingsKey(HKEY_LOCAL_MACHINE, path.c_str(), false, false).IsOpen();
}
std::wstring Text(const std::wstring& path, const wchar_t* name) {
    return CSettingsKey(HKEY_LOCAL_MACHINE, path.c_str(), false, false).ReadString(name);
}

class Registering : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const std::wstring& key : {kPlugins, kToday, kHost}) {
            DeleteKeyTree(HKEY_LOCAL_MACHINE, key.c_str());
        }
        DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
    }
    static void Register(DWORD inOne) {
        OpenProductKey().WriteDword(L"AllTabsInShell", inOne);
        RegisterPlugin({L"Kalender", L"T", L"C", L"N", L"M", L"Feste"});
    }
    static DWORD InOne() { return OpenProductKey().ReadDword(L"AllTabsInShell", 9); }
};

TEST_F(Registering, Probe) {
    EXPECT_EQ(Registration::Probe().state, Registration::kNone);
    Make(kToday);
    EXPECT_EQ(Registration::Probe().state, Registration::kTodayDisabled);
    Make(kToday).WriteString(L"Dll", L"x.dll");
    EXPECT_EQ(Registration::Probe().state, Registration::kTodayDisabled);
    Make(kToday).WriteDword(L"enabled", 1);
    EXPECT_EQ(Registration::Probe().state, Registration::kToday);
    Make(kPlugins + L"\\DiaryNotes");
    EXPECT_EQ(Registration::Probe().state, Registration::kToday);
    Make(kPlugins + L"\\DiaryNotes\\0");
    EXPECT_EQ(Registration::Probe().state, Registration::kTabPerHostTab);
    Make(kPlugins + L"\\DiaryAll");  // From here on the separate keys count no more.
    EXPECT_EQ(Registration::Probe().state, Registration::kToday);
    Make(kPlugins + L"\\DiaryAll\\0");
    EXPECT_EQ(Registration::Probe().state, Registration::kOneHostTab);
    EXPECT_FALSE(Registration::Probe().hostInstalled);
    Make(kHost);
    EXPECT_TRUE(Registration::Probe().hostInstalled);
}

TEST_F(Registering, InOneAndApart) {
    Register(1);
    const std::wstring all = kPlugins + L"\\DiaryAll", calendar = kPlugins + L"\\DiaryCalendar";
    EXPECT_EQ(Text(all, L"DLL"), L"\\Windows\\LumDiary.dll");
    EXPECT_EQ(Text(all, L"Name3.0"), L"Lum Diary");
    EXPECT_FALSE(Exists(calendar));
    EXPECT_EQ(Text(kToday, L"DLL"), L"\\Windows\\LumDiary.dll");
    for (const auto& [name, value] : {std::pair(L"selectability", 2u), std::pair(L"type", 4u),
                                      std::pair(L"options", 1u), std::pair(L"enabled", 1u)}) {
        EXPECT_EQ(Make(kToday).ReadDword(name, 99), value) << testing::PrintToString(name);
    }
    Register(0);
    EXPECT_FALSE(Exists(all));
    EXPECT_EQ(Text(calendar, L"Name3.0"), L"Lum Diary - Kalender");
    EXPECT_EQ(Text(kPlugins + L"\\DiarySpecial", L"Name3.0"), L"Lum Diary - Feste");
    Register(1);
    EXPECT_FALSE(Exists(calendar));
}

// What the host holds goes before what the user chose; the Today screen is then left alone.
TEST_F(Registering, TheHostDecides) {
    Make(kHost);
    Make(kPlugins + L"\\DiaryTasks\\7");
    Register(1);
    EXPECT_EQ(InOne(), 0u);
    EXPECT_FALSE(Exists(kPlugins + L"\\DiaryAll"));
    EXPECT_EQ(Text(kPlugins + L"\\DiaryTasks\\7", L"DLL"), L"\\Windows\\LumDiary.dll");
    EXPECT_FALSE(Exists(kToday));

    SetUp();
    Make(kHost);
    Make(kPlugins + L"\\DiaryAll\\2");
    Register(0);
    EXPECT_EQ(InOne(), 1u);
    EXPECT_EQ(Text(kPlugins + L"\\DiaryAll\\2", L"DLL"), L"\\Windows\\LumDiary.dll");
    EXPECT_FALSE(Exists(kPlugins + L"\\DiaryTasks") || Exists(kToday));

    // Without the host its keys do not count.
    SetUp();
    Make(kPlugins + L"\\DiaryAll\\2");
    Register(0);
    EXPECT_EQ(InOne(), 0u);
    EXPECT_TRUE(Exists(kPlugins + L"\\DiaryTasks") && !Exists(kPlugins + L"\\DiaryAll"));
}

}  // namespace
