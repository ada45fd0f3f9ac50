#pragma once

#include <windows.h>

#include <aygshell.h>

#include "app/notify_plugin.h"
#include "base/owned_handle.h"
#include "controls/window.h"

// The window class of the main window; also the name of the mutex of the one running instance.
inline constexpr const wchar_t kMainWindowClass[] = L"DiarySettings_MainWnd";

// Sent to the main window to open an entry's sheet: wParam the entry 0..7, lParam the page.
inline constexpr UINT WM_OPEN_ENTRY = WM_USER + 1231;

// The main window: one large icon for each entry. Tells the plug-in when it closes after a change.
class MainFrame : public Window {
  public:
    // Creates the window over `rect`; false when that fails.
    bool Create(const RECT& rect);

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    bool OnCreate();
    void OnDestroy();
    void OnClose();
    void CreateListView();
    void FillListView();
    void LayOut(SIZE client);
    bool OnCommand(int id);
    void OnInitMenuPopup(HMENU menu);
    std::optional<LRESULT> OnNotify(const NMHDR& header);
    void Open(WPARAM entry, LPARAM page);
    void ShowAboutBox();

    HWND listView_ = nullptr;
    OwnedImageList imageList_;
    OwnedFont listFont_;
    HFONT savedListFont_ = nullptr;
    bool settingsChanged_ = false;
    bool closing_ = false;  // told to close while a sheet or dialog is open
    TabSettings startTabs_;
    UINT updateMessage_ = 0;
    SHACTIVATEINFO activateInfo_ = {};
};
