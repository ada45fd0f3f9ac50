// Settings that come from a file while the program runs.
#include <set>

#include "app/registry_exporter.h"
#include "resources/ids.h"
#include "settings/settings_file.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

constexpr wchar_t kFile[] = L"\\My Documents\\Lum Diary.dias";
constexpr wchar_t kBefore[] = L"\\Program Files\\Lum Diary\\Before import.dias";

class Import : public DeviceTest {
  protected:
    void SetUp() override {
        DeviceTest::SetUp();
        TearDown();
    }
    void TearDown() override {
        DeleteFileW(kFile);
        DeleteFileW(kBefore);
    }

    // Leaves the settings there are now in the file alone.
    static bool MoveToFile() {
        return RegistryExporter().Export(kFile, HKEY_LOCAL_MACHINE, kProductKey) &&
               DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
    }
    static HWND Choose(const Program& program, int command, const wchar_t* title) {
        PostMessageW(program.Main(), WM_COMMAND, command, 0);
        return program.Sheet(title);
    }
    static HWND Ask(const Program& program) {
        return Ok(Choose(program, IDM_IMPORT, L"Open")) ? program.Sheet(L"Lum Diary Options")
                                                        : nullptr;
    }
    static bool RunImport(const Program& program) {
        const HWND question = Ask(program);
        PostMessageW(question, WM_COMMAND, IDYES, 0);
        if (!question || !Until([&] { return !IsWindow(question); })) return false;
        SendMessageW(program.Main(), WM_NULL, 0, 0);  // Is served when all is done.
        return program.OpenSheets().empty();
    }
    // The names of the product key's values and keys.
    static std::set<std::wstring> Names() {
        std::set<std::wstring> names;
        std::wstring value;
        CSettingsKey key = OpenProductKey();
        for (bool more = key.FirstValueName(value); more; more = key.NextValueName(value)) {
            names.insert(value);
        }
        HKEY opened = nullptr;
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, kProductKey, 0, 0, &opened);
        wchar_t name[256];
        for (DWORD i = 0, length = 256;
             !RegEnumKeyExW(opened, i, name, &length, nullptr, nullptr, nullptr, nullptr);
             ++i, length = 256) {
            names.insert(std::wstring(L"\\") + name);
        }
        RegCloseKey(opened);
        return names;
    }
};

TEST_F(Import, StoresWhatTheFileHasAndReachesWhatIsLoaded) {
    Put(L"CalendarPeriod", 30);
    OpenProductKey(L"Layouts").WriteString(L"Mine", L"labc(abc)");
    ASSERT_TRUE(MoveToFile());
    Program program;
    OpenPage(program, 3, 0, IDC_CONTACT_LAYOUT);  // Loads the layouts.
    ASSERT_TRUE(Cancel(sheet_));
    std::set<std::wstring> expected = Names();
    EXPECT_TRUE(expected.insert(L"CalendarPeriod").second);
    Put(L"OneClick", 2);
    expected.insert(L"OneClick");
    ASSERT_TRUE(RunImport(program));
    EXPECT_EQ(Stored(L"CalendarPeriod"), 30u);
    EXPECT_EQ(Names(), expected);
    // The way back: what there was stays in a file, which can itself be imported.
    Put(L"OneClick", 3);
    ASSERT_TRUE(CopyFileW(kBefore, kFile, FALSE));
    ASSERT_TRUE(RunImport(program));
    EXPECT_EQ(Stored(L"OneClick"), 2u);
    EXPECT_EQ(Names(), expected);
    OpenProductKey().WriteString(L"Contacts_layouts", L"Mine");
    EXPECT_EQ(Selected(OpenPage(program, 3, 0, IDC_CONTACT_LAYOUT), IDC_CONTACT_LAYOUT), L"Mine");
    EXPECT_EQ(program.CloseAndWait(), 0u);
}

TEST_F(Import, TellsWhatAFileWouldDo) {
    constexpr wchar_t kQuestion[] =
        L"Import the settings in \\My Documents\\Lum Diary.dias? They overwrite those there are; "
        L"what the file lacks stays.";
    constexpr wchar_t kOutside[] = L"\n\nThis file also changes settings that are not the diary's.";
    constexpr wchar_t kDamaged[] =
        L"\n\nThis file is damaged. Only what comes before the damage can be imported.";
    struct Case {
        const wchar_t* path;
        DWORD end;
        std::wstring said;
    };
    const Program program;
    for (const Case& c : {Case{kProductKey, 1, L""}, Case{L"\\Software\\Other", 1, kOutside},
                          Case{kProductKey, 9, kDamaged},
                          Case{L"\\Software\\Other", 9, std::wstring(kOutside) + kDamaged}}) {
        SettingsFileWriter file;
        file.Begin(0x80000002, c.path);
        file.BeginKey(L"");
        file.Number(L"CalendarPeriod", 30);
        file.EndKey();
        file.bytes.insert(file.bytes.end(), {static_cast<std::uint8_t>(c.end), 0, 0, 0});
        const auto size = static_cast<DWORD>(file.bytes.size());
        ASSERT_TRUE(WriteBytes(kFile, file.bytes.data(), size));
        const HWND question = Ask(program);
        EXPECT_TRUE(BoxSays(question, kQuestion + c.said)) << c.path << c.end;
        PostMessageW(question, WM_COMMAND, IDNO, 0);
        EXPECT_TRUE(Until([&] { return !IsWindow(question); }));
    }
    EXPECT_EQ(Stored(L"CalendarPeriod"), std::nullopt);
}

TEST_F(Import, ClosingEndsWhatAsks) {
    Put(L"CalendarPeriod", 30);
    ASSERT_TRUE(MoveToFile());
    const std::pair<const char*, std::function<HWND(const Program&)>> cases[] = {
        {"export", [](const Program& program) { return Choose(program, IDM_EXPORT, L"Save As"); }},
        {"import", [](const Program& program) { return Choose(program, IDM_IMPORT, L"Open"); }},
        {"question", Ask},
    };
    for (const auto& [what, open] : cases) {
        Program program;
        EXPECT_TRUE(open(program)) << what;
        EXPECT_EQ(program.CloseAndWait(), 0u) << what;
    }
    EXPECT_EQ(Stored(L"CalendarPeriod"), std::nullopt) << "imported unasked";
}

}  // namespace
