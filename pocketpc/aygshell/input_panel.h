#pragma once

// Registers the class SIPPREF, whose controls raise the input panel for the edit controls of their
// dialog and lower it again.
void RegisterSipPreference();
