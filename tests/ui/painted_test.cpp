// What pages paint, by a look at the screen.
#include <commctrl.h>

#include <map>
#include <set>

#include "resources/ids.h"
#include "tests/ui/device.h"
#include "tests/ui/page_table.h"
#include "tests/ui/picture.h"

namespace {

using namespace ui;

const std::wstring kSkin = std::wstring(kInstallFolder) + L"Skins\\Marked\\";

// The files of the test's skin, each picture of which has one colour, and an edge at the right and
// below through which shows what is behind it.
enum Kind { kIcons, kScrollBar, kTabs };
COLORREF ColorOf(Kind kind, int picture) { return RGB(0xA0 + kind, 0x30 + 4 * picture, 0x77); }

// A bitmap that is stored from the top down; its rows need no padding.
void WriteBitmap(const std::wstring& path, int width, int height,
                 const std::function<COLORREF(int x, int y)>& colorAt) {
    BITMAPFILEHEADER file = {0x4D42, 0, 0, 0, 54};
    BITMAPINFOHEADER info = {sizeof info, width, -height, 1, 24};
    std::string bytes(reinterpret_cast<const char*>(&file), sizeof file);
    bytes.append(reinterpret_cast<const char*>(&info), sizeof info);
    for (int i = 0; i < width * height; ++i) {
        const COLORREF color = colorAt(i % width, i / width);
        for (const int shift : {16, 8, 0}) bytes += static_cast<char>(color >> shift);
    }
    ASSERT_TRUE(WriteBytes(path, bytes.data(), bytes.size()));
}

class Painted : public DeviceTest {
  protected:
    // Upright, where every preview shows without scrolling.
    void SetUp() override {
        DeviceTest::SetUp();
        ASSERT_TRUE(Control(L"screen 240x320"));
        const auto strip = [](Kind kind, int width, int height) {
            return [=](int x, int y) -> COLORREF {
                const int row = y % (height + 1);
                if (row == height) return RGB(255, 0, 255);
                if (x < width) return ColorOf(kind, y / (height + 1));
                return row < height - 3 && x < 2 * width - 1 ? RGB(255, 255, 255) : RGB(0, 0, 0);
            };
        };
        CreateDirectoryW(kSkin.c_str(), nullptr);
        WriteBitmap(kSkin + L"icons.bmp", 32, 40 * 17, strip(kIcons, 16, 16));
        WriteBitmap(kSkin + L"scrollbar.bmp", 24, 4 * 14, strip(kScrollBar, 12, 13));
        WriteBitmap(kSkin + L"tab_icons_16.bmp", 6 * 16, 16,
                    [](int x, int) { return ColorOf(kTabs, x / 16); });
        OpenProductKey().WriteString(L"SkinName", L"Marked");
    }
    void TearDown() override {
        for (const wchar_t* file : {L"icons.bmp", L"scrollbar.bmp", L"tab_icons_16.bmp"}) {
            DeleteFileW((kSkin + file).c_str());
        }
        RemoveDirectoryW(kSkin.c_str());
        Control(L"screen 320x240");
    }

    // A page's preview or other picture, which comes into sight.
    static HWND Reach(HWND page, int control) {
        const HWND window = GetDlgItem(page, control);
        if (RectOf(window).bottom > RectOf(page).bottom) {
            SendMessageW(page, WM_VSCROLL, SB_BOTTOM, 0);
        }
        EXPECT_TRUE(RectOf(window).bottom <= RectOf(page).bottom &&
                    RectOf(window).top >= RectOf(page).top + 24)
            << control;
        return window;
    }
    // The numbers of a file's pictures that a window shows, from the top and the left.
    static std::string PicturesIn(HWND window, Kind kind) {
        std::map<COLORREF, int> numbers;
        for (int i = 0; i < 40; ++i) numbers[ColorOf(kind, i)] = i;
        const Picture shown(window);
        const auto at = [&](int x, int y) {
            const auto found = x < 0 || y < 0 ? numbers.end() : numbers.find(shown.At(x, y));
            return found == numbers.end() ? -1 : found->second;
        };
        std::string list;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const int number = at(x, y);  // A corner of a picture, if neither before has it.
                if (number < 0 || number == at(x - 1, y) || number == at(x, y - 1)) continue;
                list += (list.empty() ? "" : " ") + std::to_string(number);
            }
        }
        return list;
    }
};

