#pragma once

// Prints tools/diarykit/font_widths.inc: how wide the letters of the dialogs' font are.
void PrintWidths();
