// The ink and voice control, class "InkX".
#pragma once

#include <windows.h>

EXTERN_C void WINAPI InitInkX(void);