TEST_F(Painted, EachPictureIsTheRightOneAndStandsAtItsPlace) {
    std::string all = "0";
    for (int i = 1; i < 40; ++i) all += " " + std::to_string(i);
    constexpr int kNothing = 0, kPage = 0, kPreview = IDC_TITLE_PREVIEW;
    struct Case {
        int entry, page;
        int control, click;  // what is looked at, and what is clicked before
        std::string pictures;
        Kind kind = kIcons;
    };
    const Case cases[] = {
        {0, 4, IDC_STRIPE_PREVIEW, kNothing, "38 0"},
        {0, 4, IDC_STRIPE_PREVIEW, IDC_STRIPE_HIDE_EMPTY, "38 0 38"},
        {0, 4, IDC_STRIPE_PREVIEW, IDC_STRIPE_COLLAPSE_ICON, "0"},
        {0, 6, kPage, kNothing, all + " 38 0 3 2 10 8 18 4 25"},
        {0, 6, kPage, kNothing, "0 2 3 1 0 2 3 1", kScrollBar},
        {0, 6, kPage, kNothing, "0 1 2 3 4 5", kTabs},
        {1, 3, kPreview, kNothing, "0 8 2 3 4 0 8"},
        {2, 1, kPreview, kNothing, "38 10 6 8 4 3 11 6 8 4 3"},
        {2, 1, kPreview, IDC_TASK_CHECKBOX, "38 6 8 4 3 6 8 4 3"},
        {2, 2, kPage, kNothing, "4 2 3 6 7 8 10 6 8 4 3"},
        {2, 2, kPage, IDC_FLAG_NOTE, "4 2 3 6 7 8 10 6 4 3"},
        {2, 2, kPage, IDC_FLAG_REMINDER, "4 2 3 6 7 8 10 6 8 4 3 2"},
        {3, 1, kPreview, kNothing, "38 13 9 13 9 14 9"},
        {3, 2, kPage, kNothing, "4 8 13 9"},
        {4, 0, IDC_NOTES_PREVIEW, kNothing, "38 22 8"},
    };
    {
        CSettingsKey key = OpenProductKey();
        key.WriteString(L"CurAppPattern", L"n3rqs");
        key.WriteString(L"CurTaskPattern", L"pn1sq");
        key.WriteString(L"CurContactPattern", L"1c");
    }
    const Program program;
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.entry) + ":" + std::to_string(c.page) + " " +
                     std::to_string(c.control) + " after " + std::to_string(c.click));
        const HWND page = OpenPage(program, c.entry, c.page, c.control);
        ASSERT_TRUE(page);
        if (c.click) Click(page, c.click);
        std::string pictures;
        Until([&] {
            pictures = PicturesIn(c.control ? Reach(page, c.control) : page, c.kind);
            return pictures == c.pictures;
        });
        ASSERT_EQ(pictures, c.pictures);
        ASSERT_TRUE(Cancel(sheet_));
    }
}

TEST_F(Painted, PreviewsFollowWhatIsSet) {
    struct Case {
        int entry, page, preview;
        std::vector<int> steps;  // each a control, and what is selected or kClick
    };
    const Case cases[] = {
        {0, 3, IDC_FONT_PREVIEW, {IDC_FONT_SIZE, 8, IDC_FONT_FACE, 0}},
        {0,
         4,
         IDC_STRIPE_PREVIEW,
         {IDC_STRIPE_STYLE, 0, IDC_STRIPE_STYLE, 1, IDC_STRIPE_STYLE, 3, IDC_STRIPE_COUNTER, kClick,
          IDC_STRIPE_COLLAPSE_ICON, kClick, IDC_STRIPE_HIDE_EMPTY, kClick}},
        {0, 6, IDC_SKIN_ICONS, {IDC_SKIN, 0}},
        {0, 6, IDC_SKIN_SCROLL_BAR, {IDC_SKIN, 1}},
        {0, 6, IDC_SKIN_SAMPLE, {IDC_SKIN, 0}},
        {1, 3, IDC_TITLE_PREVIEW, {IDC_TIME_SPAN_NEW_STYLE, kClick, IDC_APP_START_ONLY,    kClick,
                                   IDC_APP_LOCATION,        kClick, IDC_APP_STATUS_BAR,    kClick,
                                   IDC_APP_INDENT,          kClick, IDC_APP_SUBJECT_STYLE, 0,
                                   IDC_APP_SUBJECT_STYLE,   1,      IDC_APP_SUBJECT_STYLE, 2,
                                   IDC_TITLE_MODE,          0,      IDC_TITLE_LIST,        1,
                                   IDC_TITLE_LIST,          2}},
        {2, 1, IDC_TITLE_PREVIEW, {IDC_TASK_INDENT, kClick, IDC_TASK_CHECKBOX, kClick}},
        {3,
         1,
         IDC_TITLE_PREVIEW,
         {IDC_CONTACT_DISPLAY, 0, IDC_CONTACT_DISPLAY, 2, IDC_CONTACT_DISPLAY, 3,
          IDC_CONTACT_INDENT, kClick, IDC_CONTACT_ADDRESS, 1, IDC_CONTACT_ADDRESS, 2}},
        {4,
         0,
         IDC_NOTES_PREVIEW,
         {IDC_NOTES_SIZE, kClick, IDC_NOTES_TIME, kClick, IDC_NOTES_INDENT, kClick,
          IDC_NOTES_GROUP_BY, 0, IDC_NOTES_GROUP_BY, 2}},
    };
    Put(L"UseSystem", 0);
    const Program program;
    for (const Case& c : cases) {
        const HWND page = OpenPage(program, c.entry, c.page, c.preview);
        ASSERT_TRUE(page);
        for (std::size_t i = 0; i < c.steps.size(); i += 2) {
            const int control = c.steps[i], select = c.steps[i + 1];
            const Picture before = Picture::Settled(Reach(page, c.preview));
            if (select == kClick)
                Click(page, control);
            else
                Select(page, control, select);
            ASSERT_TRUE(Until([&] {
                return !(Picture::Settled(Reach(page, c.preview)) == before);
            })) << c.entry
                << ":" << c.page << " " << control << "=" << select;
        }
        ASSERT_TRUE(Cancel(sheet_));
    }
}

