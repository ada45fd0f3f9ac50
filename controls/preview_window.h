#pragma once

#include <windows.h>

// The window class of previews, also known to the dialog templates by this name. A preview is
// painted by its parent: it sends WM_DRAWITEM with a device context of its client area that is
// cleared to the window colour, and shows the result without flicker.
inline constexpr wchar_t kPreviewWindowClass[] = L"LumDiaryPreview.0";

void RegisterPreviewWindow();
