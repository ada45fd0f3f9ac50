// A way through the whole program: every sheet with every page, every dialog, export and import.
// Each step opens something, changes something in it, confirms it and is over when all is closed.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <string>

#include "tests/trials/holdings.h"
#include "tests/ui/driver.h"

struct Outcome {
    bool closed = false;   // what was opened; false as well when it did not come
    bool message = false;  // the program said that it failed
};

struct Step {
    const char* name;
    // Calls `storing` before it confirms what it did.
    std::function<Outcome(const ui::Program&, const std::function<void()>& storing)> run;
    bool maySay = false;  // whether the program may say that it failed
};

std::span<const Step> Steps();

// For tests that are made for each step.
inline void PrintTo(const Step& step, std::ostream* out) { *out << step.name; }
inline std::string NameOfStep(const testing::TestParamInfo<Step>& step) { return step.param.name; }

// Has a window with all in it painted, at once.
void Draw(HWND window);

// Gives the device settings that differ from their defaults, an icon to be replaced, and for the
// import a file of other settings.
Holdings Prepared(const Step& step);