TEST_F(Painted, CategoriesHaveTheirColorsAndIcons) {
    // Of the palette, but for the icon's.
    constexpr COLORREF kFirst = 0x2068FF, kSecond = 0x32CD32, kNone = 0x800080, kIcon = 0x335577;
    const std::wstring icon = std::wstring(kInstallFolder) + L"Icons\\Business.bmp";
    CreateDirectoryW(icon.substr(0, icon.rfind(L'\\')).c_str(), nullptr);
    WriteBitmap(icon, 12, 12, [](int, int) { return kIcon; });
    CSettingsKey colors = OpenProductKey(L"Colors");
    colors.WriteDword(L"Business", 0x64000000 | kFirst);
    colors.WriteDword(L"Personal", 0x64000000 | kSecond);
    colors.WriteDword(L"Holiday", 0xE4000000 | kNone);
    OpenProductKey(L"IconSets")
        .WriteString(L"1", (std::wstring(kInstallFolder) + L"Icons").c_str());
    Put(L"IconSetID", 2);  // that folder
    const Program program(L"-P7:0");
    const HWND dialog = program.Sheet(L"Category Icons");
    ASSERT_TRUE(dialog);
    const HWND list = GetDlgItem(dialog, IDC_CATEGORY_LIST);
    const HWND button = GetDlgItem(dialog, IDC_CATEGORY_COLOR);
    const Picture shown = Picture::Settled(list);
    constexpr int kMark = 10 * 14;  // pixels
    const int row = shown.RowOf(kFirst), next = shown.RowOf(kSecond);
    EXPECT_TRUE(row >= 0 && row < next && shown.RowOf(kIcon) < next) << row << " " << next;
    EXPECT_EQ(shown.Count(kFirst), kMark);
    EXPECT_EQ(shown.Count(kSecond), kMark);
    EXPECT_EQ(shown.Count(kNone), 0);
    EXPECT_EQ(shown.Count(kIcon), 12 * 12);
    EXPECT_GT(Picture::Settled(button).Count(kFirst), kMark);
    SendKeys(list, {VK_DOWN});
    EXPECT_TRUE(Until([&] { return Picture(button).Count(kSecond) > kMark; }));
    // The grid has a frame around that cell alone.
    PostMessageW(dialog, WM_COMMAND, IDC_CATEGORY_COLOR, reinterpret_cast<LPARAM>(button));
    const auto grid = [] { return FindWindowW(L"LumDiaryColorsListWnd.0", nullptr); };
    EXPECT_TRUE(Until([&] {
        if (!IsWindowVisible(grid())) return false;
        const Picture cells(grid());
        return cells.Count(kSecond) == 100 && cells.Count(kNone) == 100 &&
               cells.Count(0x7F0000) == 4 * 17;
    }));
    PostMessageW(grid(), WM_CLOSE, 0, 0);
    PostMessageW(dialog, WM_COMMAND, IDC_CATEGORY_CHOOSE, 0);
    const HWND chooser = program.Sheet(L"Choose icon");
    EXPECT_TRUE(
        Until([&] { return Picture(GetDlgItem(chooser, IDC_ICON_LIST)).Count(kIcon) == 12 * 12; }));
    DeleteFileW(icon.c_str());
}

