#pragma once

#include <deque>
#include <string>
#include <vector>

#include "appearance/categories/icon_catalogue.h"
#include "appearance/categories/icon_picture.h"

// The colour of an icon's bitmap that is not painted.
inline constexpr COLORREF kIconTransparentColor = 0x00FF00;

// The icons of the folders that were loaded, in groups. The group for icons that the catalogue
// does not know is always there, and first.
class IconLibrary {
  public:
    // There may be thousands, so none has a bitmap of the system's.
    struct Icon {
        const std::wstring* folder = nullptr;  // the library's
        std::wstring name;
        IconPicture picture;

        std::wstring Path() const;
    };
    struct Group {
        std::wstring title;  // translated
        std::deque<Icon> icons;
    };

    // With the catalogue of the installation folder, if it has one.
    IconLibrary();

    const std::vector<Group>& groups() const { return groups_; }

    // Adds the bitmaps of a folder, which are at most 30 design pixels wide and high; any other
    // file is passed over. Does nothing for a folder that was loaded since the last Clear.
    void LoadFolder(const std::wstring& folder);
    void Clear();

  private:
    Group& GroupOf(const IconDigest& digest);

    IconCatalogue catalogue_;
    std::vector<std::size_t> positions_;  // of the catalogue's groups in groups_; 0 for not there
    std::vector<Group> groups_;
    std::deque<std::wstring> loadedFolders_;
};
