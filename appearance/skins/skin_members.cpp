#include "appearance/skins/skin_members.h"

#include "base/scale.h"

namespace {

constexpr int kTabIconSize = 16;  // at 96 dots per inch

}  // namespace

bool IsHighResolution(int dotsPerInch) { return ScaleLength(1, dotsPerInch) >= 2; }

SkinMembers SkinMembersFor(int dotsPerInch) {
    const std::string suffix = IsHighResolution(dotsPerInch) ? "_vga.bmp" : ".bmp";
    const int size = ScaleLength(kTabIconSize, dotsPerInch);
    return {"icons" + suffix, "scrollbar" + suffix, "tab_icons_" + std::to_string(size) + ".bmp",
            size};
}
