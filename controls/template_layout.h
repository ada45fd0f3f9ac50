#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <vector>

#include "base/dialog_template.h"
#include "controls/dialog_layout.h"

// Stands a dialog's controls as its template says, or its template for wide screens where there is
// one and the screen has room for it.
class TemplateLayout {
  public:
    // To be called before anything moves a control or adds one.
    void Attach(HWND dialog, unsigned templateId);
    // To be called once the controls have the sizes that they give themselves.
    void NoteOwnSizes();
    // Fits them into a dialog of this size in pixels, which is scrolled by `scrolled` of them.
    // Returns the height that all of them need, at the width that is left if that takes a scroll
    // bar; 0 when no template fits the controls.
    int Place(int width, int height, std::span<const Fill> fills, int scrolled) const;

  private:
    struct Control {
        HWND hwnd;
        // By how many pixels its edges are not where its template says.
        RECT difference;
    };

    std::vector<ControlPlace> Fit(const DialogTemplate& design, int width, int height,
                                  std::span<const Fill> fills, int& needed) const;
    RECT ToPixels(int left, int top, int right, int bottom) const;
    std::vector<ControlPlace> PlacesOf(const DialogTemplate& design) const;
    // False when it stands there already.
    bool Move(const Control& control, const ControlPlace& place, int scrolled) const;

    HWND dialog_ = nullptr;
    unsigned templateId_ = 0;
    std::vector<Control> controls_;  // in the order of the template
};
