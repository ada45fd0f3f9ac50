// What the Pocket PC's <windows.h> and its parts define otherwise than the desktop's.
#pragma once

// System colours carry a flag on the device, so that a colour index and a COLORREF cannot be
// confused.
#define SYS_COLOR_INDEX_FLAG 0x40000000
#undef COLOR_WINDOW
#undef COLOR_WINDOWTEXT
#undef COLOR_HIGHLIGHT
#undef COLOR_HIGHLIGHTTEXT
#undef COLOR_3DFACE
#undef COLOR_BTNFACE
#undef COLOR_GRAYTEXT
#define COLOR_WINDOW (5 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOWTEXT (8 | SYS_COLOR_INDEX_FLAG)
#define COLOR_HIGHLIGHT (13 | SYS_COLOR_INDEX_FLAG)
#define COLOR_HIGHLIGHTTEXT (14 | SYS_COLOR_INDEX_FLAG)
#define COLOR_3DFACE (15 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNFACE COLOR_3DFACE
#define COLOR_GRAYTEXT (17 | SYS_COLOR_INDEX_FLAG)
#define COLOR_STATIC (25 | SYS_COLOR_INDEX_FLAG)
#define COLOR_STATICTEXT (26 | SYS_COLOR_INDEX_FLAG)

// The platform of GetVersionExW and what SystemParametersInfoW knows besides.
#undef VER_PLATFORM_WIN32_CE
#define VER_PLATFORM_WIN32_CE 3
#define SPI_SETSIPINFO 224
#define SPI_GETSIPINFO 225
#define SPI_GETPLATFORMTYPE 257
#define SPI_GETOEMINFO 258

// The device exports only the forms that take a template in memory; a loaded resource is one.
#undef CreateDialogParamW
#define CreateDialogParamW(instance, name, parent, procedure, parameter)                         \
    CreateDialogIndirectParamW(instance,                                                         \
                               (LPCDLGTEMPLATEW)LoadResource(                                    \
                                   instance, FindResourceW(instance, name, (LPCWSTR)RT_DIALOG)), \
                               parent, procedure, parameter)
#undef DialogBoxParamW
#define DialogBoxParamW(instance, name, parent, procedure, parameter)                         \
    DialogBoxIndirectParamW(instance,                                                         \
                            (LPCDLGTEMPLATEW)LoadResource(                                    \
                                instance, FindResourceW(instance, name, (LPCWSTR)RT_DIALOG)), \
                            parent, procedure, parameter)
#undef LockResource
#define LockResource(resource) ((void*)(resource))

// Names are wide on the device.
EXTERN_C FARPROC WINAPI GetProcAddressW(HMODULE module, LPCWSTR name);
#undef GetProcAddress
#define GetProcAddress GetProcAddressW
