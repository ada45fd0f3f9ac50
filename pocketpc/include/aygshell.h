// The Pocket PC's shell: menu bars, full-screen dialogs, the Done button.
#pragma once

#include <windows.h>

#define SHCMBF_EMPTYBAR 0x0001
#define SHCMBF_HIDDEN 0x0002
#define SHCMBF_HIDESIPBUTTON 0x0004
#define SHCMBF_COLORBK 0x0008
#define SHCMBF_HMENU 0x0010

typedef struct tagSHMENUBARINFO {
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags;
    UINT nToolBarId;
    HINSTANCE hInstRes;
    int nBmpId;
    int cBmpImages;
    HWND hwndMB;  // out
    COLORREF clrBk;
} SHMENUBARINFO, *PSHMENUBARINFO;

#define SHIDIM_FLAGS 0x0001
#define SHIDIF_DONEBUTTON 0x0001
#define SHIDIF_SIZEDLG 0x0002
#define SHIDIF_SIZEDLGFULLSCREEN 0x0004
#define SHIDIF_SIPDOWN 0x0008

typedef struct tagSHINITDLGINFO {
    DWORD dwMask;
    HWND hDlg;
    DWORD dwFlags;
} SHINITDLGINFO, *PSHINITDLGINFO;

// A control of this class in a dialog raises the panel for the dialog's edit controls.
#define WC_SIPPREF L"SIPPREF"

typedef enum tagSIPSTATE {
    SIP_UP = 0,
    SIP_DOWN,
    SIP_FORCEDOWN,
    SIP_UNCHANGED,
    SIP_INPUTDIALOG,
} SIPSTATE;

#define SHDB_SHOW 0x0001
#define SHDB_HIDE 0x0002
#define SHDB_SHOWCANCEL 0x0004

typedef struct tagSHACTIVATEINFO {
    DWORD cbSize;
    HWND hwndLastFocus;
    UINT fSipUp : 1;
    UINT fSipOnDeactivation : 1;
    UINT fActive : 1;
    UINT fReserved : 29;
} SHACTIVATEINFO, *PSHACTIVATEINFO;

#define SHCMBM_SETSUBMENU 0x0590
#define SHCMBM_GETSUBMENU 0x0591
#define SHCMBM_GETMENU 0x0592

typedef enum tagSHUIMETRIC {
    SHUIM_INVALID = 0,
    SHUIM_FONTSIZE_POINT,       // hundredths of a point
    SHUIM_FONTSIZE_PIXEL,       // pixels of this screen
    SHUIM_FONTSIZE_PERCENTAGE,  // of the usual size
} SHUIMETRIC;

EXTERN_C BOOL WINAPI SHInitExtraControls(void);
EXTERN_C BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info);
EXTERN_C HWND WINAPI SHFindMenuBar(HWND parent);
EXTERN_C BOOL WINAPI SHInitDialog(SHINITDLGINFO* info);
EXTERN_C BOOL WINAPI SHDoneButton(HWND hwnd, DWORD state);
EXTERN_C BOOL WINAPI SHHandleWMActivate(HWND hwnd, WPARAM wParam, LPARAM lParam,
                                        SHACTIVATEINFO* info, DWORD flags);
EXTERN_C BOOL WINAPI SHHandleWMSettingChange(HWND hwnd, WPARAM wParam, LPARAM lParam,
                                             SHACTIVATEINFO* info);
EXTERN_C BOOL WINAPI SHSipPreference(HWND hwnd, SIPSTATE state);
// Each metric is a DWORD. Missing on devices older than 4.21: to be looked up by name.
EXTERN_C HRESULT WINAPI SHGetUIMetrics(SHUIMETRIC metric, void* buffer, DWORD size, DWORD* needed);
