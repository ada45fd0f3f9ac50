#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "base/owned_handle.h"

// The bitmaps of the categories' icons that are held for drawing, in the categories' order.
class CategoryIcons {
  public:
    bool IsLoaded() const { return loaded_; }
    // Loads each category's icon from the folder; one without a name, or without an icon that can
    // be loaded, has none. Without a folder there are no icons.
    void Load(const std::wstring& folder, const std::vector<std::wstring>& categories);
    // Null for none.
    HBITMAP Get(int index) const;
    void Remove(int index);
    // Frees them all; they have to be loaded anew.
    void Drop();

  private:
    bool loaded_ = false;
    std::vector<OwnedBitmap> bitmaps_;
};

// The process's one. It is dropped when the skin is reset.
CategoryIcons& GetCategoryIcons();
