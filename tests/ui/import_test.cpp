// Settings that come from a file while the program runs.
#include "app/registry_exporter.h"
#include "resources/ids.h"
#include "settings/settings_file.h"
#include "tests/registry.h"
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
    static RegistryValues Values() {
        RegistryValues values;
        ReadValues(kProductKey, values);
        return values;
    }
};

TEST_F(Import, StoresWhatTheFileHasAndReachesWhatIsLoaded) {
    Put(L"CalendarPeriod", 30);
    OpenProductKey(L"Layouts").WriteString(L"Mine", L"labc(abc)");
    ASSERT_TRUE(MoveToFile());
    Program program;
    OpenPage(program, 3, 0, IDC_CONTACT_LAYOUT);  // Loads the layouts.
    ASSERT_TRUE(Cancel(sheet_));
    Put(L"OneClick", 2);
    RegistryValues expected = Values();
    const std::wstring key = kProductKey;
    expected[key + L"\\CalendarPeriod"] = std::string("\4\x1E\0\0\0", 5);
    ASSERT_TRUE(RunImport(program));
    EXPECT_TRUE(Values().contains(key + L"\\Layouts\\Mine"));
    expected[key + L"\\Layouts\\Mine"] = Values()[key + L"\\Layouts\\Mine"];
    EXPECT_EQ(Values(), expected);
    // The way back: what there was stays in a file, which can itself be imported.
    Put(L"OneClick", 3);
    ASSERT_TRUE(CopyFileW(kBefore, kFile, FALSE));
    ASSERT_TRUE(RunImport(program));
    EXPECT_EQ(Stored(L"OneClick"), 2u);
    // Where no new one can be made, the one there is stays.
    const std::string before = ReadBytes(kBefore);
    const OwnedKey product = OpenKey(HKEY_LOCAL_MACHINE, kProductKey);
    RegSetValueExW(product.get(), L"List", 0, REG_MULTI_SZ, nullptr, 0);
    ASSERT_TRUE(RunImport(program));
    EXPECT_TRUE(ReadBytes(kBefore) == before);
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
    for (const Case& c : {Case{kProductKey, 1, L""},
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
