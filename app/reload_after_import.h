#pragma once

// Lets what the program has loaded of the settings follow them after an import. What it has not
// loaded yet stays so, as a first read creates the values that are missing. Settled for the whole
// run are the language, the folder of the category icons, whether the device is a phone, and the
// tabs as they were at the start.
void ReloadAfterImport();
