// The desktop's <windows.h> and, on top of it, what the Pocket PC's does otherwise.
#pragma once

#include_next <windows.h>

#include "ce_overlay.h"
