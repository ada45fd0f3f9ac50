#pragma once

#include <windows.h>

// The window class of previews, also known to the dialog templates by this name. A preview is
// painted by its parent: it sends WM_DRAWITEM with a device context of its client area that has
// the window colour and the parent's font, and shows the result without flicker.
inline constexpr wchar_t kPreviewWindowClass[] = L"LumDiaryPreview.0";

void RegisterPreviewWindow();
