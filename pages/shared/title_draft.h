#pragma once

#include "settings/display_pattern.h"

// The title patterns while a sheet is open. All of its pages edit the same ones, and each stores
// them with its own values, so that the last word counts wherever it was said.
struct TitleDraft {
    DisplayPattern task;
    DisplayPattern appointment;
    DisplayPattern contact;
};

// Loaded from the settings when the first page of a sheet asks for it.
TitleDraft& GetTitleDraft();
// Puts the draft into the shared settings, which the caller saves.
void StoreTitleDraft();
// To be called when a sheet is opened: what an earlier one left, ok or not, is past.
void ForgetTitleDraft();
