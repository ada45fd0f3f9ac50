#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "appearance/categories/icon_library.h"
#include "appearance/categories/icon_sources.h"
#include "appearance/categories/icons_list_control.h"
#include "controls/full_screen_dialog.h"

// Lets the user choose an icon for a category: from the diary's icon set, from those of other
// programs, or from a folder that the user browses to.
class IconChooser : public FullScreenDialog {
  public:
    explicit IconChooser(std::wstring category);

    // The chosen icon's file once the dialog was confirmed; empty when none was selected.
    const std::wstring& path() const { return path_; }

  protected:
    bool OnInitDialog() override;
    bool OnInit() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    unsigned MenuBarId() const override;
    std::wstring BandTitle() const override;
    HWND FillingControl() const override { return list_.hwnd(); }

  private:
    // Loads folders in place of what the list shows.
    void Load(const std::vector<std::wstring>& folders);
    void ChooseSource();
    void Browse();
    int TrackSourceMenu() const;
    std::wstring MenuText(const std::wstring& folder) const;

    std::wstring category_;
    std::wstring path_;
    std::unique_ptr<IconSources> sources_;
    bool foldersAreKnown_ = false;  // those that the registry has
    IconLibrary library_;
    IconsListControl list_;
};
