// What the Pocket PC's <windows.h> and its parts define otherwise than the desktop's.
#pragma once

// System colours carry a flag on the device, so that a colour index and a COLORREF cannot be
// confused. Two of the desktop's numbers mean other colours there.
#define SYS_COLOR_INDEX_FLAG 0x40000000
#undef COLOR_SCROLLBAR
#undef COLOR_BACKGROUND
#undef COLOR_ACTIVECAPTION
#undef COLOR_INACTIVECAPTION
#undef COLOR_MENU
#undef COLOR_WINDOW
#undef COLOR_WINDOWFRAME
#undef COLOR_MENUTEXT
#undef COLOR_WINDOWTEXT
#undef COLOR_CAPTIONTEXT
#undef COLOR_ACTIVEBORDER
#undef COLOR_INACTIVEBORDER
#undef COLOR_APPWORKSPACE
#undef COLOR_HIGHLIGHT
#undef COLOR_HIGHLIGHTTEXT
#undef COLOR_BTNFACE
#undef COLOR_BTNSHADOW
#undef COLOR_GRAYTEXT
#undef COLOR_BTNTEXT
#undef COLOR_INACTIVECAPTIONTEXT
#undef COLOR_BTNHIGHLIGHT
#undef COLOR_3DDKSHADOW
#undef COLOR_3DLIGHT
#undef COLOR_INFOTEXT
#undef COLOR_INFOBK
#undef COLOR_DESKTOP
#undef COLOR_3DFACE
#undef COLOR_3DSHADOW
#undef COLOR_3DHIGHLIGHT
#undef COLOR_3DHILIGHT
#undef COLOR_BTNHILIGHT
#undef COLOR_GRADIENTACTIVECAPTION
#undef COLOR_GRADIENTINACTIVECAPTION
#undef COLOR_HOTLIGHT
#undef COLOR_MENUHILIGHT
#undef COLOR_MENUBAR
#define COLOR_SCROLLBAR (0 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BACKGROUND (1 | SYS_COLOR_INDEX_FLAG)
#define COLOR_ACTIVECAPTION (2 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INACTIVECAPTION (3 | SYS_COLOR_INDEX_FLAG)
#define COLOR_MENU (4 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOW (5 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOWFRAME (6 | SYS_COLOR_INDEX_FLAG)
#define COLOR_MENUTEXT (7 | SYS_COLOR_INDEX_FLAG)
#define COLOR_WINDOWTEXT (8 | SYS_COLOR_INDEX_FLAG)
#define COLOR_CAPTIONTEXT (9 | SYS_COLOR_INDEX_FLAG)
#define COLOR_ACTIVEBORDER (10 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INACTIVEBORDER (11 | SYS_COLOR_INDEX_FLAG)
#define COLOR_APPWORKSPACE (12 | SYS_COLOR_INDEX_FLAG)
#define COLOR_HIGHLIGHT (13 | SYS_COLOR_INDEX_FLAG)
#define COLOR_HIGHLIGHTTEXT (14 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNFACE (15 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNSHADOW (16 | SYS_COLOR_INDEX_FLAG)
#define COLOR_GRAYTEXT (17 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNTEXT (18 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INACTIVECAPTIONTEXT (19 | SYS_COLOR_INDEX_FLAG)
#define COLOR_BTNHIGHLIGHT (20 | SYS_COLOR_INDEX_FLAG)
#define COLOR_3DDKSHADOW (21 | SYS_COLOR_INDEX_FLAG)
#define COLOR_3DLIGHT (22 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INFOTEXT (23 | SYS_COLOR_INDEX_FLAG)
#define COLOR_INFOBK (24 | SYS_COLOR_INDEX_FLAG)
#define COLOR_DESKTOP COLOR_BACKGROUND
#define COLOR_3DFACE COLOR_BTNFACE
#define COLOR_3DSHADOW COLOR_BTNSHADOW
#define COLOR_3DHIGHLIGHT COLOR_BTNHIGHLIGHT
#define COLOR_3DHILIGHT COLOR_BTNHIGHLIGHT
#define COLOR_BTNHILIGHT COLOR_BTNHIGHLIGHT
#define COLOR_STATIC (25 | SYS_COLOR_INDEX_FLAG)
#define COLOR_STATICTEXT (26 | SYS_COLOR_INDEX_FLAG)
#define COLOR_GRADIENTACTIVECAPTION (27 | SYS_COLOR_INDEX_FLAG)
#define COLOR_GRADIENTINACTIVECAPTION (28 | SYS_COLOR_INDEX_FLAG)

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

// A file that shall be mapped is opened by a function of its own, and mapped once.
EXTERN_C HANDLE WINAPI CreateFileForMappingW(LPCWSTR path, DWORD access, DWORD share,
                                             LPSECURITY_ATTRIBUTES security, DWORD disposition,
                                             DWORD attributes, HANDLE templateFile);

// Puts one file in the place of another in one step.
EXTERN_C BOOL WINAPI DeleteAndRenameFile(LPCWSTR to, LPCWSTR from);

// Bitmap files are loaded by the shell.
EXTERN_C HBITMAP WINAPI SHLoadDIBitmap(LPCWSTR path);

// Copies what is not of the transparent colour; the source is a device context or a bitmap.
EXTERN_C BOOL WINAPI TransparentImage(HDC target, LONG x, LONG y, LONG width, LONG height,
                                      HANDLE source, LONG sourceX, LONG sourceY, LONG sourceWidth,
                                      LONG sourceHeight, COLORREF transparent);
