// Drives the real program from outside, as a user would: by the messages that taps and keys become.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/windows.h"

namespace ui {

// The running program. Ends it when the test leaves it behind.
class Program {
  public:
    explicit Program(const std::wstring& arguments = L"");
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // The main window once it shows; null when it does not come.
    HWND Main() const;
    // A sheet or dialog of the program with this title once it shows; null when it does not come.
    HWND Sheet(const std::wstring& title) const;
    // Confirms the message box, once it shows; false when none comes.
    bool Dismiss() const;
    // The titles of the sheets and dialogs that show now.
    std::vector<std::wstring> OpenSheets() const;
    // Opens an entry of the main screen at a page.
    void Open(int entry, int page) const;
    bool IsRunning() const;
    DWORD id() const { return id_; }
    // Ends the process where it stands.
    void Kill() const { TerminateProcess(process_, 99); }
    // Closes the main window.
    void Close() const;
    // Closes it and waits; no value when it does not end.
    std::optional<DWORD> CloseAndWait() const;
    std::optional<DWORD> WaitForExit() const;

  private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

// A sheet's current page, once it shows and has `control`, if not 0; null when it does not come.
HWND Page(HWND sheet, int control);
void TurnTo(HWND sheet, int page);
std::wstring TabText(HWND sheet, int page);
// Confirm or cancel, and wait until the sheet is gone.
bool Ok(HWND sheet);
bool Cancel(HWND sheet);

std::wstring Text(HWND window);
std::wstring Text(HWND page, int control);
bool IsChecked(HWND page, int control);
bool IsEnabled(HWND page, int control);
void Click(HWND page, int control);
void Select(HWND page, int control, int index);
void Select(HWND page, int control, const wchar_t* text);
// Tells a window of keys that are pressed in it.
void SendKeys(HWND window, std::initializer_list<WPARAM> keys);
// With the keys alone: goes on to a control by Tab, from wherever the focus is, and clicks its box
// or chooses an entry of its list. False when the focus does not come there or nothing changes.
bool ClickByKeys(HWND page, int control);
bool SelectByKeys(HWND page, int control, int index);
// The window of the same thread that has the focus, and whether it is a control of the page.
HWND FocusOf(HWND window);
bool FocusIs(HWND page, int control);
// Posts keys that are pressed to a window.
void PostKeys(HWND window, std::initializer_list<WPARAM> keys);
// Chooses from the icon chooser's menu of sources by the direction keys; false when it does not
// open or close.
bool PickSource(HWND chooser, std::initializer_list<WPARAM> keys);
// As F1 does while the window has the focus.
void AskForHelp(HWND window);
// The text of the selected entry; empty when none is.
std::wstring Selected(HWND page, int control);
// Of each row of a list with check boxes, whether it is ticked: "x-x".
std::wstring Ticks(HWND list);
std::wstring MenuBarText(HWND parent, int index);
// Opens a menu of the menu bar by a tap and presses a mnemonic in it. Other processes' menus cannot
// be read.
bool PressInMenu(HWND parent, int index, wchar_t key);

// The plug-in's window, which notes the update messages it receives.
class Plugin {
  public:
    Plugin();
    ~Plugin();
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    struct Update {
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Update&) const = default;
    };
    // What has arrived by now.
    std::vector<Update> Updates();

  private:
    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    HWND hwnd_ = nullptr;
    std::vector<Update> updates_;
};

}  // namespace ui
