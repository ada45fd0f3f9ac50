// Goes through the program as a user would, from page to page and dialog to dialog, on each of some
// screens.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

struct View {
    std::string name;  // as the help's anchors have it
    HWND window;       // what fills the screen
    HWND dialog;       // that, or the page in it
    SIZE screen;
};

class Walker {
  public:
    // Starts the program in a thread of its own, on the first of the screens.
    explicit Walker(std::vector<SIZE> screens);
    // Ends it, with all that is open.
    ~Walker();
    Walker(const Walker&) = delete;
    Walker& operator=(const Walker&) = delete;

    // Opens all that there is and shows each once it stands still. False when something does not
    // open.
    bool Walk(const std::function<void(const View&)>& visit);

    // Waits until a condition holds; false when it does not come.
    static bool Until(const std::function<bool()>& condition);

  private:
    enum class Popup { kNone, kColors, kSources };

    bool Show(const std::string& name, HWND window, HWND dialog, Popup popup = Popup::kNone);
    bool ShowPages(std::size_t entry);
    bool ShowLayouts(HWND page);
    bool ShowCategories();
    bool ShowChooser(HWND categories);
    // The dialog over `under`, once what opens it has been posted; null when it does not come.
    HWND Opened(HWND under) const;
    HWND Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam = 0) const;
    bool Close(HWND dialog) const;
    void Settle() const;
    HWND OpenPopup(HWND dialog, Popup popup) const;

    std::vector<SIZE> screens_;
    HANDLE thread_ = nullptr;
    DWORD threadId_ = 0;
    HWND main_ = nullptr;
    const std::function<void(const View&)>* visit_ = nullptr;
};
