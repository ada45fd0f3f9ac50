#include "base/scale.h"

#include <windows.h>

namespace {

int ScreenCapability(int index) {
    const HDC screen = GetDC(nullptr);
    const int value = GetDeviceCaps(screen, index);
    ReleaseDC(nullptr, screen);
    return value;
}

}  // namespace

int HorizontalDpi() {
    static const int dpi = ScreenCapability(LOGPIXELSX);
    return dpi;
}

int VerticalDpi() {
    static const int dpi = ScreenCapability(LOGPIXELSY);
    return dpi;
}
