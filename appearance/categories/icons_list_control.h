#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "appearance/categories/icon_grid.h"
#include "appearance/categories/icon_library.h"
#include "controls/window.h"

inline constexpr wchar_t kIconsListClass[] = L"LumDiaryIconsListCtrl.0";

// What the list tells its parent, as WM_COMMAND: the selection has changed; an icon was tapped
// twice or Enter pressed on it.
inline constexpr int kIconsListSelected = 1;
inline constexpr int kIconsListActivated = 2;

// The icons of a library by groups, which open and close at their headers. Stylus and keys select
// an icon or, with the keys, a header.
class IconsListControl : public Window {
  public:
    // Draws a group's expand mark into a square.
    using MarkPainter = std::function<void(HDC dc, const RECT& area, bool expanded)>;

    // Creates the list as a child with an id. Without a painter marks are drawn plainly.
    bool Create(HWND parent, int id, const RECT& rect, MarkPainter paintMark = {});

    // Shows a library from its top, all groups open, nothing selected. The library must stay as it
    // is until the next call (null: empty).
    void Show(const IconLibrary* library);

    // The file of the selected icon; none when none is selected.
    std::optional<std::wstring> SelectedPath() const;

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    const IconLibrary::Icon* SelectedIcon() const;
    int GroupCount() const;
    bool IsExpanded(int group) const { return expanded_[static_cast<std::size_t>(group)]; }

    void Arrange();
    void Toggle(int group);
    void Select(std::optional<IconPlace> place);
    void Activate(const IconPlace& place);
    void Notify(int code) const;

    void OnStylusDown(const GridPoint& point, bool twice);
    bool OnKey(WPARAM key);

    int Position() const;
    void OnScroll(int request);
    void ScrollTo(int position);
    void ScrollIntoView(const IconPlace& place);
    RECT OnWindow(const GridArea& area) const;
    void Invalidate(const IconPlace& place) const;

    void OnPaint();
    void Paint(HDC dc, const RECT& dirty) const;
    void PaintHeader(HDC dc, int group) const;
    // `canvas` has room for the picture.
    void PaintIcon(HDC dc, HDC canvas, const IconPlace& place) const;

    const IconLibrary* library_ = nullptr;
    IconGridMetrics metrics_ = {};  // of the library
    MarkPainter paintMark_;
    HFONT font_ = nullptr;  // the parent's
    IconGrid grid_;
    std::vector<bool> expanded_;
    std::optional<IconPlace> selected_;
};
