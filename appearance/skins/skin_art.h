#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "appearance/skins/item_icons.h"
#include "appearance/skins/skin_source.h"
#include "appearance/skins/skin_strip.h"
#include "base/owned_handle.h"

// The chosen skin's name; where it is empty, the default one's.
std::wstring CurrentSkinName();
// The folder that holds the skins, with a backslash at its end.
std::wstring SkinsFolder();

// The item icons that are kept as icons, for controls that draw icons.
enum class SkinIcon { kExpanded, kCollapsed, kReminder, kRecurrence, kPrivate, kNote };
inline constexpr int kSkinIconCount = 6;

// The chosen skin's artwork. It is loaded when it is first asked for and kept until Reset.
class SkinArt {
  public:
    enum LoadResult {
        kFailed = 0,
        kBuiltIn = 1,   // no skin could be opened
        kFromSkin = 2,  // a skin is open; what it lacks is built in
    };

    LoadResult LoadIcons();
    LoadResult LoadScrollBar();
    // There are no tab icons but a skin's own: kFailed or kFromSkin.
    LoadResult LoadTabIcons();
    // Whether the skin, which is loaded anew, opens and has all it needs.
    bool IsValid() { return !FindFault(); }
    // What keeps the skin, which is loaded anew, from being valid.
    struct Fault {
        std::string member;  // the first file that is not as it must be; empty: none can be opened
        bool missing;        // else it is incomplete, or no such picture
    };
    std::optional<Fault> FindFault();
    // Forgets what is loaded, so that the skin chosen then is opened next, and calls the listeners.
    void Reset();
    // `listener` is called after each reset, for as long as the process runs.
    void ListenForReset(std::function<void()> listener) {
        resetListeners_.push_back(std::move(listener));
    }

    // The strips and tab icons once loaded; null before.
    const SkinStrip* Icons() const { return icons_ ? &*icons_ : nullptr; }
    const SkinStrip* ScrollBar() const { return scrollBar_ ? &*scrollBar_ : nullptr; }
    HIMAGELIST TabIcons() const { return tabIcons_.get(); }

    // Draws an item icon over what is there, loading what is needed.
    void DrawItemIcon(HDC dc, ItemIcon icon, int x, int y);
    // An icon that stays the skin's, valid until Reset; null when even the built-in strip fails.
    HICON Icon(SkinIcon icon);

  private:
    bool OpenSkin();
    LoadResult LoadStrip(std::optional<SkinStrip>& strip, const char* member, unsigned builtIn);

    std::wstring path_;  // of the skin, without ".zip"
    SkinSource source_;
    std::optional<SkinStrip> icons_;
    std::optional<SkinStrip> scrollBar_;
    OwnedImageList tabIcons_;
    std::array<OwnedIcon, kSkinIconCount> iconHandles_;
    std::vector<std::function<void()>> resetListeners_;
};

SkinArt& GetSkinArt();
