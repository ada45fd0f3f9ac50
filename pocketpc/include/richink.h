// The rich ink control, class "RichInk".
#pragma once

#include <windows.h>

EXTERN_C void WINAPI InitRichInkDLL(void);
