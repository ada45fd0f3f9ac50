#include "base/scale.h"

#include <windows.h>

#include "base/owned_handle.h"

namespace {

int ScreenCapability(int index) { return GetDeviceCaps(WindowDc().get(), index); }

}  // namespace

int HorizontalDpi() {
    static const int dpi = ScreenCapability(LOGPIXELSX);
    return dpi;
}

int VerticalDpi() {
    static const int dpi = ScreenCapability(LOGPIXELSY);
    return dpi;
}
