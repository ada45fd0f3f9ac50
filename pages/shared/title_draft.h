#pragma once

#include <optional>

#include "settings/display_pattern.h"

// The title patterns while a sheet is open. All of its pages edit the same ones, and each stores
// them with its own values, so that the last word counts wherever it was said.
struct TitleDraft {
    DisplayPattern task;
    DisplayPattern appointment;
    DisplayPattern contact;
};

// A sheet's draft, for as long as the sheet is open. A sheet opened over another has one of its
// own.
class SheetTitles {
  public:
    SheetTitles() : outer_(innermost_) { innermost_ = this; }
    ~SheetTitles() { innermost_ = outer_; }
    SheetTitles(const SheetTitles&) = delete;
    SheetTitles& operator=(const SheetTitles&) = delete;

    // Of the sheet whose pages are being made; a page keeps it.
    static SheetTitles& Innermost() { return *innermost_; }

    // Loaded from the shared settings when the first page asks for it.
    TitleDraft& Draft();
    // Puts what was changed here into the shared settings, which the caller saves; what a sheet
    // opened over this one has stored meanwhile stays otherwise. Nothing of a draft that could not
    // be loaded whole.
    void Store();

  private:
    std::optional<TitleDraft> draft_;
    TitleDraft stored_;     // as the draft was loaded or last stored
    bool isKnown_ = false;  // no default stands in for what could not be read
    SheetTitles* outer_;
    static inline SheetTitles* innermost_ = nullptr;
};
