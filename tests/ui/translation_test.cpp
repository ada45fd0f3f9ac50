// The language file, as a translator meets it.
#include <set>
#include <sstream>

#include "resources/ids.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

class Translation : public DeviceTest {
  protected:
    static std::wstring ReadLanguageFile() {
        const std::string bytes = ReadBytes(kLanguageFile);
        const void* const units = bytes.data();
        return {static_cast<const wchar_t*>(units), bytes.size() / sizeof(wchar_t)};
    }
};

TEST_F(Translation, AppearsInTitlesTabsTextsListsAndBars) {
    ASSERT_TRUE(
        WriteLanguageFile(L"Lum Diary Options|Tagebuch-Einstellungen\r\n"
                          L"Settings|Ändern\r\nHelp|Hilfe\r\nExit|&Beenden\r\n"
                          L"Task options|Aufgaben\r\nGeneral|Allgemein\r\n"
                          L"Completed tasks|Erledigte Aufgaben\r\n"
                          L"Whole subject|Ganzer Betreff\r\nOne line|Eine Zeile\r\n"
                          L"Eine Zeile|Translated twice\r\n"));
    Program program(L"-P2:0");
    EXPECT_EQ(Text(program.Main()), L"Tagebuch-Einstellungen");
    EXPECT_EQ(MenuBarText(program.Main(), 0), L"Ändern");
    EXPECT_EQ(MenuBarText(program.Main(), 1), L"Hilfe");

    const HWND sheet = program.Sheet(L"Aufgaben");
    const HWND page = Page(sheet, IDC_TASK_SUBJECT);
    ASSERT_TRUE(page);
    EXPECT_TRUE(Until([&] { return TabText(sheet, 0) == L"Allgemein"; }));
    EXPECT_EQ(Text(page, IDC_TASKS_COMPLETED), L"Erledigte Aufgaben");
    EXPECT_EQ(Text(page, IDC_TASKS_ACTIVE), L"Active tasks");
    EXPECT_EQ(Selected(page, IDC_TASK_SUBJECT), L"Eine Zeile");
    Select(page, IDC_TASK_SUBJECT, 0);
    EXPECT_EQ(Selected(page, IDC_TASK_SUBJECT), L"Ganzer Betreff");
    ASSERT_TRUE(Ok(sheet));
    EXPECT_EQ(StoredText(L"CurTaskPattern"), L"p2nqrsc");
    EXPECT_TRUE(PressInMenu(program.Main(), 0, L'b'));
    EXPECT_EQ(program.WaitForExit(), 0u) << "\"Exit\" has no b to press";
}

// Names and numbers are no texts of the program's, whatever a line of the file says; and a text is
// no format.
TEST_F(Translation, LeavesNamesAndNumbersAlone) {
    ASSERT_TRUE(WriteLanguageFile(
        L"Tahoma|Falsch\r\n14|vierzehn\r\n12|zw\xF6lf\r\n120|hoch\r\nMine|Meine\r\n"
        L"The height goes from %d to %d pixels.|%s bis %n%s\r\n"));
    Put(L"UseSystem", 0);
    Put(L"AutoSizeAdjust", 0);
    Put(L"TotalHeightL", 120);
    Put(L"CalendarPeriod", 14);
    OpenProductKey(L"Layouts").WriteString(L"Mine", L"labc(abc)");
    OpenProductKey().WriteString(L"Contacts_layouts", L"Mine,Latin");
    Program program;
    HWND page = OpenPage(program, 0, 3, IDC_FONT_FACE);
    ASSERT_TRUE(page);
    EXPECT_EQ(Selected(page, IDC_FONT_FACE), L"Tahoma");
    EXPECT_EQ(Selected(page, IDC_FONT_SIZE), L"zw\xF6lf");
    TurnTo(sheet_, 0);
    page = Page(sheet_, IDC_HEIGHT);
    ASSERT_TRUE(page);
    EXPECT_EQ(Text(page, IDC_HEIGHT), L"120");
    SetDlgItemTextW(page, IDC_HEIGHT, L"999");
    PostMessageW(sheet_, WM_COMMAND, IDOK, 0);
    const HWND box = program.Sheet(L"Lum Diary Options");
    ASSERT_TRUE(box);
    EXPECT_TRUE(Until([&] { return BoxSays(box, L"%s bis %n%s"); }));
    ASSERT_TRUE(Ok(box));
    SetDlgItemTextW(page, IDC_HEIGHT, L"130");
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(StoredText(L"FontName"), L"Tahoma");
    EXPECT_EQ(Stored(L"FontHeight"), 12u);
    EXPECT_EQ(Selected(OpenPage(program, 1, 0, IDC_CALENDAR_PERIOD), IDC_CALENDAR_PERIOD),
              L"vierzehn");
    ASSERT_TRUE(Ok(sheet_));
    EXPECT_EQ(Stored(L"CalendarPeriod"), 14u);
    EXPECT_EQ(Selected(OpenPage(program, 3, 0, IDC_CONTACT_LAYOUT), IDC_CONTACT_LAYOUT), L"Mine");
}

