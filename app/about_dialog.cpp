#include "app/about_dialog.h"

#include "app/language/module.h"
#include "resources/ids.h"

AboutDialog::AboutDialog() : FullScreenDialog(IDD_ABOUT, L"", Band::kNone) {}

bool AboutDialog::OnInit() {
    const int width = GetSystemMetrics(SM_CXICON);
    const int height = GetSystemMetrics(SM_CYICON);
    icon_.Reset(static_cast<HICON>(LoadImageW(ResourceLibrary(), MAKEINTRESOURCEW(IDI_GENERAL),
                                              IMAGE_ICON, width, height, 0)));
    SendDlgItemMessageW(hwnd(), IDC_ABOUT_ICON, STM_SETIMAGE, IMAGE_ICON,
                        reinterpret_cast<LPARAM>(icon_.get()));
    return false;
}
