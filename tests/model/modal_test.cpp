// What the stand-in device shows until it is answered: message boxes and file dialogs.
#include <windows.h>

#include <commdlg.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/windows.h"

namespace {

// What a message box looks like while it waits; a timer's procedure closes it then.
struct BoxOnScreen {
    static inline RECT box;
    static inline std::vector<RECT> parts;
    static inline int answer;

    static BOOL CALLBACK AddPart(HWND part, LPARAM) {
        if (IsWindowVisible(part)) parts.push_back(RectOf(part));
        return TRUE;
    }
    static void CALLBACK Look(HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND hwnd = FindWindowW(L"#32770", L"Box");
        if (!hwnd) return;
        KillTimer(nullptr, timer);
        box = RectOf(hwnd);
        parts.clear();
        EnumChildWindows(hwnd, AddPart, 0);
        PostMessageW(hwnd, WM_COMMAND, answer, 0);
    }
};

void CALLBACK Destroy(HWND hwnd, UINT, UINT_PTR, DWORD) { DestroyWindow(hwnd); }

bool Contains(const RECT& outer, const RECT& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

TEST(Modal, MessageBoxesFitTheScreen) {
    std::wstring lines;
    for (int i = 0; i < 60; ++i) lines += L"A line of the text\n";
    struct {
        std::wstring text;
        UINT type;
        int answer;
        std::size_t buttons;
    } const cases[] = {
        {L"Done", MB_OK, IDOK, 1},
        {L"x", MB_YESNOCANCEL, IDCANCEL, 3},
        {L"\\My Documents\\Business\\a_name_without_any_blank_in_it.dias is not there at all",
         MB_YESNO | MB_ICONQUESTION, IDNO, 2},
        {lines, MB_OKCANCEL | MB_ICONQUESTION, IDOK, 2},
    };
    for (const auto& [text, type, answer, buttons] : cases) {
        BoxOnScreen::answer = answer;
        SetTimer(nullptr, 0, 20, BoxOnScreen::Look);
        EXPECT_EQ(MessageBoxW(nullptr, text.c_str(), L"Box", type), answer);
        EXPECT_TRUE(Contains(WorkArea(), BoxOnScreen::box)) << text.substr(0, 20);
        ASSERT_GT(BoxOnScreen::parts.size(), buttons);
        for (const RECT& part : BoxOnScreen::parts) {
            EXPECT_TRUE(Contains(BoxOnScreen::box, part)) << text.substr(0, 20);
            for (const RECT& other : BoxOnScreen::parts) {
                RECT common;
                EXPECT_TRUE(&part == &other || !IntersectRect(&common, &part, &other));
            }
        }
    }
}

// A program that is told to end while it asks something must hear of it in its own loop.
TEST(Modal, LoopsHandTheEndOfTheProgramOn) {
    wchar_t path[MAX_PATH] = {};
    OPENFILENAMEW request = {};
    request.lStructSize = sizeof request;
    request.lpstrFile = path;
    request.nMaxFile = MAX_PATH;
    const std::function<bool()> modals[] = {
        [&] { return GetOpenFileNameW(&request) != FALSE; },
        [&] { return GetSaveFileNameW(&request) != FALSE; },
        [&] { return MessageBoxW(nullptr, L"", L"Box", MB_YESNO) == IDYES; },
    };
    for (const auto& modal : modals) {
        PostQuitMessage(7);
        EXPECT_FALSE(modal());
        MSG message = {};
        EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
        EXPECT_EQ(message.wParam, 7u);
    }
    // The owner of a dialog may go without an end of the program.
    request.hwndOwner = CreateWindowExW(0, L"EDIT", L"", WS_POPUP, 0, 30, 90, 90, nullptr, nullptr,
                                        nullptr, nullptr);
    SetTimer(request.hwndOwner, 1, 20, Destroy);
    EXPECT_FALSE(GetSaveFileNameW(&request));
}

}  // namespace
