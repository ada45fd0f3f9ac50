#include "appearance/skins/skin_art.h"

#include <utility>

#include "app/language/module.h"
#include "appearance/skins/skin_members.h"
#include "base/scale.h"
#include "resources/ids.h"
#include "settings/catalogue.h"
#include "settings/install_path.h"
#include "settings/settings_key.h"

namespace {

constexpr COLORREF kTransparent = RGB(255, 0, 255);

// The piece that each SkinIcon comes from. What the skin's strip lacks, the built-in one has.
constexpr ItemIcon kIconPieces[kSkinIconCount] = {
    ItemIcon::kExpanded,    // SkinIcon::kExpanded
    ItemIcon::kCollapsed,   // SkinIcon::kCollapsed
    ItemIcon::kReminder,    // SkinIcon::kReminder
    ItemIcon::kRecurrence,  // SkinIcon::kRecurrence
    ItemIcon::kPrivate,     // SkinIcon::kPrivate
    ItemIcon::kNote,        // SkinIcon::kNote
};

bool OnHighResolution() { return IsHighResolution(HorizontalDpi()); }
SkinMembers Members() { return SkinMembersFor(HorizontalDpi()); }

// Cuts a bitmap into squares, row by row from its upper left corner. A row of them is added at
// once.
OwnedImageList CutSquares(const BitmapView& view, int size) {
    const SquareGrid grid(view, size);
    OwnedImageList list(ImageList_Create(size, size, ILC_COLOR | ILC_MASK, kTabIconCount, 1));
    if (!list || grid.Count() == 0) return list;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size * grid.columns;
    info.bmiHeader.biHeight = -size;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    const std::size_t used = 3 * static_cast<std::size_t>(info.bmiHeader.biWidth);
    const std::size_t stride = (used + 3) / 4 * 4;
    for (int top = 0; top < size * grid.rows; top += size) {
        void* pixels = nullptr;
        const OwnedBitmap squares(
            CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
        if (!squares) return {};
        for (int y = 0; y < size; ++y) {
            memcpy(static_cast<std::uint8_t*>(pixels) + stride * y, view.Pixel(0, top + y), used);
        }
        if (ImageList_AddMasked(list.get(), squares.get(), kTransparent) < 0) return {};
    }
    return list;
}

}  // namespace

std::wstring CurrentSkinName() {
    const std::wstring name = OpenProductKey().Read(settings::SkinName);
    return name.empty() ? settings::SkinName.defaultText : name;
}

std::wstring SkinsFolder() { return GetInstallPath(L"Skins\\"); }

bool SkinArt::OpenSkin() {
    if (source_.IsOpen()) return true;
    if (path_.empty()) path_ = SkinsFolder() + CurrentSkinName();
    return source_.Open(path_ + L".zip") || source_.Open(path_);
}

SkinArt::LoadResult SkinArt::LoadStrip(std::optional<SkinStrip>& strip, const char* member,
                                       unsigned builtIn) {
    const bool open = OpenSkin();
    if (!strip && open) {
        if (std::optional<std::vector<std::uint8_t>> file = source_.ReadMember(member)) {
            strip = SkinStrip::FromFile(std::move(*file));
        }
    }
    if (!strip) strip = SkinStrip::FromResource(ResourceLibrary(), builtIn);
    if (!strip) return kFailed;
    return open ? kFromSkin : kBuiltIn;
}

SkinArt::LoadResult SkinArt::LoadIcons() {
    return LoadStrip(icons_, Members().icons.c_str(),
                     OnHighResolution() ? IDB_ICONS_HIGH : IDB_ICONS);
}

SkinArt::LoadResult SkinArt::LoadScrollBar() {
    return LoadStrip(scrollBar_, Members().scrollBar.c_str(),
                     OnHighResolution() ? IDB_SCROLL_BAR_HIGH : IDB_SCROLL_BAR);
}

SkinArt::LoadResult SkinArt::LoadTabIcons() {
    if (!OpenSkin()) return kFailed;
    if (!tabIcons_) {
        const auto file = source_.ReadMember(Members().tabIcons.c_str());
        const std::optional<BitmapView> view = file ? ParseBitmapFile(*file) : std::nullopt;
        if (view) tabIcons_ = CutSquares(*view, Members().tabIconSize);
    }
    return tabIcons_ ? kFromSkin : kFailed;
}

std::optional<SkinArt::Fault> SkinArt::FindFault() {
    Reset();
    if (!OpenSkin()) return Fault{{}, true};
    const auto fault = [this](const std::string& member) {
        return Fault{member, !source_.GetMemberSize(member.c_str())};
    };
    if (LoadIcons() != kFromSkin || icons_->Count() < kItemIconCount) return fault(Members().icons);
    if (LoadScrollBar() != kFromSkin || scrollBar_->Count() < kScrollBarPartCount) {
        return fault(Members().scrollBar);
    }
    if (LoadTabIcons() != kFromSkin || ImageList_GetImageCount(tabIcons_.get()) < kTabIconCount) {
        return fault(Members().tabIcons);
    }
    return {};
}

void SkinArt::Reset() {
    for (OwnedIcon& icon : iconHandles_) icon.Reset();
    path_.clear();
    icons_.reset();
    scrollBar_.reset();
    tabIcons_.Reset();
    source_.Close();
    for (const auto& listener : resetListeners_) listener();
}

void SkinArt::DrawItemIcon(HDC dc, ItemIcon icon, int x, int y) {
    if (LoadIcons() != kFailed) icons_->Draw(dc, static_cast<int>(icon), x, y);
}

HICON SkinArt::Icon(SkinIcon icon) {
    OwnedIcon& handle = iconHandles_[static_cast<int>(icon)];
    const int piece = static_cast<int>(kIconPieces[static_cast<int>(icon)]);
    if (!handle && LoadIcons() != kFailed) handle = icons_->CreateIcon(piece);
    if (!handle) {
        const std::optional<SkinStrip> builtIn = SkinStrip::FromResource(
            ResourceLibrary(), OnHighResolution() ? IDB_ICONS_HIGH : IDB_ICONS);
        if (builtIn) handle = builtIn->CreateIcon(piece);
    }
    return handle.get();
}

SkinArt& GetSkinArt() {
    static SkinArt art;
    return art;
}