TEST_F(Painted, ColorsAndLinesSayWhatIsMeant) {
    CSettingsKey today(HKEY_CURRENT_USER, L"Software\\Microsoft\\Today", true, false);
    const std::wstring wallpaper = today.ReadString(L"Wallpaper");
    today.DeleteValue(L"Wallpaper");
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    struct Case {
        int entry, page, preview, style;
        COLORREF color;
        int pixels;  // at least
    };
    const Case cases[] = {
        {0, 4, IDC_STRIPE_PREVIEW, 0, highlight, 0},
        {0, 4, IDC_STRIPE_PREVIEW, 1, highlight, 200},
        {0, 4, IDC_STRIPE_PREVIEW, 3, highlight, 2000},
        {1, 3, IDC_TITLE_PREVIEW, -1, highlight, 1000},             // selected
        {1, 3, IDC_TITLE_PREVIEW, -1, 0xDC4040, 3 * 15},            // busy
        {1, 3, IDC_TITLE_PREVIEW, -1, 0xF7CBA5, 3 * 7},             // tentative, half of it
        {1, 3, IDC_TITLE_PREVIEW, -1, 0x0000FF, 3 * 7},             // in conflict
        {1, 3, IDC_TITLE_PREVIEW, -1, RGB(0xFF, 0xF5, 0xC0), 500},  // its category's
    };
    const Program program;
    for (const Case& c : cases) {
        const HWND page = OpenPage(program, c.entry, c.page, c.preview);
        ASSERT_TRUE(page);
        if (c.style >= 0) Select(page, IDC_STRIPE_STYLE, c.style);
        int pixels = 0;
        EXPECT_TRUE(Until([&] {
            pixels = Picture::Settled(Reach(page, c.preview)).Count(c.color);
            return c.pixels ? pixels >= c.pixels : pixels == 0;
        })) << c.entry
            << " " << c.style << " " << std::hex << c.color << ": " << std::dec << pixels;
        ASSERT_TRUE(Cancel(sheet_));
    }
    // A completed task is struck out.
    for (const auto& [number, isStruck] : {std::pair(1, true), {2, false}}) {
        const HWND page = OpenPage(program, 2, number, IDC_TITLE_PREVIEW);
        EXPECT_TRUE(Until([&] {
            const Picture shown = Picture::Settled(Reach(page, IDC_TITLE_PREVIEW));
            return (shown.LongestLine(GetSysColor(COLOR_WINDOWTEXT)) > 40) == isStruck;
        })) << number;
        ASSERT_TRUE(Cancel(sheet_));
    }
    today.WriteString(L"Wallpaper", wallpaper.c_str());
}

TEST_F(Painted, EachEntryOfTheMainScreenHasAPictureOfItsOwn) {
    const Program program;
    const HWND list = FindWindowExW(program.Main(), nullptr, L"SysListView32", nullptr);
    const Picture shown = Picture::Settled(list);
    std::set<std::vector<COLORREF>> pictures;
    for (int i = 0; i < 8; ++i) pictures.insert(shown.Part(i % 3 * 80 + 24, i / 3 * 76, 32, 36));
    EXPECT_EQ(pictures.size(), 8u);
}

TEST_F(Painted, FoldersHaveTheirKindsAndTicks) {
    // Without the mail program's own pictures those of the skin stand in.
    constexpr wchar_t kLibrary[] = L"\\Windows\\outres.dll", kAside[] = L"\\Windows\\aside.dll";
    ASSERT_TRUE(MoveFileW(kLibrary, kAside));
    const Program program;
    const HWND page = OpenPage(program, 5, 1, IDC_MAIL_FOLDERS);
    const HWND tree = GetDlgItem(page, IDC_MAIL_FOLDERS);
    ASSERT_TRUE(tree);
    EXPECT_TRUE(MoveFileW(kAside, kLibrary));
    SendKeys(tree, {VK_HOME, VK_RIGHT, VK_DOWN});
    std::string kinds;  // deleted, inbox, outbox, a folder, sent
    EXPECT_TRUE(Until([&] {
        kinds = PicturesIn(tree, kIcons);
        return kinds == "17 35 31 32 30 33 17";
    })) << kinds;
    const auto dark = [tree] { return Picture(tree).Count(GetSysColor(COLOR_WINDOWTEXT)); };
    Picture::Settled(tree);
    const int without = dark();
    SendKeys(tree, {VK_SPACE});
    EXPECT_TRUE(Until([&] { return dark() > without; }));
    SendKeys(tree, {VK_SPACE});
    EXPECT_TRUE(Until([&] { return dark() == without; }));
}

}  // namespace
