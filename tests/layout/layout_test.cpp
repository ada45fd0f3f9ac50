// DIARY_SCREENS names the screens, as in "240x320 320x240", all of the density of the device.
// The language is the device's; DIARY_PSEUDO asks for one with each of its texts in brackets.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <cwctype>
#include <set>
#include <sstream>

#include "tests/layout/layout_rules.h"
#include "tests/layout/seen_controls.h"
#include "tools/walk/walker.h"

namespace layout {
namespace {

std::vector<SIZE> Screens() {
    const char* const names = std::getenv("DIARY_SCREENS");
    std::istringstream words(names ? names : "240x320 320x240");
    std::vector<SIZE> screens;
    SIZE size = {};
    char by = 0;
    while (words >> size.cx >> by >> size.cy) screens.push_back(size);
    return screens;
}

int Dpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

constexpr wchar_t kLanguageFile[] = L"\\Program Files\\Lum Diary\\LumDiary_en.txt";

bool IsPseudoLanguage() { return std::getenv("DIARY_PSEUDO"); }

std::string Utf8(const std::wstring& text) {
    char bytes[1024] = {};
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes, sizeof bytes - 1, nullptr, nullptr);
    return bytes;
}

// Runs a program of this folder to its end; one with a window is closed.
bool RunBeside(const wchar_t* program, std::wstring arguments, bool wait) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    wcscpy(wcsrchr(path, L'\\') + 1, program);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path, arguments.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        nullptr, &process)) {
        return false;
    }
    if (!wait) {
        HWND window = nullptr;
        Walker::Until([&] { return (window = FindWindowW(L"DiarySettings_MainWnd", nullptr)); });
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
    DWORD code = 1;
    WaitForSingleObject(process.hProcess, 20'000);
    GetExitCodeProcess(process.hProcess, &code);
    if (code) ADD_FAILURE() << Utf8(program) << " ended with " << code;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code == 0;
}

// Made of the template that the program writes where it finds no language.
bool WritePseudoLanguage() {
    DeleteFileW(kLanguageFile);
    const std::wstring file = kLanguageFile;
    return RunBeside(L"DiarySettings.exe", L"", false) &&
           RunBeside(L"diarykit.exe",
                     L"language pseudo \"" + file + L"\" -o \"" + file + L".made\"", true) &&
           CopyFileW((file + L".made").c_str(), kLanguageFile, FALSE);
}

// Numbers and what stands beside them need no translation.
bool NeedsTranslation(const std::wstring& text) {
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return std::iswalpha(c); });
}

TEST(Layout, NothingIsCutCoveredOrOutOfLine) {
    ASSERT_TRUE(!IsPseudoLanguage() || WritePseudoLanguage());
    Walker walker(Screens());
    std::set<std::string> untranslated;
    int views = 0;
    EXPECT_TRUE(walker.Walk([&](const View& view) {
        ++views;
        const Page page = Look(view.dialog, Dpi());
        for (const std::string& fault : FindFaults(page)) {
            ADD_FAILURE() << view.name << " at " << view.screen.cx << "x" << view.screen.cy << ": "
                          << fault;
        }
        if (!IsPseudoLanguage()) return;
        for (const std::wstring& text : ShownTexts(view.window, view.dialog)) {
            if (NeedsTranslation(text) && text.front() != L'[') {
                untranslated.insert(view.name + ": " + Utf8(text));
            }
        }
    }));
    EXPECT_GT(views, 25);
    for (const std::string& text : untranslated) ADD_FAILURE() << "not translated: " << text;
}

// Right but for one fault each.
TEST(Layout, FindsEachFault) {
    const auto label = [](int left, int top) {
        return Seen{"label", Kind::kLabel, left, top, left + 50, top + 15,
                    false,   false,        true, 40,  13};
    };
    const auto box = [](int left, int top) {
        return Seen{"box", Kind::kCheckBox, left, top, left + 80, top + 16, true,
                    true,  false,           70,   13};
    };
    const auto page = [](std::vector<Seen> controls) {
        return Page{240, 24, 240, 96, std::move(controls)};
    };
    const auto faults = [](const Page& seen) {
        std::string all;
        for (const std::string& fault : FindFaults(seen)) all += fault + "\n";
        return all;
    };
    EXPECT_EQ(faults(page({label(5, 30), box(60, 30), box(5, 50), box(5, 70), box(100, 50)})), "");

    Seen wide = box(5, 30), high = label(5, 30), low = box(5, 30);
    wide.wantedWidth = 83;
    high.labels = false;
    high.wantedHeight = 28;
    low.bottom = 44;
    EXPECT_EQ(faults(page({wide})), "cut: box, 3 px\n");
    EXPECT_EQ(faults(page({high})), "cut below: label, 13 px\n");
    EXPECT_EQ(faults(page({low})), "low: box, 1 px\n");
    EXPECT_EQ(faults(page({box(162, 30)})), "outside: box, 2 px\n");
    EXPECT_EQ(faults(page({box(5, 20)})), "outside: box, 4 px\n");
    EXPECT_EQ(faults(page({box(5, 230)})), "unreachable: box, 6 px\n");
    EXPECT_EQ(faults(page({box(5, 30), box(60, 41)})),
              "overlap: box and box, 5 px\norder: box and box, 5 px\n");
    EXPECT_EQ(faults(page({box(5, 30), box(7, 50)})), "edges: box and box, 2 px\n");
    EXPECT_EQ(faults(page({box(5, 30), box(100, 31)})), "edges: box and box, 1 px\n");
    EXPECT_EQ(faults(page({label(5, 30), box(120, 30)})), "label without field: label, 0 px\n");
    EXPECT_EQ(faults(page({label(5, 30)})), "label without field: label, 0 px\n");
    EXPECT_EQ(faults(page({box(5, 50), box(5, 30)})), "order: box and box, 36 px\n");
    EXPECT_EQ(faults(page({box(100, 30), box(5, 30)})), "order: box and box, 16 px\n");
}

}  // namespace
}  // namespace layout
