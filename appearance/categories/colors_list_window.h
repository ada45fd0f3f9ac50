#pragma once

#include <windows.h>

#include "appearance/categories/color_grid.h"
#include "base/owned_handle.h"
#include "controls/window.h"

// Draws a box of a colour; of kNoColor a white one, crossed.
void DrawColorCell(HDC dc, const GridArea& area, COLORREF color, HPEN line);

// The pop-up grid of colours of a colour button. It leaves the focus where it is: while it is open,
// the keys go to it.
class CColorsListWindow : public Window {
  public:
    CColorsListWindow();
    ~CColorsListWindow() override;

    // Creates the window, hidden, for a button; false when that fails.
    bool Create(HWND button);
    // Opens the grid at its button with a cell selected (kNoCell for none), until a cell is
    // confirmed (true), or the user taps elsewhere, presses Escape or turns to another window.
    bool Run(const GridCell& selected);
    // Ends Run without a choice.
    void Dismiss();

    GridCell selected() const { return selected_; }

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    enum class State { kClosed, kOpen, kConfirmed, kDismissed };

    GridPoint Place() const;
    void MoveToPlace() const;
    void OnKey(WPARAM key);
    void OnStylusDown(int x, int y);
    void OnPaint();
    void Paint(HDC dc) const;
    void Leave(State state);
    void Invalidate(const GridCell& cell) const;

    ColorGrid grid_;
    OwnedPen pen_;  // around the cells
    HWND button_ = nullptr;
    GridCell selected_ = kNoCell;
    State state_ = State::kClosed;
};