TEST_F(Translation, MissingFileIsWrittenWithEveryText) {
    {
        Program program;
        ASSERT_TRUE(program.Main());
        EXPECT_EQ(program.CloseAndWait(), 0u);
    }
    const std::wstring text = ReadLanguageFile();
    std::set<std::wstring> lines;
    std::wistringstream stream(text);
    for (std::wstring line; std::getline(stream, line);) {
        EXPECT_TRUE(lines.empty() || line.ends_with(L"|\r")) << testing::PrintToString(line);
        EXPECT_TRUE(lines.insert(line.substr(0, line.size() - 1)).second)
            << testing::PrintToString(line);
    }
    EXPECT_TRUE(text.starts_with(L"\xFEFF$$$$$$$$ NEW FILE $$$$$$$\r\nAbout|\r\n"));
    // A caption, a control, a list of the template, a menu, an item of it, strings; line feeds
    // escaped.
    for (const wchar_t* expected :
         {L"Contents|", L"Overdue tasks|", L"First full week|", L"Settings|", L"Exit|",
          L"Calendar options|", L"4 hr|", L"Deleted Items|"}) {
        EXPECT_TRUE(lines.contains(expected)) << testing::PrintToString(expected);
    }
    EXPECT_NE(text.find(L"Today screen.\\n\\nTap an entry"), std::wstring::npos);

    // Read back, it translates nothing, and a second start leaves it alone.
    Program again(L"-P2:0");
    EXPECT_TRUE(again.Sheet(L"Task options"));
    EXPECT_EQ(again.CloseAndWait(), 0u);
    EXPECT_EQ(ReadLanguageFile(), text);
}

TEST_F(Translation, PlaceWhereNoFileCanBe) {
    ASSERT_TRUE(CreateDirectoryW(kLanguageFile, nullptr));
    Program program(L"-P2:0");
    EXPECT_TRUE(program.Sheet(L"Task options"));
    EXPECT_EQ(program.CloseAndWait(), 0u);
    EXPECT_TRUE(RemoveDirectoryW(kLanguageFile));
}

TEST_F(Translation, OddFilesDoNoHarm) {
    const std::string files[] = {
        "",
        std::string("\xFF\xFEG\0e\0n", 7),
        std::string("Task options|A\0Task options|B", 29),
        std::string(5'000'000, '|'),
    };
    for (const std::string& file : files) {
        ASSERT_TRUE(WriteBytes(kLanguageFile, file.data(), file.size()));
        Program program(L"-P2:0");
        const bool cut = file.find("|A") != std::string::npos;
        EXPECT_TRUE(program.Sheet(cut ? L"A" : L"Task options")) << file.size();
        EXPECT_EQ(program.CloseAndWait(), 0u);
        EXPECT_TRUE(ReadBytes(kLanguageFile) == file) << "the file was changed";
    }
}

}  // namespace
